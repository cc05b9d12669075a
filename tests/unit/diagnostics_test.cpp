#include "child_process.h"
#include "error_codes.h"
#include "error_handler.h"
#include "support/diagnosis.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::test::rowsOf;

struct Expected {
    const char* code;
    const char* text;
};

// These remedies teach words and forms of the language, so their wording is part of it.
// clang-format off
const std::vector<Expected> remedies = {
    {"பொழி-102", "வரியின் இறுதியில் ஒரு இரட்டை மேற்கோள் குறியைச் சேர்த்துச் சரி செய்!"},
    {"பொழி-106", "குறியீடுகளை (ி, ு, ே) மட்டும் தனியாகப் பயன்படுத்த முடியாது; மெய்யெழுத்துடன் சேர்த்துப் பயன்படுத்து."},
    {"பொழி-110", "உள்-தள்ளலுக்கு (Indentation) ஏதேனும் ஒன்றை மட்டும் பயன்படுத்து."},
    {"பொழி-112", "திறவுச்சொல்லைப் பிரிக்காமல் (எ.கா: அச்சிடு) சேர்த்து எழுது மச்சி!"},
    {"பொழி-113", "எழுத்துப் பிழையைச் சரிபார்த்துச் சரியான சொல்லைப் பயன்படுத்து."},
    {"பொழி-118", "கமெண்ட் குறியீடுகளை (ஃ) சரியாக மூடிவிட்டாயா என்று பார்."},
    {"பொழி-203", "விட்ஜெட் அல்லது செயலைத் தொடங்கும்போது ')' தேவை."},
    {"பொழி-223", "'ஒவ்வொன்றாக x இல் y:' - இந்த அமைப்பைப் பின்பற்று மச்சி!"},
    {"பொழி-224", "'தேர்வு' பிளாக்கிற்குள் 'நிலை' அல்லது 'மற்றவை' மட்டும் தான் வரணும்."},
    {"பொழி-234", "லாம்ப்டாவை (Anonymous Function) ஒரு வரியில் எழுது மச்சி! நேரடியாக ':' வைத்து block-ஆக எழுதக் கூடாது."},
    {"பொழி-271", "மெத்தட்ல முதல் ஆளா 'தான்' இருக்கணும் மச்சி, அப்போ தான் அதுக்கு அதிகாரம்!"},
    {"பொழி-273", "வடிவமைப்புல சொன்ன செயலை இங்க எழுதவே இல்ல பாரு."},
    {"பொழி-281", "நீ கூப்பிட்ட '.பொழில்' கோப்பு அந்த இடத்துல இல்ல மச்சி!"},
    {"பொழி-291", "பார்ஸர் ரொம்ப நேரம் ஒரே இடத்துல சுத்துது, லாஜிக்கைச் செக் பண்ணு!"},
    {"பொழி-301", "மச்சி, ஒரு எண்ணை '0' ஆல வகுக்க முடியாது, வகுக்கும் எண்ணை மாத்து!"},
    {"பொழி-315", "ஒருமுறை முடிவு செஞ்ச மதிப்ப ('=' மூலம்) மீண்டும் மாற்ற முடியாது மச்சி!"},
    {"பொழி-335", "உன் செயல் நிக்காம தன்னைத்தானே கூப்பிடுது, அது 'அடுக்கு மீறல்' பிழையைத் தரும்."},
    {"பொழி-362", "நிறம் சொல்லும்போது 'நிறம்.சிவப்பு' அல்லது '#HEX' குறியீட்டைச் சரியா சொல்லு."},
    {"பொழி-371", "நீ சொன்ன வளைவு (Curve) நம்ம லிஸ்ட்ல இல்ல, 'இயல்பான' மாதிரி ஏதாச்சும் வை."},
    {"பொழி-399", "ஏதோ ஒன்னு தப்பா ஆகிடுச்சு மச்சி, கோடை ஒருவாட்டி ஆழமா செக் பண்ணு!"},
    {"பொழி-401", "மச்சி, 'வலைதளம்' உள்ளே தலைமை(), குமரி(), மற்றும் வரையறை() ஆகிய மூன்றும் இருக்கணும்! ஏதோ ஒன்னு விடுபட்டுருக்கு பாரு."},
    {"பொழி-402", "இணைய_தலைப்பு மற்றும் சின்னம் ஆகியவற்றுக்கு உரை (String) வடிவில் மட்டுமே மதிப்பளிக்க வேண்டும்! எண்களைக் கொடுக்கக்கூடாது ( \"தலைப்பு\" என இரட்டை மேற்கோள் குறிக்குள் தரவும்)."},
};
// clang-format on

TEST(Catalogue, RowsStandInAscendingOrderWithoutRepeats) {
    std::vector<std::string> codes;
    for (const auto& row : pozhil::catalogue::entries) {
        codes.emplace_back(row.code);
    }
    EXPECT_EQ(codes.size(), பிழை_அகராதி.size());
    EXPECT_EQ(std::adjacent_find(codes.begin(), codes.end(), std::greater_equal<>()), codes.end());
}

TEST(Catalogue, KeepsRemediesThatCarryVocabulary) {
    for (const Expected& row : remedies) {
        EXPECT_EQ(பிழை_அகராதி.at(row.code).தீர்வு, row.text) << row.code;
    }
}

// What a newcomer must learn from the remedy, whichever way the program came to the fault.
const std::vector<std::pair<const char*, std::vector<const char*>>> waysOut = {
    {"பொழி-101", {"'கூட்டு'", "'குறை 5'", "'ஃ'"}},
    {"பொழி-201", {"'அச்சிடு(...)'", "ஒரே வரியில", "ஒதுக்கின சொல்", "'ஃ'", "வேற பெயர்", "'சமம்'"}},
    {"பொழி-202", {"':'", "உள்ள தள்ளி", "'விடு'", "ஒதுக்கின சொல்"}},
    {"பொழி-208", {"'='", "'(...)'"}},
    {"பொழி-210", {"ஒதுக்கின சொல்", "'ஃ'", "வேற பெயர்", "எடை = 0", "'பிடி'"}},
    {"பொழி-231", {"செயல் வணக்கம்():", "ஒதுக்கின சொல்", "'ஃ'", "வேற பெயர்"}},
    {"பொழி-232", {"','", "ஒதுக்கின சொல்", "'ஃ'", "வேற பெயர்", "'(அ => ...)'"}},
    {"பொழி-303", {"'இணை'", "'எண்(...)'", "'பின்னணிபடம்'"}},
    {"பொழி-304", {"'.'", "'தான்'", "'மலர் = நபர்(...)'", "வகை", "பராமீட்டரோ", "அகராதி", "'நீக்கு'"}},
    {"பொழி-313", {"'[ ]'", "'ஒவ்வொன்றாக'", "முழு எண்", "'கீழ்எண்(...)'", "சாவி உரை", "'\"\" இணை சாவி'"}},
    {"பொழி-332", {"செயலோ வினையோ", "எண்ணிக்கை", "வகை"}},
};

TEST(Catalogue, RemediesNameTheWayOut) {
    for (const auto& [code, words] : waysOut) {
        for (const char* word : words) {
            EXPECT_NE(பிழை_அகராதி.at(code).தீர்வு.find(word), std::string::npos) << code << ": " << word;
        }
    }
}

TEST(Catalogue, NoTwoRemediesAreTheSameAndNothingIsEmpty) {
    std::map<std::string, std::string> codeOfRemedy;
    for (const auto& [code, entry] : பிழை_அகராதி) {
        EXPECT_FALSE(entry.விளக்கம்.empty()) << code;
        EXPECT_FALSE(entry.தீர்வு.empty()) << code;
        const auto [first, isNew] = codeOfRemedy.emplace(entry.தீர்வு, code);
        EXPECT_TRUE(isNew) << code << " has the remedy of " << first->second;
    }
}

TEST(Catalogue, DoesNotHoldTheGaps) {
    for (const char* code : {"பொழி-116", "பொழி-400", "பொழி-404", "பொழி-100", "பொழி-403"}) {
        EXPECT_EQ(பிழை_அகராதி.count(code), 0U) << code;
        EXPECT_THROW(பிழை_அகராதி.at(code), std::out_of_range) << code;
    }
}

TEST(Catalogue, ComparesWholeCodes) {
    ASSERT_EQ(பிழை_அகராதி.count("பொழி-101"), 1U);
    for (const char* code : {"101", "-101", "பிழை-101", "pozhi-101", "பொழி101", "பொழி-101 ", "பொழி-1010", ""}) {
        EXPECT_EQ(பிழை_அகராதி.count(code), 0U) << code;
    }
}

struct Report {
    பிழைவகை category = பிழைவகை::சொல்_பிழை;
    std::string code = "பொழி-102";
    std::string description = "விளக்கம்.";
    std::string file = "அடைவு/நிரல்.பொழில்";
    int line = 7;
    std::string lineText = "    அச்சிடு(\"வணக்கம்)";
    std::string remedy = "தீர்வு!";
};

/// Lets a child process print the report, since the report ends the process that it is called in.
ChildResult print(const Report& report) {
    return runInChild([&] {
        ErrorHandler::அறிக்கை(report.category, report.code, report.description, report.file, report.line,
                             report.lineText, report.remedy);
    });
}

constexpr std::size_t categoryRow = 2;
constexpr std::size_t placeRow = 5;
constexpr std::size_t sourceRow = 8;
constexpr std::size_t sayingRow = 15;

std::string rowOf(const Report& report, std::size_t index) {
    return rowsOf(print(report).output).at(index);
}

TEST(Report, PrintsTheBoxByteForByte) {
    const std::string rule(60, '-');
    const std::string dimRule = "\x1b[2;37m  " + rule + "\x1b[0m";
    const ChildResult child = print(Report{});
    std::vector<std::string> rows = rowsOf(child.output);
    ASSERT_EQ(rows.size(), 18U);

    const std::string before = "  \x1b[1;93m✨ \"";
    const std::string behind = "\"\x1b[0m";
    const std::string saying = rows[sayingRow];
    ASSERT_GT(saying.size(), before.size() + behind.size());
    EXPECT_EQ(saying.substr(0, before.size()), before);
    EXPECT_EQ(saying.substr(saying.size() - behind.size()), behind);
    const auto& sayings = ErrorHandler::பொன்மொழிகள்();
    const std::string drawn = saying.substr(before.size(), saying.size() - before.size() - behind.size());
    EXPECT_EQ(std::count(sayings.begin(), sayings.end(), drawn), 1) << drawn;

    rows[sayingRow] = "(saying)";
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "",
                        "\x1b[1;31m" + rule + "\x1b[0m",
                        "  🚨 [ \x1b[1;93mபொழி-102\x1b[0m ] :: \x1b[1;31mசொல் பிழை\x1b[0m",
                        "\x1b[1;31m" + rule + "\x1b[0m",
                        "  \x1b[1;34m📂 கோப்பு  \x1b[0m: அடைவு/நிரல்.பொழில்",
                        "  \x1b[1;34m📍 இடம்    \x1b[0m: வரி 7",
                        dimRule,
                        "\x1b[1;36m  🔍 பிழை கண்டறியப்பட்ட பகுதி:\x1b[0m",
                        "    07 |      அச்சிடு(\"வணக்கம்)",
                        "       |  \x1b[1;93m        ▲\x1b[0m",
                        "\x1b[1;31m       ╰── மச்சி, விளக்கம்.\x1b[0m",
                        dimRule,
                        "\x1b[1;32m  💡 சரி செய்யும் முறை:\x1b[0m",
                        "     தீர்வு!",
                        dimRule,
                        "(saying)",
                        dimRule,
                        "",
                    }));
    EXPECT_EQ(child.output.back(), '\n');
}

TEST(Report, ExitsWithOneAndLeavesStandardErrorEmpty) {
    const ChildResult child = print(Report{});
    EXPECT_EQ(child.exitStatus, 1);
    EXPECT_EQ(child.errors, "");
}

TEST(Report, PadsTheLineNumberToTwoDigitsInTheSourceRowOnly) {
    const std::vector<std::pair<int, std::string>> cases = {{0, "00"},  {7, "07"},  {9, "09"},
                                                            {10, "10"}, {99, "99"}, {100, "100"}};
    for (const auto& [line, shown] : cases) {
        Report report;
        report.line = line;
        report.lineText = "x = 1";
        const std::vector<std::string> rows = rowsOf(print(report).output);
        EXPECT_EQ(rows.at(sourceRow), "    " + shown + " |  x = 1");
        EXPECT_EQ(rows.at(placeRow), "  \x1b[1;34m📍 இடம்    \x1b[0m: வரி " + std::to_string(line));
    }
}

TEST(Report, ShowsAnEmptySourceLine) {
    Report report;
    report.line = 12;
    report.lineText = "";
    EXPECT_EQ(rowOf(report, sourceRow), "    12 |  ");
}

TEST(Report, NamesTheCategory) {
    const std::vector<std::pair<int, std::string>> cases = {
        {0, "சொல் பிழை"},      {1, "இலக்கணப் பிழை"}, {2, "பொருள் பிழை"}, {3, "செயல்பாட்டுப் பிழை"},
        {4, "இயக்கநேரப் பிழை"}, {5, "பிழை"},        {-1, "பிழை"},      {99, "பிழை"}};
    for (const auto& [category, word] : cases) {
        Report report;
        report.category = static_cast<பிழைவகை>(category);
        EXPECT_EQ(rowOf(report, categoryRow), "  🚨 [ \x1b[1;93mபொழி-102\x1b[0m ] :: \x1b[1;31m" + word + "\x1b[0m");
    }
}

TEST(Category, StandsInItsOrder) {
    EXPECT_EQ(static_cast<int>(பிழைவகை::சொல்_பிழை), 0);
    EXPECT_EQ(static_cast<int>(பிழைவகை::இலக்கண_பிழை), 1);
    EXPECT_EQ(static_cast<int>(பிழைவகை::பொருள்_பிழை), 2);
    EXPECT_EQ(static_cast<int>(பிழைவகை::செயல்பாட்டு_பிழை), 3);
    EXPECT_EQ(static_cast<int>(பிழைவகை::இயக்கநேர_பிழை), 4);
}

TEST(Sayings, AreFiftyDistinctOnes) {
    const auto& sayings = ErrorHandler::பொன்மொழிகள்();
    EXPECT_EQ(sayings.size(), 50U);
    EXPECT_EQ(std::set<std::string>(sayings.begin(), sayings.end()).size(), 50U);
    EXPECT_EQ(std::count(sayings.begin(), sayings.end(), ""), 0);
}

TEST(Sayings, KeepTheirOrder) {
    const auto& sayings = ErrorHandler::பொன்மொழிகள்();
    const std::map<std::size_t, std::string> expected = {
        {1, "பிழைகளைக் கண்டு அஞ்சாதே, அவை உன்னைச் சிறந்த நிரலாளனாகச் செதுக்கும்!"},
        {20, "பிழையைச் சரிசெய்வது என்பது ஒரு புதிர் விளையாட்டை வெல்வது போன்றது."},
        {21, "கல் தோன்றி மண் தோன்றாக் காலத்தே முன் தோன்றிய மூத்த மொழி தமிழ்!"},
        {23, "\"யாதும் ஊரே யாவரும் கேளிர்\" - உலகப் பொதுமறையைத் தந்த மொழி நம் தமிழ்."},
        {27, "உலக மொழிகளுக்குத் தாய் மொழி, நம் செம்மொழித் தமிழ்!"},
        {29, "தமிழ் மண்ணின் வீரம் உன் உழைப்பில் மிளிரட்டும்."},
        {36, "கீழடி முதல் விண்வெளி வரை தமிழனின் தடம் பதியட்டும்."},
        {38, "தமிழ் அறிவுக்கடல், அதில் மூழ்கி முத்தெடுப்பது உன் அறிவுத்திறன்."},
        {45, "தமிழ் என்ற சொல்லே இனிமை; அதை நிரலாக்கும் போது இன்னும் பெருமை."},
        {47, "தமிழின் வீச்சு எல்லை இல்லாதது, உன் இலக்கும் அப்படியே இருக்கட்டும்."},
        {49, "\"உள்ளுவதெல்லாம் உயர்வுள்ளல்\" - எப்போதும் உயரிய இலக்கை நோக்கிப் பயணி."},
        {50, "தமிழ் வெல்லும், தமிழன் வெல்வான்; தொழில்நுட்பத் துறையிலும் தமிழ் ஆளும்!"},
    };
    for (const auto& [number, text] : expected) {
        EXPECT_EQ(sayings.at(number - 1), text) << number;
    }
}

TEST(Sayings, AreDrawnAnewFromTheWholeList) {
    const auto& sayings = ErrorHandler::பொன்மொழிகள்();
    std::set<std::string> drawn;
    for (int draw = 0; draw < 5000; ++draw) {
        drawn.insert(ErrorHandler::பொன்மொழி_பெறு());
    }
    // That one of the fifty stays away in 5000 even draws has a chance below 1 in 10^42.
    EXPECT_EQ(drawn, std::set<std::string>(sayings.begin(), sayings.end()));
}

TEST(VisualWidth, CountsOneColumnForEachSequenceAndTwoForFourBytes) {
    EXPECT_EQ(ErrorHandler::visualWidth(""), 0);
    EXPECT_EQ(ErrorHandler::visualWidth("abc 1"), 5);
    EXPECT_EQ(ErrorHandler::visualWidth("éab"), 3);
    EXPECT_EQ(ErrorHandler::visualWidth("அab"), 3);
    EXPECT_EQ(ErrorHandler::visualWidth("🚨ab"), 4);
    EXPECT_EQ(ErrorHandler::visualWidth("தமிழ்"), 5); // vowel sign and virama count as well
    EXPECT_EQ(ErrorHandler::visualWidth("a அ 🚨é▲"), 8);
}

TEST(VisualWidth, StepsOverBytesThatAreNotUtf8) {
    // A stray continuation byte is read as the lead of two.
    EXPECT_EQ(ErrorHandler::visualWidth(std::string("\x80") + "ab"), 2);
    EXPECT_EQ(ErrorHandler::visualWidth("a\xf0"), 3);
}

std::string messageOf(const std::string& code, const std::string& detail) {
    try {
        throw_static_error(code, detail);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

TEST(ThrowStaticError, JoinsDescriptionAndRemedy) {
    const auto& entry = பிழை_அகராதி.at("பொழி-331");
    EXPECT_EQ(messageOf("பொழி-331", ""), "பொழி-331: " + entry.விளக்கம் + " - " + entry.தீர்வு);
}

TEST(ThrowStaticError, KeepsTheBlankAtTheEndOfADescription) {
    EXPECT_EQ(messageOf("பொழி-301", ""), "பொழி-301: பூஜ்ஜியத்தால் வகுக்க முயற்சி  - "
                                         "மச்சி, ஒரு எண்ணை '0' ஆல வகுக்க முடியாது, வகுக்கும் எண்ணை மாத்து!");
}

TEST(ThrowStaticError, AppendsTheDetail) {
    EXPECT_EQ(messageOf("பொழி-399", "Unknown call expression"),
              "பொழி-399: அறியப்படாத பிழை (Unknown Error). - ஏதோ ஒன்னு தப்பா ஆகிடுச்சு மச்சி, கோடை ஒருவாட்டி ஆழமா "
              "செக் பண்ணு! (Unknown call expression)");
}

TEST(ThrowStaticError, NamesACodeThatTheCatalogueDoesNotHold) {
    EXPECT_EQ(messageOf("பொழி-116", ""), "அறியப்படாத பிழைக் குறியீடு: பொழி-116");
    EXPECT_EQ(messageOf("பொழி-116", "detail"), "அறியப்படாத பிழைக் குறியீடு: பொழி-116");
}

} // namespace

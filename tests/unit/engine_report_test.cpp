#include "report/box.h"
#include "report/catalogue.h"
#include "report/catalogue_rows.h"
#include "report/width.h"

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::report;
using testing::HasSubstr;
using testing::Not;

/// The box without its colours.
std::string plainBox(const FaultText& fault) {
    return std::regex_replace(faultBox(fault), std::regex("\033\\[[0-9;]*m"), "");
}

FaultText someFault() {
    FaultText fault;
    fault.code = "பொழி-642";
    fault.category = "இயக்கநேரப் பிழை";
    fault.message = "பட்டியலில் 9 என்ற இடம் இல்லை.";
    fault.remedy = "வேறு இடம் கொடு!";
    fault.excerpt = {"பாடம்.பொழில்", 7, "கிளி = ப[9]", std::string("கிளி = ").size(), std::string("கிளி = ப[9]").size()};
    return fault;
}

TEST(Width, CountsColumnsOfATerminal) {
    EXPECT_EQ(width(""), 0U);
    EXPECT_EQ(width("abc 1"), 5U);
    EXPECT_EQ(width("அகம்"), 3U) << "the dot stands above its letter";
    EXPECT_EQ(width("கா"), 2U) << "the sign stands beside its letter";
    EXPECT_EQ(width("கீ"), 1U) << "the sign stands above its letter";
    EXPECT_EQ(width("e\u0301"), 1U);
    EXPECT_EQ(width("🚨"), 2U);
    EXPECT_EQ(width("👩‍👩‍👧"), 2U) << "joined to one letter";
    EXPECT_EQ(width("\xFF\xFE"), 2U) << "broken bytes are shown as a sign each";
}

TEST(Catalogue, IsInOrderAndInItsBlocks) {
    const Catalogue all = catalogue();
    constexpr int BOUNDS[][2] = {{501, 549}, {551, 599}, {601, 623}, {624, 639}, {640, 699}};
    int previous = 0;
    for (std::size_t block = 0; block < std::size(all.blocks); ++block) {
        for (const Entry& entry : all.blocks[block]) {
            EXPECT_GT(entry.number, previous);
            EXPECT_GE(entry.number, BOUNDS[block][0]);
            EXPECT_LE(entry.number, BOUNDS[block][1]);
            previous = entry.number;
        }
    }
    EXPECT_GT(previous, 0);
}

/// The numbers of the holes that a text has.
std::set<std::string> holesOf(const std::string& text) {
    static const std::regex hole("\\{[^}]*\\}");
    std::set<std::string> holes;
    for (std::sregex_iterator one(text.begin(), text.end(), hole), end; one != end; ++one) {
        holes.insert(one->str());
    }
    return holes;
}

TEST(Catalogue, SaysSomethingEverywhere) {
    for (const EntryRows& rows : catalogue().blocks) {
        for (const Entry& entry : rows) {
            EXPECT_STRNE(entry.category, "") << entry.number;
            EXPECT_STRNE(entry.message, "") << entry.number;
            EXPECT_STRNE(entry.remedy, "") << entry.number;
            const std::set<std::string> known = holesOf(entry.message);
            for (const std::string& hole : known) {
                EXPECT_TRUE(std::regex_match(hole, std::regex("\\{[1-9]\\}"))) << entry.number << hole;
            }
            int number = 1;
            for (const std::string& hole : known) {
                EXPECT_EQ(hole, "{" + std::to_string(number++) + "}") << entry.number << " leaves a hole out";
            }
        }
    }
}

TEST(Catalogue, FindsRows) {
    ASSERT_NE(findEntry(642), nullptr);
    EXPECT_EQ(findEntry(642)->number, 642);
    EXPECT_EQ(findEntry(550), nullptr);
    EXPECT_NE(findEntry(501), nullptr);
    EXPECT_EQ(findRunningEntry(501), nullptr);
    EXPECT_EQ(codeOf(642), "பொழி-642");
}

/// The numbers that a header of the engine names.
std::vector<int> numbersIn(const std::string& header) {
    std::ifstream file(std::string(POZHIL_SOURCE_DIRECTORY) + "/src/engine/" + header);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    static const std::regex number("= ([0-9]+)");
    std::vector<int> numbers;
    for (std::sregex_iterator one(text.begin(), text.end(), number), end; one != end; ++one) {
        numbers.push_back(std::stoi((*one)[1]));
    }
    return numbers;
}

TEST(Catalogue, HasARowForEveryFaultOfTheEngine) {
    for (const char* const header : {"value_faults.h", "running_faults.h"}) {
        const std::vector<int> numbers = numbersIn(header);
        EXPECT_GT(numbers.size(), 10U) << header;
        for (const int number : numbers) {
            ASSERT_NE(findEntry(number), nullptr) << number;
            EXPECT_EQ(findRunningEntry(number), findEntry(number)) << number;
        }
    }
}

TEST(Catalogue, FillsHoles) {
    EXPECT_EQ(filled("{1} மற்றும் {2}, {1}", {"அ", "ஆ"}), "அ மற்றும் ஆ, அ");
    EXPECT_EQ(filled("{1}", {"{2}", "ஆ"}), "{2}") << "what the user wrote has no holes";
    EXPECT_EQ(filled("{3}.", {"அ"}), ".");
    EXPECT_EQ(filled("{} {0} {12} {", {"அ"}), "{} {0} {12} {");
}

TEST(Box, IsShownWithoutColoursToo) {
    FaultText fault = someFault();
    EXPECT_EQ(plainFaultBox(fault), plainBox(fault));
    fault.message = "\033[ மணம் \033[9 \033[31mம";
    EXPECT_THAT(plainFaultBox(fault), HasSubstr("மச்சி, \033[ மணம் \033[9 ம\n"))
        << "what only begins like a colour stays";
}

TEST(Box, ShowsTheWholeFault) {
    EXPECT_EQ(plainBox(someFault()), R"(
------------------------------------------------------------
  🚨 [ பொழி-642 ] :: இயக்கநேரப் பிழை
------------------------------------------------------------
  📂 கோப்பு  : பாடம்.பொழில்
  📍 இடம்    : வரி 7
  ------------------------------------------------------------
  🔍 பிழை கண்டறியப்பட்ட பகுதி:
    07 |  கிளி = ப[9]
       |         ▲▲▲▲
       ╰── மச்சி, பட்டியலில் 9 என்ற இடம் இல்லை.
  ------------------------------------------------------------
  💡 சரி செய்யும் முறை:
     வேறு இடம் கொடு!
  ------------------------------------------------------------

)");
}

TEST(Box, UnderlinesLettersNotBytes) {
    FaultText fault = someFault();
    fault.excerpt.begin = 0;
    fault.excerpt.end = std::string("கிளி").size();
    EXPECT_THAT(plainBox(fault), HasSubstr("|  கிளி = ப[9]\n       |  ▲▲▲▲\n"));
}

TEST(Box, WithoutTheLineTellsFileAndNumber) {
    FaultText fault = someFault();
    fault.excerpt.line = 1234;
    fault.excerpt.isHidden = true;
    const std::string box = plainBox(fault);
    EXPECT_THAT(box, HasSubstr("பாடம்.பொழில்\n"));
    EXPECT_THAT(box, HasSubstr("வரி 1234\n"));
    EXPECT_THAT(box, HasSubstr("\n         ╰── மச்சி, "));
    EXPECT_THAT(box, Not(HasSubstr("🔍")));
    EXPECT_THAT(box, Not(HasSubstr("|")));
}

TEST(Box, AlignsLongLineNumbers) {
    FaultText fault = someFault();
    fault.excerpt.line = 1234;
    EXPECT_THAT(plainBox(fault), HasSubstr("    1234 |  கிளி = ப[9]\n"
                                           "         |         ▲▲▲▲\n"
                                           "         ╰── மச்சி, "));
}

TEST(Box, TabsKeepTheMarksInPlace) {
    FaultText fault = someFault();
    fault.excerpt.lineText = "\tஅ[9]\r\n";
    fault.excerpt.begin = 1;
    fault.excerpt.end = 1 + std::string("அ[9]").size();
    EXPECT_THAT(plainBox(fault), HasSubstr("|      அ[9]\n       |      ▲▲▲▲\n"));
}

TEST(Box, CommandsNoTerminal) {
    FaultText fault = someFault();
    fault.excerpt.lineText = "அ\033[2Jஆ\x7F";
    const std::string box = faultBox(fault);
    EXPECT_THAT(box, Not(HasSubstr("\033[2J")));
    EXPECT_THAT(box, HasSubstr("அ [2Jஆ "));
}

TEST(Box, RangesBeyondTheLineEndWithIt) {
    FaultText fault = someFault();
    fault.excerpt.begin = 1000;
    fault.excerpt.end = 2000;
    EXPECT_THAT(plainBox(fault), Not(HasSubstr("▲")));
    fault.excerpt.begin = fault.excerpt.lineText.size() - 1;
    EXPECT_THAT(plainBox(fault), HasSubstr("|            ▲\n"));
}

TEST(Box, ShowsOfALongLineWhatMatters) {
    FaultText fault = someFault();
    const std::string blanks(5000, 'x');
    fault.excerpt.lineText = blanks + "[9]" + blanks;
    fault.excerpt.begin = blanks.size();
    fault.excerpt.end = blanks.size() + 3;
    const std::string part(60, 'x');
    EXPECT_THAT(plainBox(fault),
                HasSubstr("07 |  …" + part + "[9]" + part + "…\n       |  " + std::string(61, ' ') + "▲▲▲\n"));
}

TEST(Box, LeavesOutWhatNobodyKnows) {
    FaultText fault = someFault();
    fault.excerpt = {};
    const std::string box = plainBox(fault);
    EXPECT_THAT(box, Not(HasSubstr("கோப்பு")));
    EXPECT_THAT(box, Not(HasSubstr("வரி ")));
    EXPECT_THAT(box, HasSubstr("       ╰── மச்சி, பட்டியலில்"));
}

TEST(Box, SuggestsBeforeTheRemedy) {
    FaultText fault = someFault();
    fault.suggestion = "'பெயர்' என்று எழுத நினைத்தாயா?";
    EXPECT_THAT(plainBox(fault),
                HasSubstr("சரி செய்யும் முறை:\n     'பெயர்' என்று எழுத நினைத்தாயா?\n     வேறு இடம் கொடு!\n"));
}

TEST(Box, IndentsEveryLineOfTheMessage) {
    FaultText fault = someFault();
    fault.message = "ஒன்று\nஇரண்டு";
    EXPECT_THAT(plainBox(fault), HasSubstr("       ╰── மச்சி, ஒன்று\n           இரண்டு\n"));
}

TEST(Box, TellsTheWay) {
    FaultText fault = someFault();
    fault.way = {{"உள்ளே", "பாகம்.பொழில்", 3}, {"வெளியே", "பாடம்.பொழில்", 12}, {"எங்கோ", "", 0}};
    EXPECT_THAT(plainBox(fault), HasSubstr("  🧭 இங்கே வந்த வழி:\n"
                                           "     'உள்ளே' அழைக்கப்பட்ட இடம்: பாகம்.பொழில், வரி 3\n"
                                           "     'வெளியே' அழைக்கப்பட்ட இடம்: பாடம்.பொழில், வரி 12\n"
                                           "     'எங்கோ' அழைக்கப்பட்ட இடம்: தெரியவில்லை\n"));
}

TEST(Box, TellsCallsThatRepeatOnce) {
    FaultText fault = someFault();
    fault.way = {{"அ", "கோ", 1}, {"அ", "கோ", 1}, {"அ", "கோ", 2}, {"ஆ", "கோ", 2}, {"ஆ", "கோ", 2}, {"ஆ", "கோ", 2}};
    EXPECT_THAT(plainBox(fault), HasSubstr("     'அ' அழைக்கப்பட்ட இடம்: கோ, வரி 1 (2 முறை)\n"
                                           "     'அ' அழைக்கப்பட்ட இடம்: கோ, வரி 2\n"
                                           "     'ஆ' அழைக்கப்பட்ட இடம்: கோ, வரி 2 (3 முறை)\n"));
}

TEST(Box, SumsUpTheMiddleOfALongWay) {
    FaultText fault = someFault();
    fault.way = {{"உள்ளே", "அ", 1}, {"வெளியே", "அ", 2}};
    fault.callsLeftOut = 1234567;
    EXPECT_THAT(plainBox(fault), HasSubstr("வரி 1\n     … நடுவில் இன்னும் 1,234,567 அழைப்புகள் …\n     'வெளியே'"));
}

} // namespace

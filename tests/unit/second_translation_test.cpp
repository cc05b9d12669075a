#include "driver/second_translation.h"

#include "support/working_folder.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <gmock/gmock.h>

using namespace pozhil;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string MARKER = "ஃ பொழில் 2\n";
const std::string PATH = "அ.பொழில்";

SecondTranslation translated(const std::string& source) {
    return translateSecondEdition(makeSource(PATH, MARKER + source), {});
}

/// A page of that name, whose body is \p body and whose logic is \p logic, lines of eight blanks.
std::string page(const std::string& name, const std::string& body = "உரை(\"அ\")", const std::string& logic = "") {
    return "வலைதளம் தளம்(\n    தலைமை(பக்கம்: \"" + name + "\")\n    குமரி(" + body + ")\n    வரையறை(\n" + logic +
           "    )\n)\n";
}

// What the driver takes for an application.

TEST(SecondTranslation, HasAnApplicationExactlyIfItHasPages) {
    for (const std::string& source : {page("அ"), "அச்சிடு(1)\n" + page("அ"), page("அ") + page("ஆ") + "அச்சிடு(1)\n"}) {
        const SecondTranslation translation = translated(source);
        EXPECT_THAT(translation.faults, IsEmpty());
        EXPECT_TRUE(translation.application.has_value()) << source;
        EXPECT_FALSE(translation.output.text.empty());
    }
    // Words of applications are names elsewhere.
    for (const std::string source :
         {"", "அச்சிடு(1)\n", "ஃ வலைதளம்\n", "தலைமை = 1\nஅச்சிடு(தலைமை)\n", "அச்சிடு(\"வலைதளம்\")\n"}) {
        const SecondTranslation translation = translated(source);
        EXPECT_THAT(translation.faults, IsEmpty()) << source;
        EXPECT_FALSE(translation.application.has_value()) << source;
    }
}

TEST(SecondTranslation, HasNoApplicationBesideFaults) {
    for (const std::string& source : {page("அ", "உரைய()"), page("அ", "உரை(இல்லாதது)"), page("அ") + "அச்சிடு(\n"}) {
        const SecondTranslation translation = translated(source);
        EXPECT_FALSE(translation.faults.empty()) << source;
        EXPECT_FALSE(translation.application.has_value()) << source;
        EXPECT_EQ(translation.output.text, "") << source;
    }
}

TEST(SecondTranslation, AsksForWhatThePagesAskFor) {
    const SecondTranslation translation =
        translated("வலைதளம் தளம்(\n    தலைமை(இணைய_தலைப்பு: \"கடை\", சின்னம்: \"a.png\", பின்னணிகாணொளி: \"b.mp4\")\n"
                   "    குமரி(படம்(பாதை: \"c.png\"))\n    வரையறை()\n)\n" +
                   page("இரண்டு", "படம்(பாதை: \"d.png\")"));
    ASSERT_TRUE(translation.application.has_value());
    EXPECT_EQ(translation.application->title, "கடை");
    EXPECT_EQ(translation.application->icon, "a.png");
    EXPECT_EQ(translation.application->video, "b.mp4");
    EXPECT_EQ(translation.application->pages.size(), 2U);
    EXPECT_THAT(translation.application->files, ElementsAre("a.png", "c.png", "d.png"));
}

class TranslationWithImports : public test::WorkingFolder {};

TEST_F(TranslationWithImports, HasThePagesOfItsImports) {
    write("ஆ.பொழில்", page("ஆ", "படம்(பாதை: \"b.png\")"));
    for (const std::string& own : {std::string(), page("அ")}) {
        const SecondTranslation translation = translated("நூஇறக்கி \"ஆ\"\n" + own);
        ASSERT_TRUE(translation.application.has_value());
        EXPECT_EQ(translation.application->pages.size(), own.empty() ? 1U : 2U);
        EXPECT_THAT(translation.application->files, ElementsAre("b.png"));
    }
}

// Where lines of the output text come from.

std::size_t lineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// What the source has at the place of the first line of the output text that holds \p piece; "-" without a place.
std::string originOf(const SecondTranslation& translation, const std::string& piece) {
    const SecondText& output = translation.output;
    const std::size_t at = output.text.find(piece, output.runtimeLength);
    if (at == std::string::npos) {
        return "not found";
    }
    const resolved::Place& place = output.origins.at(lineCount(output.text.substr(0, at)));
    const std::string& text = translation.sources.at(place.file)->text;
    const bool isPlace = place.range.begin < place.range.end && place.range.end <= text.size();
    return isPlace ? text.substr(place.range.begin, place.range.end - place.range.begin) : "-";
}

TEST(OriginsOfAnApplication, AreOneForEachLine) {
    for (const std::string& source :
         {page("அ"), page("அ") + page("ஆ", "நெடுவரிசை(உரை(\"அ\"), உரை(\"ஆ\"))"),
          page("அ", "உரை(தொகை)", "        தொகை = 1\n        செயல் f():\n            தொகை = 2\n")}) {
        const SecondTranslation translation = translated(source);
        ASSERT_THAT(translation.faults, IsEmpty());
        EXPECT_EQ(translation.output.origins.size(), lineCount(translation.output.text));
        EXPECT_EQ(translation.output.text.back(), '\n');
    }
}

TEST(OriginsOfAnApplication, LieInTheSource) {
    const SecondTranslation translation = translated(page("அ", "உரை(\"அ\")", "        தொகை = 1\n"));
    for (const resolved::Place& place : translation.output.origins) {
        ASSERT_LT(place.file, translation.sources.size());
        EXPECT_LE(place.range.begin, place.range.end);
        EXPECT_LE(place.range.end, translation.sources[place.file]->text.size());
    }
}

TEST(OriginsOfAnApplication, AreTheStatementsOfItsLogic) {
    const SecondTranslation translation = translated(
        page("அ", "உரை(\"அ\")", "        அச்சிடு(7)\n        செயல் f():\n            அச்சிடு(8)\n        f()\n"));
    EXPECT_EQ(originOf(translation, "print({7LL});"), "அச்சிடு(7)");
    EXPECT_EQ(originOf(translation, "print({8LL});"), "அச்சிடு(8)");
    EXPECT_EQ(originOf(translation, "int main()").substr(0, std::string("வலைதளம்").size()), "வலைதளம்");
}

TEST(OriginsOfAnApplication, AreItsPagesFromTheFirstLineThatIsWrittenForThem) {
    const SecondTranslation translation = translated(page("அ", "பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => அச்சிடு(7))"));
    const std::string& text = translation.output.text;
    const std::size_t frame = text.find("render_frame", translation.output.runtimeLength);
    ASSERT_NE(frame, std::string::npos);
    for (std::size_t line = lineCount(text.substr(0, frame)); line < translation.output.origins.size(); ++line) {
        const ByteRange& range = translation.output.origins[line].range;
        EXPECT_LT(range.begin, range.end) << "line " << line + 1;
    }
}

TEST(OriginsOfAnApplication, AreNothingForTheRuntime) {
    const SecondTranslation translation = translated(page("அ"));
    const std::size_t runtimeLines = lineCount(translation.output.text.substr(0, translation.output.runtimeLength));
    ASSERT_GT(runtimeLines, 100U);
    ASSERT_EQ(translation.output.text[translation.output.runtimeLength - 1], '\n');
    for (std::size_t line = 0; line < runtimeLines; ++line) {
        const ByteRange& range = translation.output.origins[line].range;
        EXPECT_EQ(range.begin, range.end) << "line " << line + 1;
    }
}

// What lies at the head of all versions.

TEST(RuntimeOfAnApplication, IsTheSameWhateverThePagesAre) {
    const auto runtimeOf = [](const SecondTranslation& translation) {
        return translation.output.text.substr(0, translation.output.runtimeLength);
    };
    const SecondTranslation one = translated(page("அ"));
    const SecondTranslation other = translated(page("அ", "பொத்தான்(உரை: தொகை, அழுத்தினால்: () => f())",
                                                    "        தொகை = 1\n        செயல் f():\n            தொகை = 2\n") +
                                               "கட்டமைப்பு பை:\n    எடை = 5\nஅச்சிடு(பை().எடை)\n" + page("ஆ"));
    ASSERT_THAT(other.faults, IsEmpty());
    EXPECT_EQ(runtimeOf(one), runtimeOf(other));
    EXPECT_NE(runtimeOf(one), runtimeOf(translated(page("ஆ")))) << "the page to begin with is part of it";
}

TEST(RuntimeOfAnApplication, IsNothingInAConsoleProgram) {
    EXPECT_EQ(translated("அச்சிடு(1)\n").output.runtimeLength, 0U);
}

} // namespace

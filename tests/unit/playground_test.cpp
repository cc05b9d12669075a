#include "playground/playground.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

using pozhil::playground::Playground;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* NO_FINDINGS = R"("findings": [])";

TEST(Playground, TellsFaultsOfBothEditionsWithTheirPlaces) {
    const Playground playground;
    EXPECT_THAT(playground.check("அ = 1\nஅச்சிடு(அ கூட்டு)\n"),
                AllOf(HasSubstr(R"("kind": "fault")"), HasSubstr(R"("begin": {"line": 2)")));
    // "க" has 3 bytes and one unit of UTF-16, 😀 has 4 bytes and two.
    EXPECT_THAT(playground.check("ஃ பொழில் 2\nஅச்சிடு(\"க😀\", காணோம்)\n"),
                AllOf(HasSubstr(R"("code": "பொழி-)"), HasSubstr(R"("begin": {"line": 2, "byte": 34, "utf16": 16})")));
}

TEST(Playground, TellsHints) {
    EXPECT_THAT(Playground().check("ஃ பொழில் 2\nமொத்தம் = 0\nமெத்தம் = 1\nஅச்சிடு(மொத்தம்)\n"),
                AllOf(HasSubstr(R"("kind": "hint")"), HasSubstr(R"("begin": {"line": 3)")));
}

TEST(Playground, FindsNothingWrongWithAGoodProgram) {
    EXPECT_THAT(Playground().check("அச்சிடு(\"வணக்கம்\")\n"), HasSubstr(NO_FINDINGS));
    EXPECT_THAT(Playground().check(""), HasSubstr(NO_FINDINGS));
}

TEST(Playground, KnowsTheModulesThatItWasGivenInTheTextOfEachEdition) {
    Playground playground;
    playground.addModule("எண்கள்.பொழில்", "செயல் பழையது():\n    திரும்பு 1\n");
    playground.addModule("இரண்டாம்_பதிப்பு/எண்கள்.பொழில்", "ஃ பொழில் 2\nசெயல் புதியது():\n    திரும்பு 1\n");
    EXPECT_THAT(playground.check("நூஇறக்கி \"எண்கள்\"\nஅச்சிடு(பழையது())\n"), HasSubstr(NO_FINDINGS));
    EXPECT_THAT(playground.check("ஃ பொழில் 2\nநூஇறக்கி \"எண்கள்\"\nஅச்சிடு(புதியது())\n"), HasSubstr(NO_FINDINGS));
    EXPECT_THAT(playground.check("ஃ பொழில் 2\nநூஇறக்கி \"எண்கள்\"\nஅச்சிடு(பழையது())\n"), Not(HasSubstr(NO_FINDINGS)));
}

TEST(Playground, ReadsNoFiles) {
    std::ofstream("பக்கத்தில்.பொழில்") << "செயல் பக்கத்தில்_உள்ளது():\n    திரும்பு 1\n";
    for (const char* edition : {"", "ஃ பொழில் 2\n"}) {
        EXPECT_THAT(Playground().check(edition + std::string("நூஇறக்கி \"பக்கத்தில்\"\n")), Not(HasSubstr(NO_FINDINGS)));
    }
    std::remove("பக்கத்தில்.பொழில்");
}

TEST(Playground, FormatsAndSaysWhatItLeaves) {
    const Playground playground;
    EXPECT_EQ(playground.format("அச்சிடு( 1 )"), R"({"result": "formatted", "text": "அச்சிடு(1)\u000a"})");
    EXPECT_EQ(playground.format("அச்சிடு( 1"), R"({"result": "faulty", "text": "அச்சிடு( 1"})");
}

TEST(Playground, ExplainsAFault) {
    EXPECT_THAT(Playground::explain("பொழி-304"),
                AllOf(HasSubstr(R"("code": "பொழி-304")"), HasSubstr(R"("cause": {"ta": )"), HasSubstr(R"("mend": ")"),
                      HasSubstr(R"("wrong": ")"), HasSubstr(R"("right": ")")));
    EXPECT_EQ(Playground::explain("பொழி-9999"), "null");
    EXPECT_EQ(Playground::explain(""), "null");
}

TEST(Playground, TellsTheEditionByTheFirstLine) {
    EXPECT_EQ(Playground::editionOf("ஃ பொழில் 2\n"), 2);
    EXPECT_EQ(Playground::editionOf("\xEF\xBB\xBFஃ பொழில் ௨\r\n"), 2);
    EXPECT_EQ(Playground::editionOf("\nஃ பொழில் 2\n"), 1);
    EXPECT_EQ(Playground::editionOf(""), 1);
}

TEST(Playground, AnswersInUtf8WhateverTheBytes) {
    const std::string bytes("ஃ பொழில் 2\n\xFF\xFE\0\xED\xA0\x80", 32);
    for (const std::string& answer : {Playground().check(bytes), Playground().format(bytes)}) {
        EXPECT_EQ(answer.find('\xFF'), std::string::npos);
        EXPECT_EQ(answer.find("\xED\xA0"), std::string::npos);
    }
}

} // namespace

#include "generator/second/literals.h"
#include "generator/second/names.h"
#include "support/second_writing.h"

#include <gmock/gmock.h>

#include <limits>

namespace pozhil::test {
namespace {

using testing::HasSubstr;
namespace writer = resolved::writer;

TEST(SecondWriterLiterals, TextsKeepEveryByte) {
    EXPECT_EQ(writer::textLiteral("அ\n\"\\"), "\"அ\\n\\\"\\\\\"");
    // What follows an escaped byte is no part of it.
    EXPECT_EQ(writer::textLiteral(std::string("\0"
                                              "1",
                                              2)),
              "\"\\0001\"");
    EXPECT_EQ(writer::textLiteral("?"
                                  "?=?"
                                  "?"),
              "\"?\\?=?\\?\"");
    EXPECT_EQ(writer::textLiteral("\xE0\xAE"), "\"\\340\\256\"");
    EXPECT_EQ(writer::textLiteral("\xFF"), "\"\\377\"");
    // A mark that turns the direction of what is shown.
    EXPECT_EQ(writer::textLiteral("\xE2\x80\xAE"), "\"\\342\\200\\256\"");
    EXPECT_EQ(writer::textLiteral(""), "\"\"");
}

TEST(SecondWriterLiterals, LongTextsAreSeveralLiterals) {
    const std::string literal = writer::textLiteral(std::string(1000, 'a'));
    EXPECT_THAT(literal, HasSubstr("a\"\n    \"a"));
}

TEST(SecondWriterLiterals, NumbersReadBackAsTheyAre) {
    EXPECT_EQ(writer::wholeLiteral(std::numeric_limits<std::int64_t>::min()), "(-9223372036854775807LL - 1)");
    EXPECT_EQ(writer::decimalLiteral(2.0), "2.0");
    EXPECT_EQ(writer::decimalLiteral(0.1), "0.1");
    EXPECT_EQ(writer::decimalLiteral(1e300), "1e+300");
    EXPECT_EQ(writer::decimalLiteral(std::numeric_limits<double>::infinity()), "__builtin_inf()");
}

TEST(SecondWriterLiterals, CommentsEndWithTheirLine) {
    EXPECT_EQ(writer::lineComment("அ = \"\\"), "// அ = \"\\ ·");
    EXPECT_EQ(writer::lineComment("அ\x01\xFF"), "// அ··");
}

TEST(SecondWriterNames, WhatCxxDoesNotTakeIsWrittenInNumbers) {
    EXPECT_EQ(writer::plainName("மலர்_1"), "மலர்_1");
    EXPECT_EQ(writer::plainName("é"), "xC3A9");
}

TEST(SecondWriterNames, OverlappingNamesGetNumbers) {
    const WrittenProgram program("செயல் f():\n    அ = () => 1\n    ஆ = () => 2\n    திரும்பு [அ, ஆ]\nf()\n");
    EXPECT_THAT(program.text(), HasSubstr("f_வினை("));
    EXPECT_THAT(program.text(), HasSubstr("f_வினை_2("));
}

TEST(SecondWriterProgram, LinesAreToldToTheirStatements) {
    const WrittenProgram program("அச்சிடு(1)\n\nஎனில் மெய்:\n    அச்சிடு(2)\n");
    EXPECT_EQ(program.sourceLine(program.lineWith("print({1LL});")), 2U);
    EXPECT_EQ(program.sourceLine(program.lineWith("if (true) {")), 4U);
    EXPECT_EQ(program.sourceLine(program.lineWith("print({2LL});")), 5U);
}

TEST(SecondWriterProgram, StatementsStandBelowTheirSource) {
    EXPECT_THAT(
        WrittenProgram("எனில் மெய்:\n    அச்சிடு(2)\n").text(),
        HasSubstr("    // 2: எனில் மெய்:\n    if (true) {\n        // 3: அச்சிடு(2)\n        print({2LL});\n    }\n"));
}

TEST(SecondWriterProgram, StatementsThatRunOnceAndLoopsAreDifferentFunctions) {
    const std::string text = WrittenProgram("அ = 1\nசுற்று அ சிறிது 9:\n    அ கூட்டிசேர் 1\nஅச்சிடு(அ)\n").text();
    EXPECT_THAT(text, HasSubstr("[[gnu::cold]] static void start_1() {\n"));
    EXPECT_THAT(text, HasSubstr("\nstatic void start_1_2() {\n"));
    EXPECT_THAT(text, HasSubstr("[[gnu::cold]] static void start_1_3() {\n"));
    EXPECT_THAT(text, HasSubstr("    start_1();\n    start_1_2();\n    start_1_3();\n"));
}

TEST(SecondWriterProgram, ManyStatementsAreSeveralFunctions) {
    std::string source;
    for (int line = 0; line < 250; ++line) {
        source += "அச்சிடு(1)\n";
    }
    const std::string text = WrittenProgram(source).text();
    EXPECT_THAT(text, HasSubstr("start_1_3();"));
    EXPECT_THAT(text, testing::Not(HasSubstr("start_1_4();")));
}

TEST(SecondWriterProgram, StructuresTellTheirMembers) {
    const std::string text = WrittenProgram("கட்டமைப்பு அ:\n"
                                            "    ரகசிய ப = 1\n"
                                            "    செயல் பேசு(தான்):\n"
                                            "        திரும்பு தான்.ப\n"
                                            "அச்சிடு(அ().பேசு())\n")
                                 .text();
    EXPECT_THAT(text, HasSubstr("static const FieldInfo fields_அ[] = {\n    {m_ப, true},\n};\n"));
    EXPECT_THAT(text, HasSubstr("    {m_பேசு, &info_அ_பேசு, false},\n"));
    EXPECT_THAT(text, HasSubstr("field(self, m_ப, \"3:20-23\", &s_அ) = 1LL;"));
}

} // namespace
} // namespace pozhil::test

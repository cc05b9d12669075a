#include "support/scanning_tables.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using pozhil::test::expectFaults;
using pozhil::test::expectTokens;
using pozhil::test::scan;
using pozhil::test::tokens;

TEST(End, IsOneTokenWithoutValue) {
    expectTokens({
        {"", "1: END_OF_FILE"},
        {"அ", "1: IDENTIFIER(அ) END_OF_FILE"},
        {"அ\n", "1: IDENTIFIER(அ) NEWLINE(\\n)\n2: END_OF_FILE"},
        {"\n\n", "3: END_OF_FILE"},
    });
}

TEST(End, ClosesOpenIndentations) {
    expectTokens({
        {"அ\n    ஆ", "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
                     "2: INDENT(4) IDENTIFIER(ஆ) DEDENT(0) END_OF_FILE"},
        {"அ\n  ஆ\n    இ\n", "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
                            "2: INDENT(2) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                            "3: INDENT(4) IDENTIFIER(இ) NEWLINE(\\n)\n"
                            "4: DEDENT(0) DEDENT(0) END_OF_FILE"},
    });
}

TEST(End, BehindBlanksOrACommentStandsBeforeTheClosingDedents) {
    expectTokens({
        {"அ ", "1: IDENTIFIER(அ) END_OF_FILE END_OF_FILE"},
        {"அ ஃ குறிப்பு", "1: IDENTIFIER(அ) END_OF_FILE END_OF_FILE"},
        {"    அ\t", "1: INDENT(4) IDENTIFIER(அ) END_OF_FILE DEDENT(0) END_OF_FILE"},
        {"ஃஃ குறிப்பு ஃஃ", "1: END_OF_FILE END_OF_FILE"},
    });
}

TEST(End, BehindBlanksOnALineOfTheirOwnFollowsTheirIndentation) {
    expectTokens({
        {"   ", "1: INDENT(3) END_OF_FILE DEDENT(0) END_OF_FILE"},
        {"அ\n  ", "1: IDENTIFIER(அ) NEWLINE(\\n)\n2: INDENT(2) END_OF_FILE DEDENT(0) END_OF_FILE"},
    });
}

TEST(Indentation, TellsItsNewWidth) {
    EXPECT_EQ(tokens("அ\n"
                     "   ஆ\n"
                     "             இ\n"
                     "   ஈ\n"
                     "உ"),
              "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
              "2: INDENT(3) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
              "3: INDENT(13) IDENTIFIER(இ) NEWLINE(\\n)\n"
              "4: DEDENT(3) IDENTIFIER(ஈ) NEWLINE(\\n)\n"
              "5: DEDENT(0) IDENTIFIER(உ) END_OF_FILE");
}

TEST(Indentation, ShrinksByOneTokenForEachBlock) {
    EXPECT_EQ(tokens("அ\n ஆ\n  இ\n   ஈ\n உ\nஊ"), "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
                                                 "2: INDENT(1) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                                                 "3: INDENT(2) IDENTIFIER(இ) NEWLINE(\\n)\n"
                                                 "4: INDENT(3) IDENTIFIER(ஈ) NEWLINE(\\n)\n"
                                                 "5: DEDENT(2) DEDENT(1) IDENTIFIER(உ) NEWLINE(\\n)\n"
                                                 "6: DEDENT(0) IDENTIFIER(ஊ) END_OF_FILE");
}

TEST(Indentation, OfTheFirstLineCounts) {
    expectTokens({{"  அ\nஆ", "1: INDENT(2) IDENTIFIER(அ) NEWLINE(\\n)\n2: DEDENT(0) IDENTIFIER(ஆ) END_OF_FILE"}});
}

TEST(Indentation, ShrinksToTheWidthOfAnOpenBlock) {
    expectFaults({
        {"அ\n    ஆ\n        இ\n      ஈ\n", "பொழி-111 வரி 4"},
        {"அ\n    ஆ\n  இ", "பொழி-111 வரி 3"},
        {"  அ\n ஆ", "பொழி-111 வரி 2"},
        {"அ\n    ஆ\n        இ\n  ஈ", "பொழி-111 வரி 4"},
    });
}

TEST(Indentation, DoesNotMixSpacesAndTabsOnALine) {
    expectFaults({
        {" \tஅ", "பொழி-110 வரி 1"},
        {"அ\n\t ஆ", "பொழி-110 வரி 2"},
        {"அ\n    \tஆ", "பொழி-110 வரி 2"},
        {"\n\t \n", "பொழி-110 வரி 2"},
        {" \t", "பொழி-110 வரி 1"},
        {"\t ஃ குறிப்பு", "பொழி-110 வரி 1"},
        {"அ; \tஆ", "பொழி-110 வரி 1"},
    });
}

TEST(Indentation, MayChangeBetweenSpacesAndTabsFromLineToLine) {
    EXPECT_EQ(tokens("அ\n    ஆ\n\tகஇ\n"), "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
                                          "2: INDENT(4) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                                          "3: IDENTIFIER(இ) NEWLINE(\\n)\n"
                                          "4: DEDENT(0) END_OF_FILE");
    expectTokens({{" அ \tஆ", "1: INDENT(1) IDENTIFIER(அ) IDENTIFIER(ஆ) DEDENT(0) END_OF_FILE"}});
}

// A tab is one byte and measures four, and the scanner goes on where the measure ends.
TEST(Tab, TakesThreeBytesOfTheLineWithIt) {
    expectTokens({
        {"\tகபது", "1: INDENT(4) IDENTIFIER(பது) DEDENT(0) END_OF_FILE"},
        {"\tabcd", "1: INDENT(4) IDENTIFIER(d) DEDENT(0) END_OF_FILE"},
        {"\t\tகபது", "1: INDENT(8) IDENTIFIER(து) DEDENT(0) END_OF_FILE"},
        {"\tஃஅ", "1: INDENT(4) IDENTIFIER(அ) DEDENT(0) END_OF_FILE"},
        {"\tகஃ அ", "1: END_OF_FILE"},
        {"\taஅb", "1: INDENT(4) IDENTIFIER(\x85"
                  "b) DEDENT(0) END_OF_FILE"},
    });
}

TEST(Tab, MakesALineOfOneLetterBlank) {
    expectTokens({{"\tஅ\nஆ", "2: IDENTIFIER(ஆ) END_OF_FILE"}});
}

TEST(Tab, OnALineOfItsOwnTakesTheLineEndWithIt) {
    expectTokens({{"\t\nabஅ", "1: INDENT(4) IDENTIFIER(அ) DEDENT(0) END_OF_FILE"}});
}

TEST(Tab, ThatMeasuresBeyondTheTextIsOutOfRange) {
    for (const char* source : {"\t", "\ta", "\tab", "\t\tக", "அ\n\tab"}) {
        EXPECT_THROW(scan(source), std::out_of_range) << source;
    }
    expectTokens({{"\tabc", "1: INDENT(4) END_OF_FILE DEDENT(0) END_OF_FILE"}});
}

TEST(BlankLines, MakeNoTokensButCount) {
    EXPECT_EQ(tokens("\n    \n    அ\n\n \n            \n    ஆ\n"), "3: INDENT(4) IDENTIFIER(அ) NEWLINE(\\n)\n"
                                                                   "7: IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                                                                   "8: DEDENT(0) END_OF_FILE");
}

TEST(Semicolon, BeginsALineAsALineEndDoes) {
    expectTokens({
        {"அ;ஆ\n", "1: IDENTIFIER(அ) NEWLINE(;) IDENTIFIER(ஆ) NEWLINE(\\n)\n2: END_OF_FILE"},
        {";;", "1: NEWLINE(;) NEWLINE(;) END_OF_FILE"},
        {"அ;\nஆ", "1: IDENTIFIER(அ) NEWLINE(;)\n2: IDENTIFIER(ஆ) END_OF_FILE"},
        {"அ; \nஆ", "1: IDENTIFIER(அ) NEWLINE(;)\n2: IDENTIFIER(ஆ) END_OF_FILE"},
        {"அ; ஃ குறிப்பு\nஆ", "1: IDENTIFIER(அ) NEWLINE(;)\n2: IDENTIFIER(ஆ) END_OF_FILE"},
        {"அ;ஃஃ ஃஃ\n", "1: IDENTIFIER(அ) NEWLINE(;) NEWLINE(\\n)\n2: END_OF_FILE"},
    });
}

TEST(Semicolon, MakesTheBlanksBehindItAnIndentation) {
    expectTokens({
        {"அ; ஆ\nஇ", "1: IDENTIFIER(அ) NEWLINE(;) INDENT(1) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                    "2: DEDENT(0) IDENTIFIER(இ) END_OF_FILE"},
        {"    அ;ஆ", "1: INDENT(4) IDENTIFIER(அ) NEWLINE(;) DEDENT(0) IDENTIFIER(ஆ) END_OF_FILE"},
        {"    அ;    ஆ", "1: INDENT(4) IDENTIFIER(அ) NEWLINE(;) IDENTIFIER(ஆ) DEDENT(0) END_OF_FILE"},
        {"அ;\tகஆ", "1: IDENTIFIER(அ) NEWLINE(;) INDENT(4) IDENTIFIER(ஆ) DEDENT(0) END_OF_FILE"},
        {"அ; ", "1: IDENTIFIER(அ) NEWLINE(;) INDENT(1) END_OF_FILE DEDENT(0) END_OF_FILE"},
    });
    expectFaults({{"    அ; ஆ", "பொழி-111 வரி 1"}});
}

TEST(LineComment, OnALineOfItsOwnMakesNoToken) {
    expectTokens({
        {"ஃ", "1: END_OF_FILE"},
        {"ஃ குறிப்பு", "1: END_OF_FILE"},
        {"ஃ + - \" ' ஜ \u200C\nஅ", "2: IDENTIFIER(அ) END_OF_FILE"},
        {"அ\n    ஃ க\n  ஃ க\n    ஆ\nஃ க\n    இ", "1: IDENTIFIER(அ) NEWLINE(\\n)\n"
                                                 "4: INDENT(4) IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                                                 "6: IDENTIFIER(இ) DEDENT(0) END_OF_FILE"},
    });
}

TEST(LineComment, BehindCodeEndsTheLineNormally) {
    expectTokens({
        {"அ ஃ குறிப்பு\nஆ", "1: IDENTIFIER(அ) NEWLINE(\\n)\n2: IDENTIFIER(ஆ) END_OF_FILE"},
        {"(ஃ) ]\nஅ", "1: LPAREN(() NEWLINE(\\n)\n2: IDENTIFIER(அ) END_OF_FILE"},
        {"1 ஃ ஃஃ\nஅ", "1: NUMBER(1) NEWLINE(\\n)\n2: IDENTIFIER(அ) END_OF_FILE"},
    });
}

TEST(BlockComment, AtALineStartMeasuresNoIndentation) {
    expectTokens({
        {"ஃஃ க ஃஃ\nஅ", "1: NEWLINE(\\n)\n2: IDENTIFIER(அ) END_OF_FILE"},
        {"    ஃஃ க ஃஃ\nஅ", "1: NEWLINE(\\n)\n2: IDENTIFIER(அ) END_OF_FILE"},
        {"    ஃஃ க ஃஃ அ", "1: IDENTIFIER(அ) END_OF_FILE"},
        {"    அ\nஃஃ க ஃஃ ஆ\n    இ", "1: INDENT(4) IDENTIFIER(அ) NEWLINE(\\n)\n"
                                    "2: IDENTIFIER(ஆ) NEWLINE(\\n)\n"
                                    "3: IDENTIFIER(இ) DEDENT(0) END_OF_FILE"},
    });
}

TEST(BlockComment, MayStandBetweenTokens) {
    expectTokens({
        {"அ ஃஃ க ஃஃ= 1", "1: IDENTIFIER(அ) ASSIGN(=) NUMBER(1) END_OF_FILE"},
        {"அ ஃஃக\n\nகஃஃ = ஃஃ\nஃஃ 1\nஆ", "1: IDENTIFIER(அ)\n"
                                       "3: ASSIGN(=)\n"
                                       "4: NUMBER(1) NEWLINE(\\n)\n"
                                       "5: IDENTIFIER(ஆ) END_OF_FILE"},
        {"ஃஃ\n\n    ஃஃ    அ", "3: IDENTIFIER(அ) END_OF_FILE"},
    });
}

TEST(BlockComment, EndsAtTheFirstPair) {
    expectTokens({
        {"ஃஃ ஃ அ ஃ ஃஃ ஆ", "1: IDENTIFIER(ஆ) END_OF_FILE"},
        {"ஃஃ அ ஃஃ ஆ ஃஃ இ ஃஃ", "1: IDENTIFIER(ஆ) END_OF_FILE END_OF_FILE"},
        {"ஃஃஃஃ அ", "1: IDENTIFIER(அ) END_OF_FILE"},
        {"ஃஃஃஃஃ அ", "1: END_OF_FILE END_OF_FILE"}, // the fifth begins a line comment
        {"ஃஃஃ அ ஃஃ ஆ", "1: IDENTIFIER(ஆ) END_OF_FILE"},
    });
}

TEST(BlockComment, MustBeClosed) {
    expectFaults({
        {"ஃஃ", "பொழி-118 வரி 1"},
        {"ஃஃஃ", "பொழி-118 வரி 1"},
        {"அ\nஃஃ க\n\nஃ", "பொழி-118 வரி 2"},
        {"அ = ஃஃ க ஃஃ ஃஃ\n", "பொழி-118 வரி 1"},
    });
}

TEST(Comments, OfAnyNumberNeedNoStack) {
    std::string source;
    for (int count = 0; count < 100000; ++count) {
        source += "ஃஃஃஃ ";
    }
    expectTokens({{source + "அ", "1: IDENTIFIER(அ) END_OF_FILE"}});
}

TEST(LineNumbers, DoNotCountTheLinesInsideAString) {
    EXPECT_EQ(tokens("அ = \"ஆ\n\nஇ\" ; ஈ\nஉ"), "1: IDENTIFIER(அ) ASSIGN(=) STRING(ஆ\n\nஇ) NEWLINE(;)"
                                               " INDENT(1) IDENTIFIER(ஈ) NEWLINE(\\n)\n"
                                               "2: DEDENT(0) IDENTIFIER(உ) END_OF_FILE");
    expectFaults({{"\"\n\n\"\n+", "பொழி-101 வரி 2"}});
}

TEST(Lines, InsideAStringAreNoLineStarts) {
    EXPECT_EQ(tokens("\"\n    \" அ\n    ஃ\nஆ"), "1: STRING(\n    ) IDENTIFIER(அ) NEWLINE(\\n)\n"
                                                "3: IDENTIFIER(ஆ) END_OF_FILE");
}

} // namespace

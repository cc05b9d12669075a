// Kinds of tokens that the grammar names and no source scans to.

#include "support/parsing.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

using Kind = TokenType;
using Tokens = std::vector<Token>;

const Token name = {Kind::IDENTIFIER, "அ", 1};
const Token otherName = {Kind::IDENTIFIER, "ஆ", 1};
const Token number = {Kind::NUMBER, "1", 1};
const Token word = {Kind::KEYWORD, "விடு", 1};
const Token end = {Kind::END_OF_FILE, "", 1};

TEST(ReservedTokens, AssignAsTheOrdinaryOperatorsDo) {
    for (const Kind kind : {Kind::RESERVED_132, Kind::INCREMENT, Kind::DECREMENT, Kind::COMPOUND_ASSIGN}) {
        EXPECT_EQ(treeOfTokens({name, {kind, "op", 1}, number}), "(Expression (Assignment அ op (Number 1)))");
        EXPECT_EQ(treeOfTokens({name, {Kind::DOT, ".", 1}, otherName, {kind, "op", 1}, number}),
                  "(Expression (SetMember அ ஆ (Number 1)))");
    }
    EXPECT_EQ(faultOfTokens({number, {Kind::RESERVED_132, "op", 1}, number}), "பொழி-211 வரி 1");
}

TEST(ReservedTokens, OneOfThemIncrementsAnyTarget) {
    const Token op = {Kind::RESERVED_136, "op", 1};
    EXPECT_EQ(treeOfTokens({name, op}), "(Increment அ op)");
    EXPECT_EQ(treeOfTokens({name, {Kind::DOT, ".", 1}, otherName, op}), "(Increment (Get அ ஆ) op)");
    EXPECT_EQ(treeOfTokens({number, op}), "(Increment (Number 1) op)");
}

TEST(ReservedTokens, TheArrowLeadsToAMemberAsTheDotDoes) {
    EXPECT_EQ(treeOfTokens({name, {Kind::ARROW, "->", 1}, otherName, {Kind::ASSIGN, "=", 1}, number}),
              "(Expression (SetMember அ ஆ (Number 1)))");
    EXPECT_EQ(faultOfTokens({name, {Kind::ARROW, "->", 1}, number}), "பொழி-210 வரி 1");
}

TEST(ReservedTokens, TheGreaterSignMakesAnArrow) {
    EXPECT_EQ(
        treeOfTokens({{Kind::KEYWORD, "அச்சிடு", 1}, name, {Kind::ASSIGN, "=", 1}, {Kind::OPERATOR, ">", 1}, number}),
        "(Print (Lambda (அ) (Number 1)))");
}

TEST(ReservedTokens, UnaryWordsCountAsKeywordsToo) {
    for (const std::string op : {"இல்லை", "என்னவகை", "எதிர்இருமை"}) {
        EXPECT_EQ(treeOfTokens({{Kind::KEYWORD, "அச்சிடு", 1}, {Kind::KEYWORD, op, 1}, name}),
                  "(Print (Unary " + op + " அ))");
    }
}

TEST(ReservedTokens, ReferenceParametersOfFunctionsMayBeMarkedByAName) {
    const Token mark = {Kind::IDENTIFIER, "மாற்று", 1};
    const Tokens before = {{Kind::KEYWORD, "செயல்", 1}, otherName, {Kind::LPAREN, "(", 1}};
    const Tokens behind = {
        {Kind::RPAREN, ")", 1}, {Kind::COLON, ":", 1}, {Kind::NEWLINE, "\\n", 1}, {Kind::INDENT, "4", 2}, word,
        {Kind::DEDENT, "0", 2}};
    Tokens marked = before;
    marked.insert(marked.end(), {mark, name});
    marked.insert(marked.end(), behind.begin(), behind.end());
    EXPECT_EQ(treeOfTokens(marked), "(FunctionDefinition ஆ (&அ) (Block (Pass)))");
    Tokens markOnly = before;
    markOnly.push_back(mark);
    markOnly.insert(markOnly.end(), behind.begin(), behind.end());
    EXPECT_EQ(faultOfTokens(markOnly), "பொழி-232 வரி 1");
}

TEST(OddLayout, DedentsThatCloseNothingAreSwallowed) {
    const Token dedent = {Kind::DEDENT, "0", 1};
    EXPECT_EQ(treeOfTokens({dedent, word, dedent, dedent, word}), "(Pass) (Pass)");
}

TEST(OddLayout, TheFirstEndOfFileEndsTheFile) {
    EXPECT_EQ(treeOfTokens({word, end, word}), "(Pass)");
    EXPECT_EQ(treeOfTokens({end, end}), "");
    EXPECT_EQ(faultOfTokens({{Kind::KEYWORD, "சுற்று", 1}, end, name}), "பொழி-201 வரி 1");
}

} // namespace

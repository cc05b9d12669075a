#include "base/utf8.h"
#include "support/scanning_tables.h"
#include "support/token_kinds.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals; // a NUL byte doesn't end a std::string
using pozhil::Token;
using pozhil::TokenType;
using pozhil::test::expectFaults;
using pozhil::test::expectTokens;
using pozhil::test::scan;
using pozhil::test::scanFault;

/// Expects that \p source is one token, and nothing behind it.
void expectAlone(const std::string& source, TokenType kind, const std::string& value) {
    const std::vector<Token> tokens = scan(source);
    ASSERT_EQ(tokens.size(), 2U) << source;
    EXPECT_EQ(tokens[0].type, kind) << source;
    EXPECT_EQ(tokens[0].value, value) << source;
    EXPECT_EQ(tokens[0].line, 1) << source;
    EXPECT_EQ(tokens[1].type, TokenType::END_OF_FILE) << source;
    EXPECT_EQ(tokens[1].value, "") << source;
}

TEST(Symbols, AreOneTokenEach) {
    expectAlone("(", TokenType::LPAREN, "(");
    expectAlone(")", TokenType::RPAREN, ")");
    expectAlone(":", TokenType::COLON, ":");
    expectAlone("?", TokenType::QUESTION, "?");
    expectAlone(".", TokenType::DOT, ".");
    expectAlone("[", TokenType::LBRACKET, "[");
    expectAlone("]", TokenType::RBRACKET, "]");
    expectAlone("{", TokenType::LBRACE, "{");
    expectAlone("}", TokenType::RBRACE, "}");
    expectAlone(",", TokenType::COMMA, ",");
    expectAlone("=", TokenType::ASSIGN, "=");
    expectAlone("*", TokenType::STAR, "*");
    expectAlone("=>", TokenType::OPERATOR, "=>");
    expectAlone(";", TokenType::NEWLINE, ";");
}

TEST(Symbols, NeedNoBlanksAroundThem) {
    expectTokens({
        {"==>=", "1: ASSIGN(=) OPERATOR(=>) ASSIGN(=) END_OF_FILE"},
        {"[**]", "1: LBRACKET([) STAR(*) STAR(*) RBRACKET(]) END_OF_FILE"},
        {"அ.ஆ", "1: IDENTIFIER(அ) DOT(.) IDENTIFIER(ஆ) END_OF_FILE"},
        {"அ=1", "1: IDENTIFIER(அ) ASSIGN(=) NUMBER(1) END_OF_FILE"},
    });
}

TEST(Symbols, ThatTheLanguageWritesAsWordsAreRefused) {
    for (const char symbol : "+-/<>!&|%~^@#$`\\\x01\x7F"s) {
        EXPECT_EQ(scanFault({symbol}), "பொழி-101 வரி 1") << symbol;
        EXPECT_EQ(scanFault("அ"s + symbol + "ஆ"), "பொழி-101 வரி 1") << symbol;
        EXPECT_EQ(scanFault("அ = 1\nஅ "s + symbol + " ஆ"), "பொழி-101 வரி 2") << symbol;
    }
    expectFaults({{"அ = > 1", "பொழி-101 வரி 1"}, {"50 %", "பொழி-101 வரி 1"}, {"50%%", "பொழி-101 வரி 1"}});
}

TEST(Blanks, AreSpaceTabAndCarriageReturn) {
    expectTokens({{"அ \t\r = \t 1\r\n", "1: IDENTIFIER(அ) ASSIGN(=) NUMBER(1) NEWLINE(\\n)\n2: END_OF_FILE"}});
    // Other white space ends a word or number, but nothing begins with it.
    expectFaults({{"அ\v", "பொழி-101 வரி 1"}, {"1\f", "பொழி-101 வரி 1"}});
}

TEST(Numbers, KeepTheTextAsWritten) {
    for (const char* number : {"0", "007", "12", "1.5", "1.", "௧", "௦௧௨௩௪௫௬௭௮௯", "123456789012345678901234567890"}) {
        expectAlone(number, TokenType::NUMBER, number);
    }
}

TEST(Numbers, WithAPercentSignArePercentages) {
    for (const char* percentage : {"50%", "1.5%", "1.%", "௫௦%"}) {
        expectAlone(percentage, TokenType::PERCENT, percentage);
    }
    expectTokens({{"50%அ", "1: PERCENT(50%) IDENTIFIER(அ) END_OF_FILE"}});
}

TEST(Numbers, MayBeFollowedByBlanksAndSymbols) {
    for (const std::string number : {"1", "1.5", "௧"}) {
        for (const char follower : "(){};=,:?[]* \t\r\n\0"s) {
            EXPECT_EQ(scan(number + follower).front().value, number) << follower;
        }
    }
}

TEST(Numbers, OfTamilDigitsHaveNoPointOfTheirOwn) {
    expectTokens({
        {"௧.௫", "1: NUMBER(௧) DOT(.) NUMBER(௫) END_OF_FILE"},
        {"௧.5", "1: NUMBER(௧) DOT(.) NUMBER(5) END_OF_FILE"},
        {".5", "1: DOT(.) NUMBER(5) END_OF_FILE"},
    });
}

TEST(Numbers, HaveOnePointAtMost) {
    expectFaults({{"1.2.3", "பொழி-104 வரி 1"}, {"1..", "பொழி-104 வரி 1"}, {"\n\n1..2", "பொழி-104 வரி 3"}});
}

TEST(Numbers, DoNotMixDigitsOfTwoScripts) {
    expectFaults({
        {"1௨", "பொழி-109 வரி 1"},
        {"1.௨", "பொழி-109 வரி 1"},
        {"௧2", "பொழி-109 வரி 1"},
        {"\n௧௨3", "பொழி-109 வரி 2"},
    });
}

TEST(Numbers, DoNotRunIntoAnythingElse) {
    for (const char* follower : {"அ", "a", "_", "\"\"", "''", "+", "-2", "ஃ", "௰", "\u200C", "\x80", "\xE0\xAF"}) {
        EXPECT_EQ(scanFault("12"s + follower), "பொழி-108 வரி 1") << follower;
        EXPECT_EQ(scanFault("௧௨"s + follower), "பொழி-108 வரி 1") << follower;
    }
}

TEST(Strings, HoldWhatStandsBetweenTheirQuotes) {
    expectAlone("\"\"", TokenType::STRING, "");
    expectAlone("\"வணக்கம், உலகமே!\"", TokenType::STRING, "வணக்கம், உலகமே!");
    expectAlone("\"'ஃஃ' + ; 1.2.3\"", TokenType::STRING, "'ஃஃ' + ; 1.2.3");
    expectAlone("\"ஜ ஷ ஸ ஹ \u200C\u200F அா ாஅ\"", TokenType::STRING, "ஜ ஷ ஸ ஹ \u200C\u200F அா ாஅ");
}

TEST(Strings, HaveNoEscapes) {
    expectAlone(R"("\")", TokenType::STRING, "\\");
    expectAlone(R"("அ\nஆ")", TokenType::STRING, "அ\\nஆ");
    expectTokens({{R"("அ""ஆ")", "1: STRING(அ) STRING(ஆ) END_OF_FILE"}});
}

TEST(Strings, MustBeClosed) {
    expectFaults({
        {"\"", "பொழி-102 வரி 1"},
        {"அ = 1\nஆ = \"இ\nஈ\n", "பொழி-102 வரி 2"},
        {"\"அ\0\""s, "பொழி-102 வரி 1"},
        {"\"\xE0\"", "பொழி-102 வரி 1"}, // the cut letter takes the quote with it
    });
}

TEST(Characters, HoldWhatStandsBetweenTheirQuotes) {
    for (const char* text : {"அ", "கி", "abc", " ", "\"", "\\", "ஃ", "ஸ்ரீ", "\t"}) {
        expectAlone("'"s + text + "'", TokenType::CHAR, text);
    }
}

TEST(Characters, AreNotEmpty) {
    expectFaults({{"''", "பொழி-105 வரி 1"}, {"\nஅ = ''", "பொழி-105 வரி 2"}, {"'''", "பொழி-105 வரி 1"}});
}

TEST(Characters, MustBeClosedOnTheirLine) {
    expectFaults({
        {"'", "பொழி-103 வரி 1"},
        {"'அ", "பொழி-103 வரி 1"},
        {"'அ\n'", "பொழி-103 வரி 1"},
        {"'\n'", "பொழி-103 வரி 1"},
        {"\n'அ\0'"s, "பொழி-103 வரி 2"},
    });
}

TEST(Words, AreNamesUnlessTheyAreKeywords) {
    for (const char* name :
         {"அ", "எண்", "a_b2", "_", "__init", "azAZ09_", "அa1_", "அ௧", "\u0BE5", "௰", "அஃது", "é", "😀", "ஶ"}) {
        expectAlone(name, TokenType::IDENTIFIER, name);
    }
    expectAlone("அச்சிடு", TokenType::KEYWORD, "அச்சிடு");
    expectAlone("ரகசிய", TokenType::PRIVATE, "ரகசிய");
    expectAlone("மெய்", TokenType::BOOLEAN, "மெய்");
}

TEST(Words, OfTheRealtimeDatabaseHoldADot) {
    expectAlone("நிகழ்நேர.தரவுசேர்", TokenType::RTDB_INSERT, "நிகழ்நேர.தரவுசேர்");
    expectAlone("நிகழ்நேர.தரவுமாற்று", TokenType::RTDB_UPDATE, "நிகழ்நேர.தரவுமாற்று");
    expectAlone("நிகழ்நேர.தரவுஅழி", TokenType::RTDB_DELETE, "நிகழ்நேர.தரவுஅழி");
    expectAlone("நிகழ்நேர.தரவுபடி", TokenType::RTDB_READ, "நிகழ்நேர.தரவுபடி");
}

TEST(Words, BehindTheRealtimePrefixGoOnToTheNextBlankOrSymbol) {
    for (const char* name : {"நிகழ்நேர", "நிகழ்நேர.", "நிகழ்நேர.அ", "நிகழ்நேர.அ+ஆ", "நிகழ்நேர.ஜன்னல்", "நிகழ்நேர.\""}) {
        expectAlone(name, TokenType::IDENTIFIER, name);
    }
    expectTokens({
        {"நிகழ்நேர.அ.ஆ", "1: IDENTIFIER(நிகழ்நேர.அ) DOT(.) IDENTIFIER(ஆ) END_OF_FILE"},
        {"நிகழ்நேர.அ(", "1: IDENTIFIER(நிகழ்நேர.அ) LPAREN(() END_OF_FILE"},
        {"நிகழ்நேர.அ ஆ", "1: IDENTIFIER(நிகழ்நேர.அ) IDENTIFIER(ஆ) END_OF_FILE"},
        {"நிகழ்நேர .தரவுசேர்", "1: IDENTIFIER(நிகழ்நேர) DOT(.) IDENTIFIER(தரவுசேர்) END_OF_FILE"},
        {"அநிகழ்நேர.தரவுசேர்", "1: IDENTIFIER(அநிகழ்நேர) DOT(.) IDENTIFIER(தரவுசேர்) END_OF_FILE"},
    });
}

TEST(Bytes, ThatAreNoTextMakeNames) {
    for (const char* name :
         {"\x80", "\xFF", "\xE0\xAF\x7F", "அ\xC0\x80", "\xF8\x88", "அ\xE0", "அ\xE0\xAE", "\xF0\x9F\x98", "\xC3"}) {
        expectAlone(name, TokenType::IDENTIFIER, name);
    }
    // A cut letter takes what stands in the place of its other bytes.
    expectTokens({
        {"\xE0\n\nஅ", "1: IDENTIFIER(\xE0\n\nஅ) END_OF_FILE"},
        {"ஃ \xE0\n\nஅ\nஆ", "2: IDENTIFIER(ஆ) END_OF_FILE"},
    });
}

TEST(Bytes, ThatTheEndOfTheTextCutsEndAComment) {
    for (const std::string cut : {"\xE0", "\xE0\xAE", "\xF0\x9F\x98", "\xC3"}) {
        expectTokens({{"ஃ க" + cut, "1: END_OF_FILE"}, {"அ ஃ க" + cut, "1: IDENTIFIER(அ) END_OF_FILE END_OF_FILE"}});
    }
}

TEST(Bytes, ThatAreNulEndTheText) {
    expectTokens({
        {"\0அ"s, "1: END_OF_FILE"},
        {"அ\0ஆ"s, "1: IDENTIFIER(அ) END_OF_FILE"},
        {"அ \0ஆ"s, "1: IDENTIFIER(அ) END_OF_FILE END_OF_FILE"},
        {"அ\n\0\nஆ"s, "1: IDENTIFIER(அ) NEWLINE(\\n)\n2: END_OF_FILE"},
        {"ஃ அ\0\nஆ"s, "1: END_OF_FILE"},
        {"ஃஃ \0 ஃஃ அ"s, "1: IDENTIFIER(அ) END_OF_FILE"},
        {"நிகழ்நேர.அ\0ஆ"s, "1: IDENTIFIER(நிகழ்நேர.அ) END_OF_FILE"},
    });
}

TEST(Utf8, LeadByteTellsTheLengthOfItsSequence) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::size_t length = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : byte < 0xF8 ? 4 : 1;
        EXPECT_EQ(pozhil::getUTF8SequenceLength(static_cast<char>(byte)), length) << byte;
    }
}

} // namespace

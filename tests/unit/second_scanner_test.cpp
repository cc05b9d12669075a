#include "scanner/second/scanner.h"
#include "support/second_source.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The tokens of a source without indentation, without the line end and the end of the file.
std::string line(const std::string& text) {
    const std::string written = secondTokens(text);
    const std::string ending = " NEWLINE(\n)";
    const std::size_t end = written.rfind(ending);
    return end == std::string::npos ? written : written.substr(std::string("1: ").size(), end - 3);
}

std::vector<std::string> scanFaults(const std::string& text) {
    SecondFaults faults;
    second::scanSecondEdition(makeSource("நிரல்.பொழில்", text), faults);
    return faultTexts(faults);
}

TEST(Numbers, AreTheirValues) {
    EXPECT_EQ(line("012"), "NUMBER(12)");
    EXPECT_EQ(line("0"), "NUMBER(0)");
    EXPECT_EQ(line("000"), "NUMBER(0)");
    EXPECT_EQ(line("௧௨"), "NUMBER(12)");
    EXPECT_EQ(line("2.5"), "NUMBER(2.5)");
    EXPECT_EQ(line("1."), "NUMBER(1.0)");
    EXPECT_EQ(line("00.50"), "NUMBER(0.50)");
    EXPECT_EQ(line("௧.௫"), "NUMBER(1.5)");
    EXPECT_EQ(line("9223372036854775807"), "NUMBER(9223372036854775807)");
    EXPECT_EQ(line("0009223372036854775807"), "NUMBER(9223372036854775807)");
}

TEST(Numbers, AreToldWhereTheyAreNone) {
    EXPECT_THAT(scanFaults("அ = 9223372036854775808"), ElementsAre("521 1 '9223372036854775808'"));
    EXPECT_THAT(scanFaults("அ = ௯௨௨௩௩௭௨௦௩௬௮௫௪௭௭௫௮௦௮"), ElementsAre("521 1 '௯௨௨௩௩௭௨௦௩௬௮௫௪௭௭௫௮௦௮'"));
    EXPECT_THAT(scanFaults("அ = " + std::string(400, '9') + ".5"), testing::SizeIs(1));
    EXPECT_THAT(scanFaults("அ = " + std::string(300, '9') + ".5"), IsEmpty());
    EXPECT_THAT(scanFaults("அ = 1.2.3 கூட்டு 1..5"), ElementsAre("520 1 '1.2.3'", "520 1 '1..5'"));
    EXPECT_THAT(scanFaults("அ = ௧2"), ElementsAre("518 1 '௧2'"));
    EXPECT_THAT(scanFaults("அ = 5அ கூட்டு 1e5 கூட்டு 0x1F"), ElementsAre("519 1 '5அ'", "519 1 '1e5'", "519 1 '0x1F'"));
    EXPECT_THAT(scanFaults("அ = 5ஃ குறிப்பு"), IsEmpty()) << "a comment needs no blank before it";
}

TEST(Texts, AreWithoutQuotesAndEscapes) {
    EXPECT_EQ(line(R"("அவள் \"வா\" என்றாள்")"), R"(STRING(அவள் "வா" என்றாள்))");
    EXPECT_EQ(line(R"("a\\")"), R"(STRING(a\))");
    EXPECT_EQ(line(R"("\t|\n|\042|\0431|\'|\101")"), "STRING(\t|\n|\"|#1|'|A)");
    EXPECT_EQ(line("\"#1 பரிசு\""), "STRING(#1 பரிசு)");
    EXPECT_EQ(line("\"\""), "STRING");
    EXPECT_EQ(line("'அ' 'க்ஷௌ' '\\''"), "STRING(அ) STRING(க்ஷௌ) STRING(')");
    EXPECT_EQ(line("\"ஃ குறிப்பு அல்ல // # ;\""), "STRING(ஃ குறிப்பு அல்ல // # ;)");
}

TEST(Texts, MayRunOverLines) {
    EXPECT_EQ(secondTokens("அச்சிடு(\"முதல்\nஇரண்டாம்\")\nஅ"), "1: KEYWORD(அச்சிடு) LPAREN(() STRING(முதல்\nஇரண்டாம்)\n"
                                                           "2: RPAREN()) NEWLINE(\n)\n"
                                                           "3: IDENTIFIER(அ) NEWLINE(\n) END_OF_FILE");
    EXPECT_EQ(line("\"அ\r\nஆ\rஇ\""), "STRING(அ\nஆ\rஇ)\n2:") << "line ends are those of texts";
}

TEST(Texts, RefuseUnknownEscapes) {
    EXPECT_THAT(scanFaults(R"(அ = "C:\user \கோப்பு \x41 \0 \400")"),
                ElementsAre("513 1 '\\u'", "513 1 '\\க'", "513 1 '\\x'", "513 1 '\\0'", "513 1 '\\4'"));
}

TEST(OpenText, IsToldWhereItBeginsAndEndsWithItsLine) {
    EXPECT_THAT(scanFaults("அச்சிடு(\"வணக்கம்)\nஅச்சிடு(\"ஆம்\")\nஅச்சிடு(\"இல்லை\")\n"), ElementsAre("510 1 '\"வணக்கம்)'"));
    EXPECT_THAT(scanFaults("அ = \"ஒன்று\nஇரண்டு\"\nஆ = \"மூன்று\nஇ = \"நான்கு\"\nஈ = 5\n"), ElementsAre("510 3 '\"மூன்று'"))
        << "a text over lines before it isn't to blame";
    EXPECT_THAT(scanFaults("அ = 1\nஆ = \"மூன்று"), ElementsAre("510 2 '\"மூன்று'"));
    EXPECT_THAT(scanFaults("அ = \"a\\\""), ElementsAre("510 1 '\"a\\\"'")) << "an escaped quote doesn't close";
    EXPECT_THAT(scanFaults("அ = 'ஆ\nஇ = ''"), ElementsAre("511 1 ''ஆ'", "512 2 ''''"));
}

TEST(Names, AreTheSameHoweverTheirSignsAreTyped) {
    const std::string typedInTwo = "க\u0BC6\u0BBE";
    const std::string typedAsOne = "க\u0BCA";
    EXPECT_EQ(line(typedInTwo), "IDENTIFIER(" + typedAsOne + ")");
    EXPECT_EQ(line("\"" + typedInTwo + "\""), "STRING(" + typedAsOne + ")");
    EXPECT_EQ(line("ஒவ்வ\u0BC6\u0BBEன்றாக"), "KEYWORD(ஒவ்வொன்றாக)") << "so are words of the language";
}

TEST(Names, KeepTheirPlacesInTheTextAsItStands) {
    const std::string text = "க\u0BC6\u0BBE = 1";
    SecondFaults faults;
    const ScannedSource scanned = second::scanSecondEdition(makeSource("", text), faults);
    EXPECT_EQ(scanned.source->text, text);
    EXPECT_EQ(scanned.places[0].end, 9U);
    EXPECT_EQ(scanned.places[1].begin, 10U);
}

TEST(Names, MayBeginWithTheSignOfComments) {
    EXPECT_EQ(line("ஃபைல் = எஃகு"), "IDENTIFIER(ஃபைல்) ASSIGN(=) IDENTIFIER(எஃகு)");
    EXPECT_EQ(line("அ ஃ குறிப்பு"), "IDENTIFIER(அ)");
    EXPECT_EQ(line("அ ஃ"), "IDENTIFIER(அ)");
    EXPECT_EQ(line("அ ஃ1 ஃ> ஃ-"), "IDENTIFIER(அ)");
    EXPECT_EQ(line("அஃ குறிப்பு"), "IDENTIFIER(அ)") << "after a word it begins a comment too";
    EXPECT_EQ(line("அஃஃ நடுவில் ஃஃஆ"), "IDENTIFIER(அ) IDENTIFIER(ஆ)");
    EXPECT_EQ(line("அ ஃஃ ஒன்று\nஇரண்டு ஃஃ = 1"), "IDENTIFIER(அ)\n2: ASSIGN(=) NUMBER(1)");
}

TEST(Names, AreTheWordsOfWidgetsAndThoseLikeKeywords) {
    for (const char* name : {"விலை", "எல்லை", "செல்", "இலக்கு", "தலைப்பு", "நிறம்", "காலம்", "உரை", "அகலம்", "நிழல்", "வரம்பு",
                             "மூலம்", "இப்போதுநேரம்", "பொத்தான்", "நிலா", "int", "self", "_அ1"}) {
        EXPECT_EQ(line(name), std::string("IDENTIFIER(") + name + ")");
    }
}

TEST(Names, HaveNoGranthaLettersUnlessTheLanguageGivesThem) {
    EXPECT_THAT(scanFaults("ஜன்னல் = வருஷம்"), ElementsAre("517 1 'ஜ'", "517 1 'ஷ'"));
    EXPECT_THAT(scanFaults("காஸ்(1)\nஅ.எலிவேஷன் = 1"), IsEmpty());
    EXPECT_THAT(scanFaults("ஜன்னல் = 1\nஜன்னல் = ஜன்னல் கூட்டு 1"), ElementsAre("517 1 'ஜ'"));
    EXPECT_THAT(scanFaults("காஸ்1 = 1"), ElementsAre("517 1 'ஸ'"));
    EXPECT_THAT(scanFaults("அ = \"ஜன்னல்\" ஃ ஜன்னல்"), IsEmpty());
}

TEST(Names, FollowTheScript) {
    EXPECT_THAT(scanFaults("ாஅ = 1"), ElementsAre("515 1 'ா'"));
    EXPECT_THAT(scanFaults("அா = 1"), ElementsAre("516 1 'ா'"));
    EXPECT_THAT(scanFaults("பெ\u200Bயர் = 1"), ElementsAre("509 1 '\u200B'"));
    EXPECT_EQ(secondTokens("பெ\u200Bயர்"), "509 1 '\u200B'\n1: IDENTIFIER(பெயர்) NEWLINE(\n) END_OF_FILE");
    EXPECT_THAT(scanFaults("அ = \"பெ\u200Cயர்\""), IsEmpty()) << "in a text they may stand";
}

TEST(Words, AreThoseOfStatementsAndOperators) {
    EXPECT_EQ(line("அச்சிடு இல்லைஎனில் மெய் ரகசிய கூட்டு குறை கூட்டிசேர் எதிர்இருமை"),
              "KEYWORD(அச்சிடு) KEYWORD(இல்லைஎனில்) BOOLEAN(மெய்) PRIVATE(ரகசிய) OPERATOR(கூட்டு) UNARY_MINUS(குறை) "
              "COMPOUND_ASSIGN(கூட்டிசேர்) BIT_NOT(எதிர்இருமை)");
}

TEST(Signs, OfOtherLanguagesAreToldWithTheirWord) {
    SecondFaults faults;
    second::scanSecondEdition(makeSource("", "அ + -1 == 2 <= 3 += 1 ** 2 ≠ 4"), faults);
    std::vector<std::string> words;
    words.reserve(faults.size());
    for (const SecondFault& fault : faults) {
        EXPECT_EQ(fault.number, 506);
        words.push_back(fault.values.at(0) + " " + fault.values.at(1));
    }
    EXPECT_THAT(words,
                ElementsAre("+ கூட்டு", "- குறை", "== சமம்", "<= சிறிதுசமம்", "+= கூட்டிசேர்", "** அடுக்கு", "≠ சமமில்லை"));
}

TEST(Signs, OfOtherLanguagesKeepTheStatement) {
    EXPECT_EQ(secondTokens("அ = ஆ + -1"),
              "506 1 '+'\n506 1 '-'\n1: IDENTIFIER(அ) ASSIGN(=) IDENTIFIER(ஆ) OPERATOR(கூட்டு) "
              "UNARY_MINUS(குறை) NUMBER(1) NEWLINE(\n) END_OF_FILE");
    EXPECT_EQ(secondTokens("அ // ஆ"), "506 1 '//'\n1: IDENTIFIER(அ) NEWLINE(\n) END_OF_FILE");
    EXPECT_EQ(secondTokens("# ஆ"), "506 1 '#'\n1: END_OF_FILE");
    EXPECT_EQ(secondTokens("எனில் அ {\n    ஆ\n}\n"),
              "527 1 '{'\n1: KEYWORD(எனில்) IDENTIFIER(அ) COLON(:) NEWLINE(\n)\n"
              "2: INDENT(4) IDENTIFIER(ஆ) NEWLINE(\n)\n3: DEDENT(0)\n4: END_OF_FILE");
}

TEST(Signs, OfBlocksAreToldOnce) {
    EXPECT_THAT(secondFaults("எனில் அ {\n    f()\n}\nசுற்று மெய் {\n    g()\n}\n"), ElementsAre("527 1 '{'", "527 4 '{'"));
    EXPECT_THAT(secondFaults("செயல் f()\n{\n    g()\n}\n"), ElementsAre("527 1 ')'", "527 2 '{'"));
    EXPECT_THAT(secondFaults("அ = {\n}\nf({\n}, ஆ, {\n})\n"), IsEmpty()) << "maps stand where values do";
}

TEST(Signs, ThatMeanNothingAreToldOnceInARow) {
    EXPECT_THAT(scanFaults("அ @@@ = 1 $"), ElementsAre("505 1 '@@@'", "505 1 '$'"));
    EXPECT_THAT(scanFaults(std::string("அ \0 = 1", 8)), testing::SizeIs(1));
    EXPECT_THAT(scanFaults("அச்சிடு(“வணக்கம்”, ‘அ’)"), ElementsAre("507 1 '“வணக்கம்”'", "507 1 '‘அ’'"));
    EXPECT_THAT(scanFaults("அ\u00A0=\u00A01\nஆ =\u00A01\u00A0\n\u00A0\n"),
                ElementsAre("508 1 '\u00A0'", "508 2 '\u00A0'"))
        << "once a line, and never where nothing comes after it";
}

TEST(Bytes, ThatAreNoTextAreToldAlone) {
    EXPECT_EQ(secondTokens("அ = 1\n\xFF + +\n"), "504 2 '\xFF'\n1: END_OF_FILE");
    EXPECT_EQ(secondTokens("\xE0\xAE"), "504 1 '\xE0'\n1: END_OF_FILE");
}

TEST(Comments, MustEnd) {
    EXPECT_THAT(scanFaults("அ = 1\nஃஃ இரு வரி\nஆ = 1\n"), ElementsAre("514 2 'ஃஃ'"));
    EXPECT_EQ(secondTokens("ஃ பொழில் 2\nஅ"), "2: IDENTIFIER(அ) NEWLINE(\n) END_OF_FILE");
    EXPECT_EQ(secondTokens("\xEF\xBB\xBFஃபொழில் ௨\r\nஅ\r\n"), "2: IDENTIFIER(அ) NEWLINE(\n)\n3: END_OF_FILE");
}

TEST(Layout, IsBlanksOrTabsAndSemicolons) {
    EXPECT_EQ(secondTokens("எனில் அ:\n\tஆ;  இ ;\n\n   ஃ குறிப்பு\n\tஈ\nஉ"),
              "1: KEYWORD(எனில்) IDENTIFIER(அ) COLON(:) NEWLINE(\n)\n"
              "2: INDENT(4) IDENTIFIER(ஆ) NEWLINE(;) IDENTIFIER(இ) NEWLINE(\n)\n"
              "5: IDENTIFIER(ஈ) NEWLINE(\n)\n"
              "6: DEDENT(0) IDENTIFIER(உ) NEWLINE(\n) END_OF_FILE");
}

TEST(Layout, IsFaultyWhereABlockIsIndentedInTwoWays) {
    EXPECT_THAT(scanFaults("எனில் அ:\n\tஆ\n    இ\n"), ElementsAre("522 3 '    '"));
    EXPECT_THAT(scanFaults("எனில் அ:\n    எனில் ஆ:\n\t\tஇ\n    ஈ\n"), ElementsAre("522 3 '\t\t'"));
    EXPECT_THAT(scanFaults("எனில் அ:\n    எனில் ஆ:\n    \tஇ\n"), IsEmpty()) << "blanks first, then a tab, in all lines";
    EXPECT_THAT(scanFaults("எனில் அ:\n        ஆ\n    இ\nஈ\n"), ElementsAre("523 3 '    '"));
    EXPECT_THAT(scanFaults("எனில் அ:\n        ஆ\n   ஃஃ ஐ ஃஃ\u00A0இ\n"), ElementsAre("523 3 '   '", "508 3 '\u00A0'"));
    EXPECT_THAT(scanFaults("எனில் அ:\n        ஆ\n   ஃஃ\n ஃஃ இ\n"), ElementsAre("523 3 '   '"));
    EXPECT_THAT(scanFaults("எனில் அ:\n\tஆ\nஎனில் அ:\n    ஆ\n"), IsEmpty()) << "two blocks may differ";
}

TEST(Brackets, JoinLines) {
    EXPECT_EQ(secondTokens("அ = [1,\n2\n   , 3] ஃ குறிப்பு\nஆ"),
              "1: IDENTIFIER(அ) ASSIGN(=) LBRACKET([) NUMBER(1) COMMA(,)\n"
              "2: NUMBER(2)\n3: COMMA(,) NUMBER(3) RBRACKET(]) NEWLINE(\n)\n"
              "4: IDENTIFIER(ஆ) NEWLINE(\n) END_OF_FILE");
}

TEST(Brackets, AreToldThatAreNeverClosed) {
    EXPECT_THAT(scanFaults("அச்சிடு((1 கூட்டு 2)\nஅச்சிடு(3)\nஅ = (4)\n"), ElementsAre("525 1 '('"));
    EXPECT_THAT(scanFaults("அ = [1, 2\nஆ = 3\nஇ = {1: 2}\n"), ElementsAre("525 1 '['"));
    EXPECT_THAT(scanFaults("செயல் f(அ:\n    திரும்பு அ\n"), ElementsAre("525 1 '('"));
    EXPECT_THAT(scanFaults("f(1\n\nசெயல் g(அ):\n    திரும்பு அ\n"), ElementsAre("525 1 '('"));
    EXPECT_THAT(scanFaults("f([1)\n"), ElementsAre("525 1 '['"));
    EXPECT_THAT(scanFaults("f([1, 2],\n    எ =>\n    அச்சிடு(எ))\nf(எ =>\nஎ = 1)\n"), IsEmpty())
        << "the body after an arrow";
    EXPECT_THAT(scanFaults("f(எ => 1,\nஅச்சிடு(எ))\n"), ElementsAre("525 1 '('", "526 2 ')'"));
    EXPECT_THAT(scanFaults("f(1))\nஅ = (1]\n"), ElementsAre("526 1 ')'", "526 2 ']'"));
    EXPECT_THAT(scanFaults("அ = {\n    அச்சிடு: 1,\n    திரும்பு: 2}\nf(\n    ஆ = 1)\n"), IsEmpty())
        << "words of statements may be keys";
}

TEST(FunctionValues, HaveLinesOfTheirOwnInBrackets) {
    EXPECT_EQ(secondTokens("f(வினை(அ):\n    ஆ\n    இ\n, 1)\nஉ"),
              "1: IDENTIFIER(f) LPAREN(() KEYWORD(வினை) LPAREN(() IDENTIFIER(அ) RPAREN()) COLON(:) NEWLINE(\n)\n"
              "2: INDENT(4) IDENTIFIER(ஆ) NEWLINE(\n)\n3: IDENTIFIER(இ) NEWLINE(\n)\n"
              "4: DEDENT(0) COMMA(,) NUMBER(1) RPAREN()) NEWLINE(\n)\n5: IDENTIFIER(உ) NEWLINE(\n) END_OF_FILE");
    EXPECT_EQ(secondTokens("f(வினை():\n    ஆ)\n"),
              "1: IDENTIFIER(f) LPAREN(() KEYWORD(வினை) LPAREN(() RPAREN()) COLON(:) NEWLINE(\n)\n"
              "2: INDENT(4) IDENTIFIER(ஆ) NEWLINE(\n) DEDENT(0) RPAREN()) NEWLINE(\n)\n3: END_OF_FILE");
    EXPECT_EQ(secondTokens("அ = {வினை:\n 1}\n"), "1: IDENTIFIER(அ) ASSIGN(=) LBRACE({) KEYWORD(வினை) COLON(:)\n"
                                                 "2: NUMBER(1) RBRACE(}) NEWLINE(\n)\n3: END_OF_FILE")
        << "as a key it begins no function";
}

TEST(Groups, HaveLinesOfTheirOwn) {
    EXPECT_EQ(secondTokens("கட்டமைப்பு அ:\n    ரகசிய (\n  ஆ = 1\n        )\n"),
              "1: KEYWORD(கட்டமைப்பு) IDENTIFIER(அ) COLON(:) NEWLINE(\n)\n"
              "2: INDENT(4) PRIVATE(ரகசிய) LPAREN(() NEWLINE(\n)\n"
              "3: IDENTIFIER(ஆ) ASSIGN(=) NUMBER(1) NEWLINE(\n)\n"
              "4: RPAREN()) NEWLINE(\n)\n5: DEDENT(0) END_OF_FILE");
}

TEST(Faults, AreTenAtMost) {
    std::string text;
    for (int count = 0; count < 100; ++count) {
        text += "அ + 1\n(";
    }
    EXPECT_THAT(scanFaults(text), testing::SizeIs(MAX_FOUND_FAULTS));
}

} // namespace

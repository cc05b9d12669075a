#include "support/diagnosis.h"
#include "support/parsing.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;

namespace {

/// \p count lines, each of which is \p line.
std::string lines(int count, const std::string& line) {
    std::string text;
    for (int number = 0; number < count; ++number) {
        text += line + "\n";
    }
    return text;
}

TEST(Program, OfNothingIsEmpty) {
    for (const std::string source : {"", "\n", "\n\n\n", ";", ";;;", ";\n;", "ஃ குறிப்பு", "ஃஃ குறிப்பு ஃஃ"}) {
        EXPECT_EQ(tree(source), "") << source;
    }
}

TEST(Program, HoldsItsStatementsInOrder) {
    EXPECT_EQ(tree("விடு\nநிறுத்து\n\nதொடர்"), "(Pass) (Break) (Continue)");
    EXPECT_EQ(tree("\n\n;\nவிடு;நிறுத்து;\n;"), "(Pass) (Break)");
}

TEST(Program, NeedsNoLineEndBetweenStatements) {
    EXPECT_EQ(tree("விடு நிறுத்து"), "(Pass) (Break)");
    EXPECT_EQ(tree("அ() ஆ()"), "(Expression (Call அ)) (Expression (Call ஆ))");
    EXPECT_EQ(tree("அ = 1 ஆ = 2"), "(Expression (Assignment அ = (Number 1))) (Expression (Assignment ஆ = (Number 2)))");
}

TEST(Program, TakesAHundredThousandStatementsAndOne) {
    EXPECT_EQ(fault(lines(100001, "விடு")), "none");
    EXPECT_EQ(fault(lines(100002, "விடு")), "பொழி-291 வரி 100002");
    EXPECT_EQ(fault(lines(1, "எனில் அ:") + lines(200000, "    விடு")), "none");
}

TEST(Program, SwallowsADedentThatClosesNothing) {
    EXPECT_EQ(tree("அ = {\n    ஆ: 1}\nவிடு"), "(Expression (Assignment அ = (Map (\"ஆ\" (Number 1))))) (Pass)");
}

TEST(Diagnostic, ShowsTheFileAndTheSourceLine) {
    const std::string report = reportOf([] { parseText("விடு\n    அச்சிடு(1)\nவிடு\n"); });
    EXPECT_THAT(report, HasSubstr("பொழி-111"));
    EXPECT_THAT(report, HasSubstr("இலக்கணப் பிழை"));
    EXPECT_THAT(report, HasSubstr(": நிரல்.பொழில்\n"));
    EXPECT_THAT(report, HasSubstr("    02 |      அச்சிடு(1)\n"));
}

TEST(Diagnostic, ShowsAnEmptyLineBehindTheEndOfTheSource) {
    EXPECT_THAT(reportOf([] { parseText("எனில் அ:\n"); }), HasSubstr("    02 |  \n"));
}

TEST(StatementsWithoutNode, LeaveTheFirstWordOfTheNextStatementAlone) {
    EXPECT_EQ(tree("வகை அ:\n    ஆ\nவிடு\n"), "(Pass)");
    EXPECT_EQ(tree("வகை அ:\n    ஆ\nவகை இ:\n    ஈ\nநிறுத்து\n"), "(Break)");
    EXPECT_EQ(tree("வகை அ:\n    ஆ\nஅச்சிடு(1)\n"), "(Print (Number 1))");
    EXPECT_EQ(tree("எனில் அ:\n    வகை ஆ:\n        இ\n    விடு\nநிறுத்து\n"), "(If அ (Block (Pass)) null) (Break)");
    EXPECT_EQ(tree("எனில் அ:\n    வகை ஆ:\n        இ\nநிறுத்து\n"), "(If அ (Block) null) (Break)");
}

TEST(StatementOrder, EveryStatementIsToldByItsFirstWord) {
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n    செயல் ஆ(தான்)\n"), "(AbstractStructDefinition அ (ஆ தான்))");
    EXPECT_EQ(tree("அச்சிடு(1)"), "(Print (Number 1))");
    EXPECT_EQ(tree("எனில் அ:\n    விடு\n"), "(If அ (Block (Pass)) null)");
    EXPECT_EQ(tree("புதுப்பி()"), "(SetState)");
    EXPECT_EQ(tree("முயற்சி:\n    விடு\nபிடி:\n    விடு\n"), "(TryCatch (Block (Pass)) (Block (Pass)) பிழை)");
    EXPECT_EQ(tree("சுற்று அ:\n    விடு\n"), "(While அ (Block (Pass)))");
    EXPECT_EQ(tree("காத்திரு 1"), "(Wait (Number 1))");
    EXPECT_EQ(tree("தேர்வு அ:\n    நிலை 1:\n        விடு\n"), "(Switch அ ((Number 1) (Block (Pass))) null)");
    EXPECT_EQ(tree("ஒவ்வொன்றாக அ இல் ஆ:\n    விடு\n"), "(For அ ஆ (Block (Pass)))");
    EXPECT_EQ(tree("நிறுத்து"), "(Break)");
    EXPECT_EQ(tree("தொடர்"), "(Continue)");
    EXPECT_EQ(tree("கட்டமைப்பு அ:\n    ஆ = 1\n"), "(StructDefinition அ (VarDeclaration ஆ (Number 1) 0))");
    EXPECT_EQ(tree("விடு"), "(Pass)");
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு\n"), "(FunctionDefinition அ () (Block (Return null)))");
}

TEST(StatementOrder, TheWordOfEnumerationsIsANameUnlessANameFollows) {
    EXPECT_EQ(tree("வகை = 1"), "(Expression (Assignment வகை = (Number 1)))");
    EXPECT_EQ(tree("வகை(1)"), "(Expression (Call வகை (Number 1)))");
    EXPECT_EQ(tree("வகை.அ = 1"), "(Expression (SetMember வகை அ (Number 1)))");
    EXPECT_EQ(fault("வகை"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("வகை சுற்று:\n    அ\n"), "பொழி-201 வரி 1");
}

TEST(StatementOrder, TheWordOfFunctionsIsANameBeforeAnEqualsSign) {
    EXPECT_EQ(tree("செயல் = 5"), "(Expression (Assignment செயல் = (Number 5)))");
    EXPECT_EQ(fault("செயல்(1)"), "பொழி-231 வரி 1");
    EXPECT_EQ(fault("செயல் கூட்டிசேர் 1"), "பொழி-231 வரி 1");
    EXPECT_EQ(fault("செயல்"), "பொழி-231 வரி 1");
}

TEST(StatementOrder, OtherStatementWordsAreNeverNames) {
    for (const std::string word : {"அச்சிடு", "எனில்", "சுற்று", "காத்திரு", "தேர்வு"}) {
        EXPECT_EQ(fault(word + " = 5"), "பொழி-201 வரி 1") << word;
    }
    EXPECT_EQ(fault("ஒவ்வொன்றாக = 5"), "பொழி-223 வரி 1");
    EXPECT_EQ(fault("முயற்சி = 5"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("கட்டமைப்பு = 5"), "பொழி-210 வரி 1");
    EXPECT_EQ(fault("வடிவமைப்பு = 5"), "பொழி-210 வரி 1");
    EXPECT_EQ(fault("நூஇறக்கி = 5"), "பொழி-281 வரி 1");
    EXPECT_EQ(fault("புதுப்பி = 5"), "பொழி-203 வரி 1");
    EXPECT_EQ(fault("திரும்பு = 5"), "பொழி-233 வரி 1");
    EXPECT_EQ(fault("விடு = 5"), "பொழி-201 வரி 1");
}

TEST(Rebuild, NeedsEmptyParentheses) {
    EXPECT_EQ(fault("\nபுதுப்பி\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("புதுப்பி("), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("\nபுதுப்பி(\n)"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("புதுப்பி(1)"), "பொழி-204 வரி 1");
}

TEST(StatementStart, IndentationNeedsAColonBeforeIt) {
    EXPECT_EQ(fault("விடு\n    விடு\n"), "பொழி-111 வரி 2");
    EXPECT_EQ(fault("    விடு\n"), "பொழி-111 வரி 1");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n        விடு\n"), "பொழி-111 வரி 3");
    EXPECT_EQ(fault("விடு; விடு"), "பொழி-111 வரி 1");
}

TEST(StatementStart, AWordFunctionHasNoPlaceInAPlainStatement) {
    EXPECT_EQ(fault("வினை(அ): ஆ"), "பொழி-234 வரி 1");
    EXPECT_EQ(fault("\nஅ = வினை(ஆ): இ"), "பொழி-234 வரி 2");
    EXPECT_EQ(fault("அ(வினை: ஆ)"), "பொழி-234 வரி 1");
    EXPECT_EQ(fault("அ(\"வினை\") ? 1 : 2"), "பொழி-234 வரி 1");
    EXPECT_EQ(fault("செயல் அ():\n    ஆ = வினை(): இ\n"), "பொழி-234 வரி 2");
}

TEST(StatementStart, AWordFunctionIsLookedForOnTheFirstLineBeforeAColonOnly) {
    EXPECT_EQ(tree("அ = {\n    ஆ: வினை(இ): ஈ\n}"), "(Expression (Assignment அ = (Map (\"ஆ\" (Lambda (இ) ஈ)))))");
    EXPECT_EQ(tree("அ(ஃஃ\nஃஃ வினை: ஆ)"), "(Expression (Call அ (Lambda () ஆ)))");
    EXPECT_EQ(fault("அ = ஆ ? 1 : வினை"), "பொழி-202 வரி 1");
    EXPECT_EQ(tree("அச்சிடு(வினை(அ): ஆ)"), "(Print (Lambda (அ) ஆ))");
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு வினை(ஆ): இ\n"), "(FunctionDefinition அ () (Block (Return (Lambda (ஆ) இ))))");
}

TEST(StatementStart, AClosingBracketClosesNothing) {
    for (const std::string bracket : {")", "]", "}"}) {
        EXPECT_EQ(fault("\n" + bracket), "பொழி-209 வரி 2");
        EXPECT_EQ(fault("அ()" + bracket), "பொழி-209 வரி 1");
        EXPECT_EQ(fault("எனில் அ:\n    " + bracket + "\n"), "பொழி-209 வரி 2");
    }
}

TEST(StatementStart, ANameBeforeALiteralLacksItsEqualsSign) {
    for (const std::string literal : {"5", "1.5", "௫", "\"உரை\"", "{", "{}"}) {
        EXPECT_EQ(fault("\nஅ " + literal), "பொழி-208 வரி 2") << literal;
    }
    for (const std::string other : {"'அ'", "மெய்", "50%", "ஆ", "]"}) {
        EXPECT_EQ(fault("அ " + other), "பொழி-201 வரி 1") << other;
    }
    EXPECT_EQ(fault("அ\n5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ ஃஃ\nஃஃ 5"), "பொழி-201 வரி 2");
    EXPECT_EQ(fault("உரை 5"), "பொழி-201 வரி 1");
}

TEST(StatementStart, ACommaOrNumberBeforeAClosingBracketLacksTheOpeningOne) {
    EXPECT_EQ(fault("5]"), "பொழி-209 வரி 1");
    EXPECT_EQ(fault("1, 2, 3]"), "பொழி-209 வரி 1");
    EXPECT_EQ(fault(", 2]"), "பொழி-209 வரி 1");
    EXPECT_EQ(fault("1 கூட்டு அ[0]"), "பொழி-209 வரி 1");
    EXPECT_EQ(fault("5[0] = 1"), "பொழி-209 வரி 1");
    EXPECT_EQ(fault(","), "பொழி-201 வரி 1");
    EXPECT_EQ(fault(", 1\n]"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("\"அ\"]"), "பொழி-201 வரி 1");
}

TEST(ExpressionStatement, MustHaveAnEffect) {
    EXPECT_EQ(tree("அ(1)"), "(Expression (Call அ (Number 1)))");
    EXPECT_EQ(tree("அ.ஆ(1)"), "(Expression (Call (Get அ ஆ) (Number 1)))");
    EXPECT_EQ(tree("அ = 1"), "(Expression (Assignment அ = (Number 1)))");
    EXPECT_EQ(tree("அ.ஆ = 1"), "(Expression (SetMember அ ஆ (Number 1)))");
    for (const std::string value :
         {"5",           "1.5",    "\"அ\"",         "'அ'",           "மெய்",      "50%",       "\"#fff\"",
          "அ",           "உரை",    "அ.ஆ",           "அ[0]",          "[1]",      "{}",        "(அ())",
          "அ() கூட்டு 1", "இல்லை அ", "அ() மற்றும் ஆ()", "அ ? ஆ() : இ()", "அ => ஆ()", "() => ஆ()", "அ = பெரிது 5"}) {
        EXPECT_EQ(fault("\n" + value + "\n"), "பொழி-201 வரி 2") << value;
    }
}

TEST(Block, StandsIndentedBehindTheLineOfItsColon) {
    EXPECT_EQ(tree("எனில் அ:\n விடு\n"), "(If அ (Block (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ:\n\n\n    விடு\n\n    விடு\n\n"), "(If அ (Block (Pass) (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ: ஃ குறிப்பு\n    ஃ குறிப்பு\n    விடு"), "(If அ (Block (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ:;\n    விடு"), "(If அ (Block (Pass)) null)");
    EXPECT_EQ(fault("எனில் அ: விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("எனில் அ:\nவிடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ:"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("எனில் அ:\n    எனில் ஆ:\n    விடு\n"), "பொழி-202 வரி 3");
}

TEST(Block, NeedsALineEndBehindEachStatementButTheLast) {
    EXPECT_EQ(tree("எனில் அ:\n    விடு\n    நிறுத்து"), "(If அ (Block (Pass) (Break)) null)");
    EXPECT_EQ(tree("எனில் அ:\n    விடு;    நிறுத்து\n"), "(If அ (Block (Pass) (Break)) null)");
    EXPECT_EQ(tree("எனில் அ:\n    விடு;நிறுத்து\n"), "(If அ (Block (Pass)) null) (Break)");
    EXPECT_EQ(fault("எனில் அ:\n    விடு நிறுத்து\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n    அச்சிடு (1) கூட்டு 2\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n    ஆ = 1 இ = 2\n"), "பொழி-202 வரி 3");
}

TEST(Block, GoesOnBehindABlockInsideIt) {
    EXPECT_EQ(tree("எனில் அ:\n    எனில் ஆ:\n        விடு\n    நிறுத்து\nதொடர்\n"),
              "(If அ (Block (If ஆ (Block (Pass)) null) (Break)) null) (Continue)");
    EXPECT_EQ(tree("சுற்று அ:\n    சுற்று ஆ:\n        விடு\n    சுற்று இ:\n        விடு\n"),
              "(While அ (Block (While ஆ (Block (Pass))) (While இ (Block (Pass)))))");
    EXPECT_EQ(tree("எனில் அ:\n    செயல் ஆ():\n        விடு\n    கட்டமைப்பு இ:\n        ஈ = 1\n    விடு\n"),
              "(If அ (Block (FunctionDefinition ஆ () (Block (Pass))) (StructDefinition இ (VarDeclaration ஈ (Number 1) "
              "0)) (Pass)) null)");
}

TEST(Block, EndsSeveralAtOnce) {
    EXPECT_EQ(tree("எனில் அ:\n    எனில் ஆ:\n        எனில் இ:\n            விடு\nநிறுத்து\n"),
              "(If அ (Block (If ஆ (Block (If இ (Block (Pass)) null)) null)) null) (Break)");
    EXPECT_EQ(tree("எனில் அ:\n    எனில் ஆ:\n        விடு"), "(If அ (Block (If ஆ (Block (Pass)) null)) null)");
}

TEST(Block, IsNotClosedByBlanksThatEndTheFile) {
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n    "), "பொழி-292 வரி 3");
    EXPECT_EQ(fault("எனில் அ:\n    விடு "), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n "), "பொழி-111 வரி 3");
}

} // namespace

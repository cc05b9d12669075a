#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

TEST(Print, TakesItsArgumentsWithParenthesesOrWithout) {
    EXPECT_EQ(tree("அச்சிடு()"), "(Print)");
    EXPECT_EQ(tree("அச்சிடு(1, அ, \"ஆ\")"), "(Print (Number 1) அ (String \"ஆ\"))");
    EXPECT_EQ(tree("அச்சிடு 1, அ, \"ஆ\""), "(Print (Number 1) அ (String \"ஆ\"))");
    EXPECT_EQ(tree("அச்சிடு 1 கூட்டு 2"), "(Print (Binary (Number 1) கூட்டு (Number 2)))");
    EXPECT_EQ(tree("அச்சிடு((1) கூட்டு 2)"), "(Print (Binary (Grouping (Number 1)) கூட்டு (Number 2)))");
}

TEST(Print, ReadsAFirstParenthesisAsItsOwn) {
    EXPECT_EQ(fault("அச்சிடு (1) கூட்டு 2"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு () => 1"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு (அ) => 1"), "பொழி-201 வரி 1");
    EXPECT_EQ(tree("அச்சிடு (1) ஆ()"), "(Print (Number 1)) (Expression (Call ஆ))");
}

TEST(Print, NeedsAnArgumentOrParenthesesAndStaysOnItsLine) {
    EXPECT_EQ(fault("அச்சிடு\n"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு(1,)"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு 1,\n2"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("\nஅச்சிடு(1"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nஅச்சிடு(1\n)"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("அச்சிடு(1 2)"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("\nஅச்சிடு(\n1)"), "பொழி-201 வரி 2");
}

TEST(If, HoldsOneBranchOrTwo) {
    EXPECT_EQ(tree("எனில் அ:\n    விடு\n"), "(If அ (Block (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ:\n    விடு\nஇல்லை:\n    தொடர்\n"), "(If அ (Block (Pass)) (Block (Continue)))");
    EXPECT_EQ(tree("எனில் (அ):\n    விடு\n"), "(If (Grouping அ) (Block (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ = 1:\n    விடு\n"), "(If (Assignment அ = (Number 1)) (Block (Pass)) null)");
    EXPECT_EQ(tree("எனில் அ எனில் ஆ இல்லைஎனில் இ:\n    விடு\n"), "(If (Ternary அ ஆ இ) (Block (Pass)) null)");
}

TEST(If, ChainsItsConditions) {
    EXPECT_EQ(tree("எனில் அ:\n    விடு\nஇல்லைஎனில் ஆ:\n    தொடர்\n"),
              "(If அ (Block (Pass)) (If ஆ (Block (Continue)) null))");
    EXPECT_EQ(tree("எனில் அ:\n    விடு\nஇல்லைஎனில் ஆ:\n    தொடர்\nஇல்லைஎனில் இ:\n    விடு\nஇல்லை:\n    நிறுத்து\n"),
              "(If அ (Block (Pass)) (If ஆ (Block (Continue)) (If இ (Block (Pass)) (Block (Break)))))");
}

TEST(If, EndsAtANewlineBehindItsBlock) {
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n;\nஇல்லை:\n    விடு\n"), "பொழி-201 வரி 4");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\n;\nஇல்லைஎனில் ஆ:\n    விடு\n"), "பொழி-201 வரி 4");
    EXPECT_EQ(tree("எனில் அ:\n    விடு\n\nஃ குறிப்பு\nஇல்லை:\n    தொடர்\n"), "(If அ (Block (Pass)) (Block (Continue)))");
    EXPECT_EQ(fault("இல்லை:\n    விடு\n"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\nஇல்லை:\n    விடு\nஇல்லை:\n    விடு\n"), "பொழி-201 வரி 5");
}

TEST(If, NeedsAConditionAndColon) {
    EXPECT_EQ(fault("\nஎனில்:\n    விடு\n"), "பொழி-221 வரி 2");
    EXPECT_EQ(fault("\nஎனில்\n    விடு\n"), "பொழி-221 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\nஇல்லைஎனில்:\n    விடு\n"), "பொழி-221 வரி 3");
    EXPECT_EQ(fault("எனில்"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("\nஎனில் அ\n    விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("எனில் அ ஆ:\n    விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\nஇல்லை\n    விடு\n"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\nஇல்லை: விடு\n"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("எனில் அ:\n    விடு\nஇல்லை அ:\n    விடு\n"), "பொழி-202 வரி 3");
}

TEST(While, NeedsAConditionAndColon) {
    EXPECT_EQ(tree("சுற்று அ சிறிது 5:\n    விடு\n"), "(While (Binary அ சிறிது (Number 5)) (Block (Pass)))");
    EXPECT_EQ(fault("\nசுற்று:\n    விடு\n"), "பொழி-222 வரி 2");
    EXPECT_EQ(fault("\nசுற்று\n    விடு\n"), "பொழி-222 வரி 2");
    EXPECT_EQ(fault("சுற்று அ\n    விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("சுற்று அ: விடு\n"), "பொழி-202 வரி 1");
}

TEST(While, HasNoElse) {
    EXPECT_EQ(fault("சுற்று அ:\n    விடு\nஇல்லை:\n    விடு\n"), "பொழி-201 வரி 3");
}

TEST(For, WalksWhatStandsBehindItsWord) {
    EXPECT_EQ(tree("ஒவ்வொன்றாக அ இல் வரம்பு(5):\n    விடு\n"), "(For அ (Call வரம்பு (Number 5)) (Block (Pass)))");
    EXPECT_EQ(tree("ஒவ்வொன்றாக அ இல் [1, 2]:\n    விடு\n"), "(For அ (List (Number 1) (Number 2)) (Block (Pass)))");
}

TEST(For, TakesKeywordsAndWidgetWordsAsVariable) {
    for (const std::string name : {"சுற்று", "இல்", "எனில்", "உரை", "பக்கம்", "நிறம்"}) {
        EXPECT_EQ(tree("ஒவ்வொன்றாக " + name + " இல் அ:\n    விடு\n"), "(For " + name + " அ (Block (Pass)))");
    }
}

TEST(For, NeedsVariableWordAndColon) {
    for (const std::string variable : {"", "5", "\"அ\"", "மெய்", "(அ)", "ரகசிய", "தலைமை"}) {
        EXPECT_EQ(fault("\nஒவ்வொன்றாக " + variable + " இல் அ:\n"), "பொழி-223 வரி 2") << variable;
    }
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ:\n"), "பொழி-223 வரி 1");
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ ஆ:\n"), "பொழி-223 வரி 1");
    EXPECT_EQ(fault("ஒவ்வொன்றாக\n"), "பொழி-223 வரி 1");
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ"), "பொழி-223 வரி 1");
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ இல்:\n"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ இல் ஆ\n"), "பொழி-202 வரி 1");
}

TEST(Switch, HoldsCasesAndOneDefaultInAnyOrder) {
    const std::string one = "    நிலை 1:\n        விடு\n";
    const std::string other = "    மற்றவை:\n        தொடர்\n";
    EXPECT_EQ(tree("தேர்வு அ:\n" + one + one),
              "(Switch அ ((Number 1) (Block (Pass))) ((Number 1) (Block (Pass))) null)");
    EXPECT_EQ(tree("தேர்வு அ:\n" + one + other), "(Switch அ ((Number 1) (Block (Pass))) (Block (Continue)))");
    EXPECT_EQ(tree("தேர்வு அ:\n" + other + one), "(Switch அ ((Number 1) (Block (Pass))) (Block (Continue)))");
    EXPECT_EQ(tree("தேர்வு அ:\n" + other), "(Switch அ (Block (Continue)))");
    EXPECT_EQ(tree("தேர்வு அ.ஆ(1) கூட்டு 2:\n" + one),
              "(Switch (Binary (Call (Get அ ஆ) (Number 1)) கூட்டு (Number 2)) ((Number 1) (Block (Pass))) null)");
}

TEST(Switch, PassesOverEmptyLines) {
    EXPECT_EQ(tree("தேர்வு அ:\n\n    நிலை 1:\n        விடு\n\n\n    மற்றவை:\n        தொடர்\n\nவிடு\n"),
              "(Switch அ ((Number 1) (Block (Pass))) (Block (Continue))) (Pass)");
    EXPECT_EQ(tree("தேர்வு அ:\n    ;\n    நிலை 1:\n        விடு\n    ;\n    மற்றவை:\n        தொடர்\n    ;\n"),
              "(Switch அ ((Number 1) (Block (Pass))) (Block (Continue)))");
}

TEST(Switch, GoesOnBehindABlockInsideIt) {
    EXPECT_EQ(tree("எனில் அ:\n    தேர்வு ஆ:\n        நிலை 1:\n            விடு\n    தொடர்\nநிறுத்து\n"),
              "(If அ (Block (Switch ஆ ((Number 1) (Block (Pass))) null) (Continue)) null) (Break)");
}

TEST(Switch, ReportsAFaultOfItsHeadAtItsWord) {
    EXPECT_EQ(fault("\nதேர்வு அ\n    நிலை 1:\n        விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("\nதேர்வு அ: நிலை 1:\n        விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("\nதேர்வு அ:\n\n\nநிலை 1:\n    விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("\nதேர்வு அ:\n\n\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("\nதேர்வு:\n    நிலை 1:\n        விடு\n"), "பொழி-201 வரி 2");
}

TEST(Switch, HoldsNothingElse) {
    EXPECT_EQ(fault("தேர்வு அ:\n    விடு\n"), "பொழி-224 வரி 2");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1:\n        விடு\n    அ = 1\n"), "பொழி-224 வரி 4");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1:\n        விடு\n        நிலை 2:\n"), "பொழி-201 வரி 4");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1:\n        விடு\n            விடு\n"), "பொழி-111 வரி 4");
    EXPECT_EQ(fault("தேர்வு அ:\n    மற்றவை:\n        விடு\n    மற்றவை:\n        விடு\n"), "பொழி-225 வரி 4");
    EXPECT_EQ(fault("தேர்வு அ:\n    மற்றவை:\n        விடு\n    மற்றவை\n        விடு\n"), "பொழி-202 வரி 4");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை:\n        விடு\n"), "பொழி-201 வரி 2");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1\n        விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1: விடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("தேர்வு அ:\n    மற்றவை 1:\n        விடு\n"), "பொழி-202 வரி 2");
}

TEST(Switch, IsNotClosedByBlanksThatEndTheFile) {
    EXPECT_EQ(fault("தேர்வு அ:\n    நிலை 1:\n        விடு\n    "), "பொழி-292 வரி 4");
}

TEST(TryCatch, NamesTheCaughtFault) {
    const std::string before = "முயற்சி:\n    விடு\n";
    const std::string behind = ":\n    தொடர்\n";
    EXPECT_EQ(tree(before + "பிடி" + behind), "(TryCatch (Block (Pass)) (Block (Continue)) பிழை)");
    EXPECT_EQ(tree(before + "பிடி()" + behind), "(TryCatch (Block (Pass)) (Block (Continue)) பிழை)");
    EXPECT_EQ(tree(before + "பிடி(தவறு)" + behind), "(TryCatch (Block (Pass)) (Block (Continue)) தவறு)");
    EXPECT_EQ(tree(before + "பிடி (சுற்று)" + behind), "(TryCatch (Block (Pass)) (Block (Continue)) சுற்று)");
    EXPECT_EQ(tree(before + "பிடி (உரை)" + behind), "(TryCatch (Block (Pass)) (Block (Continue)) உரை)");
}

TEST(TryCatch, HoldsBothBlocks) {
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nவிடு\n"), "பொழி-210 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\n"), "பொழி-210 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\n;\nபிடி:\n    விடு\n"), "பொழி-210 வரி 3");
    EXPECT_EQ(fault("முயற்சி\n    விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("முயற்சி அ:\n    விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி\n    விடு\n"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி: விடு\n"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி அ:\n    விடு\n"), "பொழி-202 வரி 3");
}

TEST(TryCatch, ReportsAnOpenBracketAtItsLine) {
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி(12):\n    விடு\n"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி(அ, ஆ):\n    விடு\n"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி(அ\n):\n    விடு\n"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("முயற்சி:\n    விடு\nபிடி("), "பொழி-204 வரி 3");
}

TEST(TryCatch, NoWordCatchesAlone) {
    EXPECT_EQ(fault("பிடி:\n    விடு\n"), "பொழி-201 வரி 1");
}

TEST(Wait, TakesADuration) {
    EXPECT_EQ(tree("காத்திரு 2"), "(Wait (Number 2))");
    EXPECT_EQ(tree("காத்திரு(0.5)"), "(Wait (Grouping (Double 0.5)))");
    EXPECT_EQ(fault("காத்திரு"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("காத்திரு()"), "பொழி-201 வரி 1");
}

TEST(Return, MayCarryAValue) {
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு\n"), "(FunctionDefinition அ () (Block (Return null)))");
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு"), "(FunctionDefinition அ () (Block (Return null)))");
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு;    விடு\n"), "(FunctionDefinition அ () (Block (Return null) (Pass)))");
    EXPECT_EQ(tree("செயல் அ():\n    திரும்பு 1 கூட்டு 2\n"),
              "(FunctionDefinition அ () (Block (Return (Binary (Number 1) கூட்டு (Number 2)))))");
    EXPECT_EQ(tree("செயல் அ():\n    எனில் ஆ:\n        திரும்பு 1\n"),
              "(FunctionDefinition அ () (Block (If ஆ (Block (Return (Number 1))) null)))");
    EXPECT_EQ(fault("செயல் அ():\n    திரும்பு 1 2\n"), "பொழி-202 வரி 2");
}

TEST(Return, StandsInsideAFunction) {
    EXPECT_EQ(fault("\nதிரும்பு 5\n"), "பொழி-233 வரி 2");
    EXPECT_EQ(fault("எனில் அ:\n    திரும்பு\n"), "பொழி-233 வரி 2");
    EXPECT_EQ(fault("செயல் அ():\n    விடு\nதிரும்பு\n"), "பொழி-233 வரி 3");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\n    திரும்பு\n"), "பொழி-233 வரி 2");
    EXPECT_EQ(fault("செயல் அ():\n    செயல் ஆ():\n        விடு\n    திரும்பு 1\nதிரும்பு 2\n"), "பொழி-233 வரி 5");
}

TEST(BreakAndContinue, AreNotTiedToALoop) {
    EXPECT_EQ(tree("நிறுத்து\nதொடர்\n"), "(Break) (Continue)");
}

} // namespace

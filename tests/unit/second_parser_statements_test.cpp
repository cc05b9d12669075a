#include "support/second_source.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(Print, TakesBracketsThatEndTheStatement) {
    EXPECT_EQ(secondTree("அச்சிடு(\"அ\", 1)"), "(Print (String \"அ\") (Number 1))");
    EXPECT_EQ(secondTree("அச்சிடு()"), "(Print)");
    EXPECT_EQ(secondTree("அச்சிடு \"அ\", 1"), "(Print (String \"அ\") (Number 1))");
    EXPECT_EQ(secondTree("அச்சிடு (1 கூட்டு 2) பெருக்கு 3"),
              "(Print (Binary (Grouping (Binary (Number 1) கூட்டு (Number 2))) பெருக்கு (Number 3)))");
    EXPECT_EQ(secondTree("அச்சிடு (1), 2"), "(Print (Grouping (Number 1)) (Number 2))");
    EXPECT_EQ(secondTree("அச்சிடு (அ)[0]; அச்சிடு(1)"), "(Print (Index (Grouping அ) (Number 0))) (Print (Number 1))");
    EXPECT_EQ(secondTree("அச்சிடு(\n  1,\n  2\n)"), "(Print (Number 1) (Number 2))");
    EXPECT_THAT(secondFaults("அச்சிடு(1) 2\nஅச்சிடு\n"), ElementsAre("530 1 '2'", "529 2 'அச்சிடு'"));
}

TEST(Simple, StatementsEndWithTheirLine) {
    EXPECT_EQ(secondTree("திரும்பு; திரும்பு 1; காத்திரு 0.5; விடு; நிறுத்து; தொடர்"),
              "(Return null) (Return (Number 1)) (Wait (Double 0.5)) (Pass) (Break) (Continue)");
    EXPECT_EQ(secondTree("f(); அ.சேர்(1)"), "(Expression (Call f)) (Expression (Call (Get அ சேர்) (Number 1)))");
    EXPECT_THAT(secondFaults("அ = 1 ஆ = 2\nf() g()\nவிடு 1\n"), ElementsAre("530 1 'ஆ'", "530 2 'g'", "530 3 '1'"));
}

TEST(Values, AloneDoNothing) {
    EXPECT_THAT(secondFaults("அ\n1 கூட்டு 2\nஅ.ஆ\nஅ சமம் 5\n(f())\n\"அ\"\n"),
                ElementsAre("533 1 'அ'", "533 2 '1 கூட்டு 2'", "533 3 'அ.ஆ'", "533 4 'அ சமம் 5'", "533 5 '(f())'",
                            "533 6 '\"அ\"'"));
}

TEST(Blocks, StandBelowOrOnTheLine) {
    EXPECT_EQ(secondTree("எனில் அ:\n    f()\n    g()\nஇல்லைஎனில் ஆ:\n    h()\nஇல்லை:\n    விடு\nஇ()"),
              "(If அ (Block (Expression (Call f)) (Expression (Call g))) (If ஆ (Block (Expression (Call h))) "
              "(Block (Pass)))) (Expression (Call இ))");
    EXPECT_EQ(secondTree("எனில் அ: f(); g()\nஇல்லை: விடு;\nh()"),
              "(If அ (Block (Expression (Call f)) (Expression (Call g))) (Block (Pass))) (Expression (Call h))");
    EXPECT_EQ(secondTree("செயல் f(அ): திரும்பு அ\nசுற்று மெய்: நிறுத்து"),
              "(FunctionDefinition f (அ) (Block (Return அ))) (While (Boolean மெய்) (Block (Break)))");
    EXPECT_EQ(secondTree("எனில் அ:\n  சுற்று ஆ:\n    விடு\nf()"),
              "(If அ (Block (While ஆ (Block (Pass)))) null) (Expression (Call f))");
    EXPECT_EQ(secondTree("எனில் அ:\n    f()\n\nஃ குறிப்பு\n        ஃ குறிப்பு\n    g()\n"),
              "(If அ (Block (Expression (Call f)) (Expression (Call g))) null)");
    EXPECT_EQ(secondTree("அ = 1;எனில் அ சமம் 1:\n    f()"),
              "(Expression (Assign அ = (Number 1))) (If (Binary அ சமம் (Number 1)) (Block (Expression (Call f))) null)");
}

TEST(Blocks, AreMissed) {
    EXPECT_THAT(secondFaults("எனில் அ:\nf()\n"), ElementsAre("528 1 ':'"));
    EXPECT_THAT(secondFaults("எனில் அ:\n    ஃ குறிப்பு\nஇல்லை:\n    f()\n"), ElementsAre("528 1 ':'"))
        << "what belongs to the statement isn't told besides";
    EXPECT_THAT(secondFaults("எனில் அ:"), ElementsAre("528 1 ':'"));
    EXPECT_THAT(secondFaults("எனில் அ\n    f()\nசெயல் g()\n    விடு\n"), ElementsAre("527 1 'அ'", "527 3 ')'"));
    EXPECT_THAT(secondFaults("எனில் அ: சுற்று ஆ: விடு\n"), ElementsAre("528 1 'சுற்று'"));
    EXPECT_THAT(secondFaults("அ = 1\n    ஆ = 2\n    இ = 3\nஈ = 4 4\n"), ElementsAre("524 2 'ஆ'", "530 4 '4'"));
    EXPECT_EQ(partialTree("அ()\n    ஆ()\nஇ()\n"), "(Expression (Call அ)) (Expression (Call ஆ)) (Expression (Call இ))");
    EXPECT_THAT(secondFaults("எனில் அ:\n    f()\n        g()\n    h()\n  i()\nj()\n"),
                ElementsAre("524 3 'g'", "523 5 '  '"));
}

TEST(Parts, NeedTheirStatement) {
    EXPECT_THAT(secondFaults("இல்லை:\n    விடு\nf()\nஇல்லைஎனில் அ:\n    விடு\nf()\nபிடி:\n    விடு\nநிலை 1:\n    விடு\n"
                             "மற்றவை:\n    விடு\n"),
                ElementsAre("542 1 'இல்லை'", "542 4 'இல்லைஎனில்'", "542 7 'பிடி'", "542 9 'நிலை'", "542 11 'மற்றவை'"));
    EXPECT_THAT(secondFaults("எனில் அ:\n    விடு\nஇல்லை எனில் ஆ:\n    விடு\nஇல்லை:\n    விடு\n"),
                ElementsAre("549 3 'இல்லை'"));
    EXPECT_THAT(secondFaults("முயற்சி:\n    விடு\nஅ = 1\n"), ElementsAre("541 1 'முயற்சி'"));
}

TEST(Loops, NameTheirVariable) {
    EXPECT_EQ(secondTree("ஒவ்வொன்றாக எ இல் [1, 2]:\n    விடு"), "(For எ (List (Number 1) (Number 2)) (Block (Pass)))");
    EXPECT_EQ(secondTree("ஒவ்வொன்றாக சுற்று இல் வரம்பு(3): விடு"), "(For சுற்று (Call வரம்பு (Number 3)) (Block (Pass)))");
    EXPECT_THAT(secondFaults("ஒவ்வொன்றாக இல் ப:\n    விடு\nஒவ்வொன்றாக எ ப:\n    விடு\nஒவ்வொன்றாக மெய் இல் ப:\n    விடு\n"),
                ElementsAre("531 1 'இல்'", "527 3 'ப'", "548 5 'மெய்'"));
}

TEST(Choices, HoldCases) {
    EXPECT_EQ(secondTree("தேர்வு (அ):\n    நிலை 1:\n        f()\n    நிலை \"ஆ\": g()\n    மற்றவை: விடு\n"),
              "(Switch (Grouping அ) ((Number 1) (Block (Expression (Call f)))) "
              "((String \"ஆ\") (Block (Expression (Call g)))) (Block (Pass)))");
    EXPECT_THAT(
        secondFaults("தேர்வு அ:\n    1:\n        f()\n    நிலை 2:\n        g()\n    மற்றவை: விடு\n    மற்றவை: விடு\n"),
        ElementsAre("539 2 '1'", "540 7 'மற்றவை'"));
}

TEST(Trying, NamesTheFault) {
    EXPECT_EQ(secondTree("முயற்சி:\n    f()\nபிடி:\n    விடு"),
              "(TryCatch (Block (Expression (Call f))) (Block (Pass)) பிழை)");
    EXPECT_EQ(secondTree("முயற்சி: f()\nபிடி(ஏன்): விடு"), "(TryCatch (Block (Expression (Call f))) (Block (Pass)) ஏன்)");
    EXPECT_EQ(secondTree("முயற்சி: f()\nபிடி(): விடு"), "(TryCatch (Block (Expression (Call f))) (Block (Pass)) பிழை)");
}

TEST(Words, ThatBeginStatementsMayBeNames) {
    EXPECT_EQ(secondTree("வகை = 1; நிலை = 2; தொடர் = 3; செயல் = 4; தேர்வு = 5; சுற்று = 6; முயற்சி = 7; பொது = 8; மீதி = 9"),
              "(Expression (Assign வகை = (Number 1))) (Expression (Assign நிலை = (Number 2))) "
              "(Expression (Assign தொடர் = (Number 3))) (Expression (Assign செயல் = (Number 4))) "
              "(Expression (Assign தேர்வு = (Number 5))) (Expression (Assign சுற்று = (Number 6))) "
              "(Expression (Assign முயற்சி = (Number 7))) (Expression (Assign பொது = (Number 8))) "
              "(Expression (Assign மீதி = (Number 9)))");
    EXPECT_EQ(secondTree("தேர்வு[0] = 1; சுற்று.சேர்(1); தொடர்(1); தேர்வு(2); நிலை(3); பிடி(4); பொது(5)"),
              "(Expression (Assign (Index தேர்வு (Number 0)) = (Number 1))) "
              "(Expression (Call (Get சுற்று சேர்) (Number 1))) (Expression (Call தொடர் (Number 1))) "
              "(Expression (Call தேர்வு (Number 2))) (Expression (Call நிலை (Number 3))) "
              "(Expression (Call பிடி (Number 4))) (Expression (Call பொது (Number 5)))");
    EXPECT_EQ(secondTree("சுற்று [1][0] சமம் 1:\n    விடு"),
              "(While (Binary (Index (List (Number 1)) (Number 0)) சமம் (Number 1)) (Block (Pass)))");
    EXPECT_EQ(secondTree("தேர்வு[0] = அ ? 1 : 2"),
              "(Expression (Assign (Index தேர்வு (Number 0)) = (Ternary அ (Number 1) (Number 2))))");
    EXPECT_THAT(secondFaults("சுற்று (அ)\n    விடு\n"), ElementsAre("527 1 ')'")) << "a block below makes it a loop";
}

TEST(Functions, StandAnywhere) {
    EXPECT_EQ(
        secondTree("எனில் அ:\n    செயல் f(மாற்று அ, மாற்று):\n        செயல் g(): திரும்பு 1\n        திரும்பு g"),
        "(If அ (Block (FunctionDefinition f (&அ மாற்று) (Block (FunctionDefinition g () (Block (Return (Number 1)))) "
        "(Return g)))) null)");
    EXPECT_EQ(secondTree("செயல் கூட்டு(நிலை, வகை): விடு"), "(FunctionDefinition கூட்டு (நிலை வகை) (Block (Pass)))");
    EXPECT_THAT(
        secondFaults("செயல் அச்சிடு(): விடு\nசெயல் f(எனில்): விடு\nசெயல் g: விடு\nசெயல் h(அ ஆ): விடு\nசெயல் 5(): விடு\n"),
        ElementsAre("548 1 'அச்சிடு'", "548 2 'எனில்'", "527 3 ':'", "532 4 'ஆ'", "530 5 '5'"));
}

TEST(FileVariables, BelongInFunctions) {
    EXPECT_EQ(secondTree("செயல் f():\n    பொது அ, ஆ\n    அ = 1"),
              "(FunctionDefinition f () (Block (FileVariables அ ஆ) (Expression (Assign அ = (Number 1)))))");
    EXPECT_EQ(secondTree("க = வினை():\n    பொது அ\n"),
              "(Expression (Assign க = (Function () (Block (FileVariables அ)))))");
    EXPECT_THAT(secondFaults("பொது அ\nஎனில் அ: பொது ஆ\n"), ElementsAre("543 1 'பொது அ'", "543 2 'பொது ஆ'"));
}

TEST(Imports, StandOutsideOfBlocks) {
    EXPECT_THAT(secondFaults("நூஇறக்கி\nநூஇறக்கி \"\"\nநூஇறக்கி 5\nஎனில் அ:\n    நூஇறக்கி \"ஆ\"\n"),
                ElementsAre("544 1 'நூஇறக்கி'", "544 2 'நூஇறக்கி'", "544 3 'நூஇறக்கி'", "544 5 'நூஇறக்கி'"));
}

TEST(Enumerations, HoldAnyWords) {
    EXPECT_EQ(secondTree("வகை நிறம்:\n    சிவப்பு\n    பச்சை, நீலம்\n    எனில்\n"),
              "(Enumeration நிறம் (சிவப்பு பச்சை நீலம் எனில்))");
    EXPECT_THAT(secondFaults("வகை நிறம்:\n    சிவப்பு = 1\n    5\n"), ElementsAre("530 2 '='", "531 3 '5'"));
}

TEST(Structures, HoldFieldsAndMethods) {
    EXPECT_EQ(secondTree("கட்டமைப்பு நாய்(விலங்கு):\n    பெயர் = \"அ\"\n    ரகசிய வயது = 1\n    பொது செயல் f(தான்): விடு\n"
                         "    ரகசியம் செயல் துவக்கம்(தான், மாற்று அ):\n        தான்.அ = அ\n"),
              "(StructDefinition நாய் < விலங்கு (VarDeclaration பெயர் (String \"அ\") 0) "
              "(VarDeclaration private வயது (Number 1) 0) (FunctionDefinition f (தான்) (Block (Pass))) "
              "(FunctionDefinition private துவக்கம் (தான் &அ) (Block (Expression (Assign (Get தான் அ) = அ)))))");
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    விடு\n"), "(StructDefinition பை)");
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    அகராதி = {\n        \"அ\": 1}\n    ஆ = 2\n"),
              "(StructDefinition பை (VarDeclaration அகராதி (Map ((String \"அ\") (Number 1))) 0) "
              "(VarDeclaration ஆ (Number 2) 0))")
        << "a brace on the last entry's line ends nothing but the map";
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    வகை = 1\n    பொது = 2\n    எனில் = 3\n    செயல் குறை(தான்): விடு\n"),
              "(StructDefinition பை (VarDeclaration வகை (Number 1) 0) (VarDeclaration பொது (Number 2) 0) "
              "(VarDeclaration எனில் (Number 3) 0) (FunctionDefinition குறை (தான்) (Block (Pass))))")
        << "after a dot every word is a name";
}

TEST(Structures, HoldGroups) {
    const std::string tree = "(StructDefinition பை (VarDeclaration private அ (Number 1) 0) "
                             "(VarDeclaration private ஆ (Number 2) 0) "
                             "(FunctionDefinition private f (தான்) (Block (Pass))))";
    EXPECT_EQ(
        secondTree(
            "கட்டமைப்பு பை:\n    ரகசிய (\n        அ = 1\n        ஆ = 2\n        செயல் f(தான்):\n            விடு\n    )\n"),
        tree);
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    ரகசிய (அ = 1\n  ஆ = 2\nசெயல் f(தான்): விடு)\n"), tree);
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    ரகசிய (அ = 1, ஆ = 2; செயல் f(தான்): விடு)\n"), tree);
    EXPECT_EQ(secondTree("கட்டமைப்பு பை:\n    ரகசிய ()\n    பொது (\n    )\n"), "(StructDefinition பை)");
    EXPECT_THAT(secondFaults("கட்டமைப்பு பை:\n    ரகசிய (\n        அ\n        ஆ = 2 3\n        இ = 1\n    )\n    ஈ\n"),
                ElementsAre("537 3 'அ'", "530 4 '3'", "537 7 'ஈ'"));
}

TEST(Structures, HoldNothingElse) {
    EXPECT_THAT(
        secondFaults(
            "கட்டமைப்பு பை:\n    அ\n    அச்சிடு(1)\n    ரகசிய\n    தான்.அ = 1\n    கட்டமைப்பு ஆ:\n        விடு\n    இ = 1\n"),
        ElementsAre("537 2 'அ'", "537 3 'அச்சிடு'", "537 4 'ரகசிய'", "537 5 'தான்'", "537 6 'கட்டமைப்பு'"));
    EXPECT_THAT(secondFaults("கட்டமைப்பு பை:\n    செயல் f():\n        விடு\n    செயல் g(அ):\n        செயல் h(): விடு\n"),
                ElementsAre("538 2 'f'", "538 4 'g'"));
}

TEST(AbstractStructures, HoldHeads) {
    EXPECT_EQ(
        secondTree("வடிவமைப்பு வ:\n    செயல் f(தான்)\n    செயல் g(தான், மாற்று அ): விடு\n    செயல் h(தான்):\n        விடு\n"),
        "(AbstractStructDefinition வ (f தான்) (g தான் &அ) (h தான்))");
    EXPECT_THAT(secondFaults("வடிவமைப்பு வ:\n    அ = 1\n    செயல் f()\n    செயல் g(தான்): திரும்பு 1\n"),
                ElementsAre("537 2 'அ'", "538 3 'f'", "527 4 'திரும்பு'"));
}

TEST(WordsOfApplications, AreNames) {
    EXPECT_THAT(secondFaults("வலைதளம் = 5\n"), IsEmpty());
}

} // namespace

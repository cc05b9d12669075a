#include "support/second_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::ElementsAre;

namespace {

/// The tree of a value.
std::string value(const std::string& text) {
    const std::string tree = secondTree("திரும்பு " + text + "\n");
    const std::string begin = "(Return ";
    return tree.rfind(begin, 0) == 0 ? tree.substr(begin.size(), tree.size() - begin.size() - 1) : tree;
}

TEST(Literals, AreWhatTheySay) {
    EXPECT_EQ(value("012"), "(Number 12)");
    EXPECT_EQ(value("1."), "(Double 1.0)");
    EXPECT_EQ(value("\"#1\""), "(String \"#1\")") << "no colour";
    EXPECT_EQ(value("'அ'"), "(String \"அ\")");
    EXPECT_EQ(value("மெய்"), "(Boolean மெய்)");
    EXPECT_EQ(value("[]"), "(List)");
    EXPECT_EQ(value("[1, [2],]"), "(List (Number 1) (List (Number 2)))");
    EXPECT_EQ(value("[\n  1,\n  2\n]"), "(List (Number 1) (Number 2))");
}

TEST(Maps, HaveAnyValueForAKeyAndWordsForTexts) {
    EXPECT_EQ(value("{}"), "(Map)");
    EXPECT_EQ(value("{\"அ\": 1, 5: 2, மெய்: 3, (ஆ): 4, இ.ஈ: 5, அ கூட்டு 1: 6}"),
              "(Map ((String \"அ\") (Number 1)) ((Number 5) (Number 2)) ((Boolean மெய்) (Number 3)) "
              "((Grouping ஆ) (Number 4)) ((Get இ ஈ) (Number 5)) ((Binary அ கூட்டு (Number 1)) (Number 6)))");
    EXPECT_EQ(value("{பெயர்: 1, வினை: 2, எனில்: 3, கூட்டு: 4, குறை: 5,}"),
              "(Map ((String \"பெயர்\") (Number 1)) ((String \"வினை\") (Number 2)) ((String \"எனில்\") (Number 3)) "
              "((String \"கூட்டு\") (Number 4)) ((String \"குறை\") (Number 5)))");
    EXPECT_EQ(value("{\n\"அ\": {\n  \"ஆ\": [1,\n2]}, \"இ\":\n 3}"),
              "(Map ((String \"அ\") (Map ((String \"ஆ\") (List (Number 1) (Number 2))))) ((String \"இ\") (Number 3)))");
}

TEST(Operators, BindAsInTheFirstEdition) {
    EXPECT_EQ(value("1 கூட்டு 2 பெருக்கு 3 கழி 4"),
              "(Binary (Binary (Number 1) கூட்டு (Binary (Number 2) பெருக்கு (Number 3))) கழி (Number 4))");
    EXPECT_EQ(value("அ அல்லது ஆ மற்றும் இ சமம் 1"), "(Logical அ அல்லது (Logical ஆ மற்றும் (Binary இ சமம் (Number 1))))");
    EXPECT_EQ(value("இல்லை 1 சமம் 2"), "(Binary (Unary இல்லை (Number 1)) சமம் (Number 2))");
    EXPECT_EQ(value("குறை அ பெருக்கு மிகை ஆ"), "(Binary (Unary குறை அ) பெருக்கு (Unary மிகை ஆ))");
    EXPECT_EQ(value("1 கழி கழி 2"), "(Binary (Number 1) கழி (Unary குறை (Number 2)))");
    EXPECT_EQ(value("1 சமம் 1 பெருக்குஇருமை 2"), "(Binary (Binary (Number 1) சமம் (Number 1)) பெருக்குஇருமை (Number 2))");
}

TEST(Choices, AreWrittenInTwoWays) {
    EXPECT_EQ(value("அ ? 1 : ஆ ? 2 : 3"), "(Ternary அ (Number 1) (Ternary ஆ (Number 2) (Number 3)))");
    EXPECT_EQ(value("அ சமம் 1 எனில் \"ஆம்\" இல்லைஎனில் \"இல்லை\""),
              "(Ternary (Binary அ சமம் (Number 1)) (String \"ஆம்\") (String \"இல்லை\"))");
    EXPECT_THAT(secondFaults("அ = ஆ எனில் 1\n"), ElementsAre("527 1 '1'"));
    EXPECT_THAT(secondFaults("அ = ஆ எனில் 1 இல்லை 2\n"), ElementsAre("527 1 'இல்லை'"));
    EXPECT_EQ(value("மெய் எனில் அ => 1 இல்லைஎனில் ஆ => 2"),
              "(Ternary (Boolean மெய்) (Lambda (அ) (Number 1)) (Lambda (ஆ) (Number 2)))");
    EXPECT_EQ(value("மெய் ? 1 : (அ, ஆ) => 2"), "(Ternary (Boolean மெய்) (Number 1) (Lambda (அ ஆ) (Number 2)))");
}

TEST(Links, FollowAnyValue) {
    EXPECT_EQ(value("க(1)(2)"), "(Call (Call க (Number 1)) (Number 2))");
    EXPECT_EQ(value("ப[0](1).அ[2]"), "(Index (Get (Call (Index ப (Number 0)) (Number 1)) அ) (Number 2))");
    EXPECT_EQ(value("(ப).அ"), "(Get (Grouping ப) அ)");
    EXPECT_EQ(value("\"அ\".நீளம்()"), "(Call (Get (String \"அ\") நீளம்))");
    EXPECT_EQ(value("[1][0]"), "(Index (List (Number 1)) (Number 0))");
    EXPECT_EQ(value("f(\n  1,\n  2,\n)"), "(Call f (Number 1) (Number 2))");
}

TEST(Members, MayBeAnyWord) {
    EXPECT_EQ(value("அ.எனில்.குறை.மெய்.கூட்டிசேர்.அச்சிடு(1)"),
              "(Call (Get (Get (Get (Get (Get அ எனில்) குறை) மெய்) கூட்டிசேர்) அச்சிடு) (Number 1))");
    EXPECT_THAT(secondFaults("அ.\n"), ElementsAre("531 1 '.'"));
    EXPECT_THAT(secondFaults("அ.5 = 1\n"), ElementsAre("531 1 '5'"));
}

TEST(Words, AreNamesWhereNothingElseCanStand) {
    EXPECT_EQ(value("[வகை, நிலை, தொடர், செயல், பொது, மாற்று, தேர்வு, சுற்று, முயற்சி, ரகசிய]"),
              "(List வகை நிலை தொடர் செயல் பொது மாற்று தேர்வு சுற்று முயற்சி ரகசிய)");
    EXPECT_EQ(value("மீதி மீதி மீதி"), "(Binary மீதி மீதி மீதி)");
    EXPECT_EQ(value("[கூட்டு, மீதி[0], சமம்(1)]"), "(List கூட்டு (Index மீதி (Number 0)) (Call சமம் (Number 1)))");
    EXPECT_THAT(secondFaults("அ = கூட்டு 5\n"), ElementsAre("529 1 'கூட்டு'"));
    EXPECT_THAT(secondFaults("அ = 5 கூட்டு\n"), ElementsAre("529 1 'கூட்டு'"));
    EXPECT_THAT(secondFaults("அ = குறை\n"), ElementsAre("529 1 'குறை'"));
    EXPECT_THAT(secondFaults("அ = எனில்\n"), ElementsAre("529 1 'எனில்'"));
}

TEST(Assignments, TakeEveryPlace) {
    EXPECT_EQ(secondTree("அ[இ][உ] = 1"), "(Expression (Assign (Index (Index அ இ) உ) = (Number 1)))");
    EXPECT_EQ(secondTree("தான்.ப[0] கூட்டிசேர் 1 கழி 2"),
              "(Expression (Assign (Index (Get தான் ப) (Number 0)) கூட்டிசேர் (Binary (Number 1) கழி (Number 2))))");
    EXPECT_EQ(secondTree("f().அ = 1"), "(Expression (Assign (Get (Call f) அ) = (Number 1)))");
    EXPECT_EQ(secondTree("அ = ஆ = 7"), "(Expression (Assign அ = (Assign ஆ = (Number 7))))");
    EXPECT_EQ(secondTree("அ ஒன்றுசேர்; அ ஒன்றுகழி 2; அ ஒன்றுசேர் (3)"),
              "(Expression (Assign அ ஒன்றுசேர் null)) (Expression (Assign அ ஒன்றுகழி (Number 2))) "
              "(Expression (Assign அ ஒன்றுசேர் (Grouping (Number 3))))");
    EXPECT_EQ(value("f(அ = 1)"), "(Call f (Assign அ = (Number 1)))");
}

TEST(Assignments, RefuseWhatIsNoPlace) {
    EXPECT_THAT(secondFaults("f() = 1\n(அ) = 1\n5 = அ\nஅ கூட்டு 1 = 2\nமெய் கூட்டிசேர் 1\n"),
                ElementsAre("534 1 'f()'", "534 2 '(அ)'", "534 3 '5'", "534 4 'அ கூட்டு 1'", "534 5 'மெய்'"));
    EXPECT_THAT(
        secondFaults("மெய் = 1\nகுறை = 2\nஎனில் = 3\nவினை = 4\nகூட்டிசேர் = 5\nஇல்லை = 6\n"),
        ElementsAre("548 1 'மெய்'", "548 2 'குறை'", "548 3 'எனில்'", "548 4 'வினை'", "548 5 'கூட்டிசேர்'", "548 6 'இல்லை'"));
}

TEST(Conditions, DontAssign) {
    EXPECT_THAT(secondFaults("எனில் அ = 1:\n    விடு\nசுற்று (அ = 1) மற்றும் ஆ:\n    விடு\n"),
                ElementsAre("535 1 '='", "535 3 '='"));
    EXPECT_THAT(secondFaults("எனில் அ கூட்டிசேர் 1:\n    விடு\n"), ElementsAre("535 1 'கூட்டிசேர்'"));
    EXPECT_EQ(partialTree("எனில் அ = 1:\n    விடு\n"), "(If (Binary அ சமம் (Number 1)) (Block (Pass)) null)");
    EXPECT_THAT(secondFaults("எனில் f(அ = 1) மற்றும் ப[ஆ = 2]:\n    விடு\n"), ElementsAre())
        << "in brackets of a call it assigns as everywhere";
    EXPECT_THAT(secondFaults("எனில் (வினை():\n    அ = 1\n    திரும்பு அ\n)() சமம் 1:\n    விடு\n"), ElementsAre())
        << "and in the block of a function";
    EXPECT_THAT(secondFaults("எனில் (வினை():\n    விடு\n)() = 1:\n    விடு\n"), ElementsAre("535 3 '='"))
        << "not after it";
}

TEST(Comparisons, DontChain) {
    EXPECT_THAT(secondFaults("அ = 1 சிறிது 2 சிறிது 3\n"), ElementsAre("536 1 'சிறிது'"));
    EXPECT_THAT(secondFaults("அ = 1 சமம் 2 சிறிது 3\n"), ElementsAre("536 1 'சமம்'"));
    EXPECT_THAT(secondFaults("அ = 1 சிறிது 2 சிறிது 3 சிறிது 4 சமம் 5\n"), ElementsAre("536 1 'சிறிது'")) << "once";
    EXPECT_THAT(secondFaults("அ = (1 சிறிது 2) சமம் (2 சிறிது 3)\n"), ElementsAre());
    EXPECT_THAT(secondFaults("அ = 1 சிறிது 2 மற்றும் 2 சிறிது 3\n"), ElementsAre());
}

TEST(FunctionValues, AreArrowsAndWords) {
    EXPECT_EQ(value("அ => அ கூட்டு 1"), "(Lambda (அ) (Binary அ கூட்டு (Number 1)))");
    EXPECT_EQ(value("(அ, ஆ) => அ"), "(Lambda (அ ஆ) அ)");
    EXPECT_EQ(value("() => 7"), "(Lambda () (Number 7))");
    EXPECT_EQ(value("வினை(அ, ஆ): அ"), "(Lambda (அ ஆ) அ)");
    EXPECT_EQ(value("வினை அ, ஆ: அ"), "(Lambda (அ ஆ) அ)");
    EXPECT_EQ(value("(அ => அ)(6)"), "(Call (Grouping (Lambda (அ) அ)) (Number 6))");
    EXPECT_EQ(value("((அ) => அ கூட்டு 1)(6)"), "(Call (Grouping (Lambda (அ) (Binary அ கூட்டு (Number 1)))) (Number 6))");
    EXPECT_EQ(value("எண்கள்.சேர்(வினை(அ): அ)"), "(Call (Get எண்கள் சேர்) (Lambda (அ) அ))");
    EXPECT_EQ(value("அ => ஆ => அ"), "(Lambda (அ) (Lambda (ஆ) அ))");
    EXPECT_EQ(value("எ => [எ = 9, எ]"), "(Lambda (எ) (List (Assign எ = (Number 9)) எ))");
    EXPECT_EQ(value("\">\""), "(String \">\")");
    EXPECT_EQ(secondTree("x = \"பெரிது\""), "(Expression (Assign x = (String \"பெரிது\")))") << "no arrow";
}

TEST(FunctionValues, MayHoldBlocksAndStatements) {
    EXPECT_EQ(secondTree("க = வினை(அ):\n    ஆ = அ\n    திரும்பு ஆ\nஇ = 1\n"),
              "(Expression (Assign க = (Function (அ) (Block (Expression (Assign ஆ = அ)) (Return ஆ))))) "
              "(Expression (Assign இ = (Number 1)))");
    EXPECT_EQ(secondTree("f(1, வினை(மாற்று அ):\n    அ = 1\n, [வினை():\n  விடு\n])\n"),
              "(Expression (Call f (Number 1) (Function (&அ) (Block (Expression (Assign அ = (Number 1))))) "
              "(List (Function () (Block (Pass))))))");
    EXPECT_EQ(value("f(அ => அச்சிடு(அ), 2)"), "(Call f (Function (அ) (Block (Print அ))) (Number 2))");
    EXPECT_EQ(value("வினை(அ): திரும்பு அ"), "(Function (அ) (Block (Return அ)))");
    EXPECT_EQ(value("வினை(மாற்று அ): அ"), "(Function (&அ) (Block (Return அ)))");
    EXPECT_THAT(secondFaults("க = வினை(அ):\nஆ = 1\n"), ElementsAre("528 1 ':'"));
}

TEST(FunctionValues, EndWithTheirBlock) {
    const std::string block = "க = வினை():\n    விடு\n";
    const std::string tree = "(Expression (Assign க = (Function () (Block (Pass))))) ";
    EXPECT_EQ(secondTree(block + "எனில் மெய்:\n    f()\n"),
              tree + "(If (Boolean மெய்) (Block (Expression (Call f))) null)");
    EXPECT_EQ(secondTree(block + "கூட்டு(1, 2)\n"), tree + "(Expression (Call கூட்டு (Number 1) (Number 2)))");
    EXPECT_EQ(secondTree(block + "கூட்டு(1)\n"), tree + "(Expression (Call கூட்டு (Number 1)))");
    EXPECT_EQ(secondTree(block + "மீதி = 5\n"), tree + "(Expression (Assign மீதி = (Number 5)))");
    EXPECT_EQ(secondTree(block + "(அ => அ)(1)\n"), tree + "(Expression (Call (Grouping (Lambda (அ) அ)) (Number 1)))");
    EXPECT_EQ(secondTree(block + "[1].சேர்(2)\n"), tree + "(Expression (Call (Get (List (Number 1)) சேர்) (Number 2)))");
    EXPECT_THAT(secondFaults(block + "= 1\n"), ElementsAre("529 3 '='"));
    EXPECT_EQ(secondTree("க = மெய் எனில் வினை():\n    விடு\nஇல்லைஎனில் 2\n"),
              "(Expression (Assign க = (Ternary (Boolean மெய்) (Function () (Block (Pass))) (Number 2))))")
        << "what can begin no statement goes on with the value";
}

TEST(Values, AreMissed) {
    EXPECT_THAT(secondFaults("அ = [1 2]\nf(1 2)\nஆ = {1: 2 3: 4}\nஇ = {1 2}\n"),
                ElementsAre("532 1 '2'", "532 2 '2'", "532 3 '3'", "527 4 '2'"));
    EXPECT_THAT(secondFaults("f(1; 2)\nஅ = [1; 2]\nஆ = 3\n"), ElementsAre("532 1 ';'", "532 2 ';'"));
    EXPECT_THAT(secondFaults("அ =\nf(,)\nஇ = []]\n"), ElementsAre("529 1 '='", "529 2 ','", "526 3 ']'"));
}

} // namespace

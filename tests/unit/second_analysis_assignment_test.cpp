#include "support/resolved_text.h"

#include <gmock/gmock.h>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// The last statement of the main program, which prints what is asked for.
std::string printed(const std::string& text) {
    const std::string written = resolvedText(text);
    const std::size_t begin = written.rfind("(print");
    return begin == std::string::npos ? written : written.substr(begin, written.rfind(')') + 1 - begin);
}

} // namespace

// Reads that are certain, and those that are checked.

TEST(SecondAssignment, BothWaysOfAConditionMakeItCertain) {
    EXPECT_EQ(printed("எனில் மெய்:\n    அ = 1\nஇல்லை:\n    அ = 2\nஅச்சிடு(அ)\n"), "(print ::அ)");
    EXPECT_EQ(printed("எனில் மெய்:\n    அ = 1\nஅச்சிடு(அ)\n"), "(print ::அ?)");
    EXPECT_EQ(printed("எனில் மெய்:\n    அ = 1\nஇல்லைஎனில் பொய்:\n    அ = 2\nஅச்சிடு(அ)\n"), "(print ::அ?)");
}

TEST(SecondAssignment, AWayThatLeavesDoesNotCount) {
    EXPECT_THAT(
        resolvedText("செயல் f(எ):\n    எனில் எ:\n        அ = 1\n    இல்லை:\n        திரும்பு 0\n    திரும்பு அ\nf(மெய்)\n"),
        HasSubstr("(return அ)}"));
    EXPECT_THAT(printed("சுற்று மெய்:\n    எனில் மெய்:\n        தொடர்\n    இல்லை:\n        அ = 1\n    அச்சிடு(அ)\n"),
                HasSubstr("(print ::அ)"));
}

TEST(SecondAssignment, ALoopMayNotRun) {
    EXPECT_EQ(printed("சுற்று பொய்:\n    அ = 1\nஅச்சிடு(அ)\n"), "(print ::அ?)");
    EXPECT_EQ(printed("ஒவ்வொன்றாக இ இல் வரம்பு(0):\n    விடு\nஅச்சிடு(இ)\n"), "(print ::இ?)");
    EXPECT_EQ(printed("ஒவ்வொன்றாக இ இல் []:\n    விடு\nஅச்சிடு(இ)\n"), "(print ::இ?)");
}

TEST(SecondAssignment, AnEndlessLoopIsLeftByItsBreaks) {
    EXPECT_EQ(printed("சுற்று மெய்:\n    அ = 1\n    நிறுத்து\nஅச்சிடு(அ)\n"), "(print ::அ)");
    EXPECT_EQ(printed("எ = மெய்\nசுற்று மெய்:\n    எனில் எ:\n        நிறுத்து\n    அ = 1\n    நிறுத்து\nஅச்சிடு(அ)\n"),
              "(print ::அ?)");
}

TEST(SecondAssignment, ABreakOfAnInnerLoopLeavesThatAlone) {
    EXPECT_EQ(printed("சுற்று மெய்:\n    சுற்று மெய்:\n        நிறுத்து\n    அ = 1\n    நிறுத்து\nஅச்சிடு(அ)\n"),
              "(print ::அ)");
}

TEST(SecondAssignment, AConditionThatAssignsHasDoneSo) {
    EXPECT_EQ(printed("சுற்று நீளம்([அ = 1]) பெரிது 5:\n    விடு\nஅச்சிடு(அ)\n"), "(print ::அ)");
}

TEST(SecondAssignment, ATryMayEndEarly) {
    EXPECT_EQ(printed("முயற்சி:\n    அ = 1\nபிடி:\n    விடு\nஅச்சிடு(அ)\n"), "(print ::அ?)");
    EXPECT_EQ(printed("முயற்சி:\n    அ = 1\nபிடி:\n    அ = 2\nஅச்சிடு(அ)\n"), "(print ::அ)");
    EXPECT_EQ(printed("முயற்சி:\n    விடு\nபிடி:\n    விடு\nஅச்சிடு(பிழை)\n"), "(print ::பிழை?)");
}

TEST(SecondAssignment, AChoiceCountsWithItsDefault) {
    const std::string choice = "தேர்வு 1:\n    நிலை 1:\n        அ = 1\n    நிலை 2:\n        அ = 2\n";
    EXPECT_EQ(printed(choice + "அச்சிடு(அ)\n"), "(print ::அ?)");
    EXPECT_EQ(printed(choice + "    மற்றவை:\n        அ = 3\nஅச்சிடு(அ)\n"), "(print ::அ)");
}

TEST(SecondAssignment, TheRightSideOfALogicalWordMayNotBeEvaluated) {
    EXPECT_EQ(printed("எ = மெய்\nவ = எ மற்றும் (அ = மெய்)\nஅச்சிடு(அ)\n"), "(print ::அ?)");
    EXPECT_EQ(printed("எ = மெய்\nவ = எ ? (அ = 1) : (அ = 2)\nஅச்சிடு(அ)\n"), "(print ::அ)");
}

TEST(SecondAssignment, ChangingAnElementReadsTheVariable) {
    EXPECT_THAT(resolvedText("எனில் மெய்:\n    அ = [1]\nஅ[0] = 2\nஅ கூட்டிசேர் [1]\n"),
                HasSubstr("(set ::அ?[0] 2) (set-add ::அ? (list 1))"));
}

// Variables of files, read in functions.

TEST(SecondAssignment, AVariableOfTheFileIsCertainIfItsValueComesBeforeTheCall) {
    const std::string f = "செயல் f():\n    திரும்பு அ\n";
    EXPECT_THAT(resolvedText(f + "அ = 1\nf()\n"), HasSubstr("f(): {(return ::அ)}"));
    EXPECT_THAT(resolvedText(f + "f()\nஅ = 1\n"), HasSubstr("f(): {(return ::அ?)}"));
    EXPECT_THAT(resolvedText(f + "எனில் மெய்:\n    அ = 1\nf()\n"), HasSubstr("f(): {(return ::அ?)}"));
    EXPECT_THAT(resolvedText(f + "அ = f()\n"), HasSubstr("f(): {(return ::அ?)}"));
    EXPECT_THAT(resolvedText(f + "எனில் மெய்:\n    அ = 1\nஇல்லை:\n    அ = 2\nf()\n"), HasSubstr("f(): {(return ::அ)}"));
}

TEST(SecondAssignment, CallsThroughOtherFunctionsCount) {
    EXPECT_THAT(resolvedText("செயல் f():\n    திரும்பு அ\nசெயல் g():\n    திரும்பு f()\ng()\nஅ = 1\n"),
                HasSubstr("f(): {(return ::அ?)}"));
    EXPECT_THAT(resolvedText("செயல் f():\n    திரும்பு அ\nவ = f\nவ()\nஅ = 1\n"), HasSubstr("f(): {(return ::அ?)}"));
    EXPECT_THAT(resolvedText("செயல் f():\n    திரும்பு அ\nவ = f\nஅ = 1\nவ()\n"), HasSubstr("f(): {(return ::அ)}"));
}

TEST(SecondAssignment, MethodsAndConstructionsCount) {
    const std::string structure = "கட்டமைப்பு க:\n    எ = அ\n    செயல் m(தான்):\n        திரும்பு ஆ\n";
    EXPECT_THAT(resolvedText(structure + "ப = க()\nஅ = 1\nஆ = 1\nப.m()\n"), HasSubstr("எ=::அ? m()"));
    EXPECT_THAT(resolvedText(structure + "அ = 1\nப = க()\nப.m()\nஆ = 1\n"), HasSubstr("எ=::அ m()"));
    EXPECT_THAT(resolvedText(structure + "அ = 1\nப = க()\nப.m()\nஆ = 1\n"), HasSubstr("(return ::ஆ?)"));
    EXPECT_THAT(resolvedText(structure + "அ = 1\nப = க()\nஆ = 1\nப.m()\n"), HasSubstr("(return ::ஆ)"));
}

TEST(SecondAssignment, ACallInABranchCountsAsOne) {
    EXPECT_THAT(resolvedText("செயல் f():\n    திரும்பு அ\nஎனில் மெய்:\n    f()\nஅ = 1\nf()\n"),
                HasSubstr("f(): {(return ::அ?)}"));
}

TEST(SecondAssignment, MethodsOfListsCallNoFunctions) {
    EXPECT_THAT(resolvedText("செயல் f():\n    திரும்பு அ\nவ = f\nப = []\nப.சேர்(1)\nஅ = 1\nவ()\n"),
                HasSubstr("f(): {(return ::அ)}"));
}

TEST(SecondAssignment, AFunctionNeedNotCheckWhatItHasAssigned) {
    EXPECT_THAT(resolvedText("செயல் f():\n    பொது அ\n    அ = 1\n    திரும்பு அ\nf()\n"),
                HasSubstr("f(): {(set ::அ 1) (return ::அ)}"));
}

// Reads that certainly come too early.

TEST(SecondAssignment, AReadBeforeTheOnlyValueIsTold) {
    EXPECT_THAT(meaningFaults("அச்சிடு(அ)\nஅ = 1\nஅச்சிடு(அ)\n"), ElementsAre("556 1 'அ'"));
    EXPECT_THAT(meaningFaults("செயல் f():\n    அச்சிடு(அ)\n    அ = 1\nf()\n"), ElementsAre("556 2 'அ'"));
}

TEST(SecondAssignment, ASumThatNeverBeganIsTold) {
    EXPECT_THAT(meaningFaults("மொத்தம் = மொத்தம் கூட்டு 1\n"), ElementsAre("556 1 'மொத்தம்'"));
    EXPECT_THAT(meaningFaults("மொத்தம் கூட்டிசேர் 1\n"), ElementsAre("556 1 'மொத்தம்'"));
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    மொத்தம் கூட்டிசேர் இ\n"), ElementsAre("556 2 'மொத்தம்'"));
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    மொத்தம் = மொத்தம் கூட்டு இ\n"), ElementsAre("556 2 'மொத்தம்'"));
}

TEST(SecondAssignment, AFunctionThatForgotPublicIsTold) {
    EXPECT_THAT(meaningFaults("மொத்தம் = 0\nசெயல் f(எ):\n    மொத்தம் கூட்டிசேர் எ\nf(1)\n"), ElementsAre("557 3 'மொத்தம்'"));
    EXPECT_THAT(meaningFaults("மொத்தம் = 0\n"
                              "செயல் f(ப):\n"
                              "    ஒவ்வொன்றாக எ இல் ப:\n"
                              "        மொத்தம் = மொத்தம் கூட்டு எ\n"
                              "f([1])\n"),
                ElementsAre("557 4 'மொத்தம்'"));
}

TEST(SecondAssignment, AnEarlierRoundMayHaveGivenTheValue) {
    EXPECT_THAT(meaningFaults("முதல் = மெய்\n"
                              "ஒவ்வொன்றாக இ இல் வரம்பு(3):\n"
                              "    எனில் இல்லை முதல்:\n"
                              "        அச்சிடு(அ)\n"
                              "    அ = இ\n"
                              "    முதல் = பொய்\n"),
                IsEmpty());
}

TEST(SecondAssignment, AFunctionMayHaveGivenTheValue) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    பொது அ\n    அ = 1\nf()\nஅச்சிடு(அ)\nஅ = 2\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("செயல் f():\n"
                              "    செயல் g():\n"
                              "        அ = 1\n"
                              "    g()\n"
                              "    அச்சிடு(அ)\n"
                              "    அ = 2\n"
                              "f()\n"),
                IsEmpty());
}

TEST(SecondAssignment, WhatIsNeverReachedIsNotTold) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    திரும்பு 1\n    அச்சிடு(அ)\n    அ = 1\nf()\n"), IsEmpty());
}

// Constants.

TEST(SecondConstants, EachWayMayGiveOneValue) {
    EXPECT_THAT(meaningFaults("எனில் மெய்:\n    மாறிலி_அ = 1\nஇல்லை:\n    மாறிலி_அ = 2\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("தேர்வு 1:\n    நிலை 1:\n        மாறிலி_அ = 1\n    மற்றவை:\n        மாறிலி_அ = 2\n"),
                IsEmpty());
    EXPECT_THAT(meaningFaults("முயற்சி:\n    மாறிலி_அ = 1\nபிடி:\n    மாறிலி_அ = 2\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("சுற்று மெய்:\n    மாறிலி_அ = 1\n    நிறுத்து\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("எனில் மெய்:\n    மாறிலி_அ = 1\nமாறிலி_அ = 2\n"), ElementsAre("572 3 'மாறிலி_அ'"));
    EXPECT_THAT(meaningFaults("மாறிலி_அ = 1\nஎனில் மெய்:\n    விடு\nஇல்லை:\n    மாறிலி_அ = 2\n"),
                ElementsAre("572 5 'மாறிலி_அ'"));
}

TEST(SecondConstants, NothingChangesThem) {
    EXPECT_THAT(meaningFaults("மாறிலி_அ = 1\nமாறிலி_அ = 2\nமாறிலி_அ கூட்டிசேர் 1\n"),
                ElementsAre("572 2 'மாறிலி_அ'", "572 3 'மாறிலி_அ'"));
    EXPECT_THAT(meaningFaults("மாறிலி_அ = [[1]]\nமாறிலி_அ[0] = 2\nமாறிலி_அ[0][0] = 2\n"),
                ElementsAre("572 2 'மாறிலி_அ[0]'", "572 3 'மாறிலி_அ[0][0]'"));
    EXPECT_THAT(meaningFaults("செயல் f(மாற்று அ):\n    அ = 1\nமாறிலி_அ = [1]\nf(மாறிலி_அ)\nf(மாறிலி_அ[0])\n"),
                ElementsAre("572 4 'மாறிலி_அ'", "572 5 'மாறிலி_அ[0]'"));
    EXPECT_THAT(meaningFaults("மாறிலி_அ = [1]\nமாறிலி_அ.சேர்(1)\nவை(மாறிலி_அ, 0, 1)\n"),
                ElementsAre("572 2 'மாறிலி_அ'", "572 3 'மாறிலி_அ'"));
}

TEST(SecondConstants, FunctionsDoNotChangeThoseOfTheFile) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    பொது மாறிலி_அ\n    மாறிலி_அ = 2\nமாறிலி_அ = 1\nf()\n"),
                ElementsAre("572 3 'மாறிலி_அ'"));
    EXPECT_THAT(meaningFaults("செயல் f():\n    மாறிலி_அ = 2\n    திரும்பு மாறிலி_அ\nமாறிலி_அ = 1\nf()\n"), IsEmpty());
}

TEST(SecondConstants, ALoopGivesItsVariableEveryRoundsValue) {
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக மாறிலி_அ இல் [1]:\n    அச்சிடு(மாறிலி_அ)\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக மாறிலி_அ இல் [1]:\n    மாறிலி_அ = 2\n"), ElementsAre("572 2 'மாறிலி_அ'"));
    EXPECT_THAT(meaningFaults("செயல் f(மாறிலி_அ):\n    மாறிலி_அ = 2\nf(1)\n"), ElementsAre("572 2 'மாறிலி_அ'"));
}

TEST(SecondConstants, AnObjectThatAConstantHoldsMayChange) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு க:\n    எ = []\nமாறிலி_அ = க()\nமாறிலி_அ.எ = [1]\nமாறிலி_அ.எ[0] = 2\n"),
                IsEmpty());
    EXPECT_THAT(meaningFaults("கட்டமைப்பு க:\n    எ = 1\n    செயல் சேர்(தான், அ):\n        தான்.எ = அ\n"
                              "செயல் f():\n    திரும்பு க()\nமாறிலி_அ = f()\nமாறிலி_அ.சேர்(1)\n"),
                IsEmpty());
}

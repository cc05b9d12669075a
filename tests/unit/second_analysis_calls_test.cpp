#include "support/resolved_text.h"

#include <gmock/gmock.h>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string mainOf(const std::string& text) {
    const std::string written = resolvedText(text);
    const std::size_t begin = written.rfind("main: ");
    return begin == std::string::npos ? written : written.substr(begin + 6, written.size() - begin - 7);
}

} // namespace

// Values.

TEST(SecondValues, Literals) {
    EXPECT_EQ(mainOf("அச்சிடு(12, ௧௨, 1.5, மெய், பொய், \"அ\", [1, \"இ\"], {\"க\": 1, 2: மெய்})\n"),
              "{(print 12 12 1.5d true false \"அ\" (list 1 \"இ\") (map \"க\":1 2:true))}");
}

TEST(SecondValues, ANegativeNumberIsOneNumber) {
    EXPECT_EQ(mainOf("அச்சிடு(குறை 5, குறை (1 கூட்டு 2))\n"), "{(print -5 (minus (add 1 2)))}");
}

TEST(SecondValues, EveryOperator) {
    EXPECT_EQ(mainOf("அ = 1\nஆ = 2\nஅச்சிடு(அ கூட்டு ஆ, அ கழி ஆ, அ பெருக்கு ஆ, அ வகு ஆ, அ மீதி ஆ, அ இணை ஆ)\n"),
              "{(set ::அ 1) (set ::ஆ 2) (print (add ::அ ::ஆ) (subtract ::அ ::ஆ) (multiply ::அ ::ஆ) (divide ::அ ::ஆ) "
              "(remainder ::அ ::ஆ) (join ::அ ::ஆ))}");
    EXPECT_EQ(mainOf("அச்சிடு(1 சமம் 2, 1 சமமில்லை 2, 1 சிறிது 2, 1 சிறிதுசமம் 2, 1 பெரிது 2, 1 பெரிதுசமம் 2)\n"),
              "{(print (equal 1 2) (unequal 1 2) (less 1 2) (less-equal 1 2) (greater 1 2) (greater-equal 1 2))}");
    EXPECT_EQ(mainOf("அச்சிடு(1 பெருக்குஇருமை 2, 1 கூட்டுஇருமை 2, 1 வேறுஇருமை 2, 1 இடதுஇருமை 2, 1 வலதுஇருமை 2)\n"),
              "{(print (bit-and 1 2) (bit-or 1 2) (bit-xor 1 2) (shift-left 1 2) (shift-right 1 2))}");
    EXPECT_EQ(mainOf("அச்சிடு(மெய் மற்றும் பொய், மெய் அல்லது பொய், இல்லை மெய், எதிர்இருமை 1, மிகை 1)\n"),
              "{(print (and true false) (or true false) (not true) (bit-not 1) (plus 1))}");
    EXPECT_EQ(mainOf("அச்சிடு(மெய் ? 1 : 2)\n"), "{(print (choose true 1 2))}");
}

TEST(SecondValues, EveryCompoundWord) {
    EXPECT_EQ(mainOf("அ = 1\nஅ கூட்டிசேர் 1\nஅ கழிசேர் 1\nஅ பெருக்குசேர் 1\nஅ வகுசேர் 1\nஅ மீதிசேர் 1\n"),
              "{(set ::அ 1) (set-add ::அ 1) (set-subtract ::அ 1) (set-multiply ::அ 1) (set-divide ::அ 1) "
              "(set-remainder ::அ 1)}");
    EXPECT_EQ(mainOf("அ = 1\nஅ பெஇசேர் 1\nஅ கூட்டுஇசேர் 1\nஅ வேஇசேர் 1\nஅ இடதுஇசேர் 1\nஅ வலதுஇசேர் 1\n"),
              "{(set ::அ 1) (set-bit-and ::அ 1) (set-bit-or ::அ 1) (set-bit-xor ::அ 1) (set-shift-left ::அ 1) "
              "(set-shift-right ::அ 1)}");
    EXPECT_EQ(mainOf("அ = 1\nஅ ஒன்றுசேர்\nஅ ஒன்றுகழி\nஅ ஒன்றுசேர் 3\n"),
              "{(set ::அ 1) (set-add ::அ 1) (set-subtract ::அ 1) (set-add ::அ 3)}");
}

TEST(SecondValues, AnAssignmentIsAValue) {
    EXPECT_EQ(mainOf("அ = ஆ = 7\n"), "{(set ::அ (set ::ஆ 7))}");
}

TEST(SecondValues, MembersOfEnumerationsAreNumbers) {
    EXPECT_EQ(mainOf("அச்சிடு(நிறம்.சிவப்பு, நிறம்.பச்சை)\nவகை நிறம்:\n    சிவப்பு\n    பச்சை\n"), "{(print 0 1)}");
}

TEST(SecondValues, AParameterHidesAnEnumeration) {
    EXPECT_THAT(resolvedText("வகை நிறம்:\n    சிவப்பு\nசெயல் f(நிறம்):\n    திரும்பு நிறம்.சிவப்பு\nf(1)\n"),
                HasSubstr("(return (member நிறம் சிவப்பு))"));
}

// Places.

TEST(SecondPlaces, EveryPlaceCanBeWritten) {
    EXPECT_EQ(mainOf("அ = [[1]]\nஅ[0][0] = 2\nஅ[0] கூட்டிசேர் [3]\n"),
              "{(set ::அ (list (list 1))) (set ::அ[0][0] 2) (set-add ::அ[0] (list 3))}");
}

TEST(SecondPlaces, AMemberOfAnyObjectIsAPlace) {
    EXPECT_THAT(resolvedText("செயல் f(ப):\n    ப().அ[0].ஆ = 1\nf(1)\n"),
                HasSubstr("(set (element (member (call-value ப) அ) 0).ஆ 1)"));
}

TEST(SecondPlaces, AnElementOfAValueThatNobodyHoldsIsNone) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    திரும்பு [1]\nf()[0] = 2\n"), ElementsAre("573 3 'f()[0]'"));
    EXPECT_THAT(meaningFaults("வகை நிறம்:\n    சிவப்பு\nநிறம்.சிவப்பு = 2\n"), ElementsAre("573 3 'நிறம்.சிவப்பு'"));
}

TEST(SecondPlaces, MutableParametersTakePlaces) {
    const std::string text = "செயல் f(மாற்று அ, ஆ):\n    அ = ஆ\nப = [1]\nவ = 1\nf(வ, 2)\nf(ப[0], ப[0])\n";
    EXPECT_EQ(mainOf(text),
              "{(set ::ப (list 1)) (set ::வ 1) (do (call f &::வ 2)) (do (call f &::ப[0] (element ::ப 0)))}");
}

TEST(SecondPlaces, MutableParametersTakeNothingElse) {
    const std::string f = "செயல் f(மாற்று அ):\n    அ = 1\n";
    EXPECT_THAT(meaningFaults(f + "f(1)\n"), ElementsAre("574 3 '1'"));
    EXPECT_THAT(meaningFaults(f + "f(f)\n"), ElementsAre("574 3 'f'"));
    EXPECT_THAT(meaningFaults(f + "வ = 1\nf(வ கூட்டு 1)\n"), ElementsAre("574 4 'வ கூட்டு 1'"));
}

TEST(SecondPlaces, BuiltinsThatChangeTheirFirstArgumentTakeAPlace) {
    EXPECT_EQ(mainOf("ப = [1]\nவை(ப, 0, 2)\nநீக்கு(ப, 2)\nஅச்சிடு(எடு(ப, 0))\n"),
              "{(set ::ப (list 1)) (do (@put &::ப 0 2)) (do (@removeFrom &::ப 2)) (print (@get ::ப 0))}");
    EXPECT_THAT(meaningFaults("வை([1], 0, 2)\n"), ElementsAre("574 1 '[1]'"));
}

TEST(SecondPlaces, AFunctionValueMayTakeAPlaceIfSomeFunctionDoes) {
    EXPECT_THAT(mainOf("வ = (மாற்று அ) => (அ = 2)\nஇ = 1\nவ(இ)\nவ(இ கூட்டு 1)\n"),
                HasSubstr("(do (call-value ::வ &::இ)) (do (call-value ::வ (add ::இ 1)))"));
    EXPECT_THAT(mainOf("வ = அ => அ\nஇ = 1\nவ(இ)\n"), HasSubstr("(do (call-value ::வ ::இ))"));
    EXPECT_THAT(mainOf("வ = அ => அ\nசெயல் f(மாற்று அ):\n    அ = 1\nஇ = 1\nவ(இ)\nf(இ)\n"),
                HasSubstr("(do (call-value ::வ ::இ))"));
}

TEST(SecondPlaces, AFunctionOfTheLanguageMayTakeThemAsAValueToo) {
    EXPECT_THAT(mainOf("வ = சேர்\nப = [1]\nவ(ப, 2)\n"), HasSubstr("(do (call-value ::வ &::ப 2))"));
    EXPECT_THAT(mainOf("வ = நீளம்\nப = [1]\nவ(ப, 2)\n"), HasSubstr("(do (call-value ::வ ::ப 2))"));
    EXPECT_THAT(mainOf("வ = எடு\nப = [1]\nசேர்(ப, 2)\nவ(ப, 0)\n"), HasSubstr("(do (call-value ::வ ::ப 0))"));
}

TEST(SecondPlaces, LateParametersAreNone) {
    std::string parameters;
    for (int number = 1; number <= 30; ++number) {
        parameters += "அ" + std::to_string(number) + ", ";
    }
    EXPECT_THAT(meaningFaults("செயல் f(" + parameters + "மாற்று ஆ, இ):\n    விடு\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("செயல் f(" + parameters + "இ, மாற்று ஆ):\n    விடு\n"), ElementsAre("595 1 'ஆ'"));
    EXPECT_THAT(meaningFaults("கட்டமைப்பு க:\n    செயல் f(தான், " + parameters + "மாற்று ஆ, மாற்று இ):\n        விடு\n"),
                ElementsAre("595 2 'இ'"));
    EXPECT_THAT(meaningFaults("வ = (" + parameters + "இ, மாற்று ஆ) => (ஆ = 1)\n"), ElementsAre("595 1 'ஆ'"));
}

TEST(SecondPlaces, DeepNestingOfPlacesInPlacesEnds) {
    std::string inner = "0";
    for (int depth = 0; depth < 100; ++depth) {
        inner = "f(ப)[" + inner + "].m()";
        inner = "ப[" + inner + "].m()";
    }
    EXPECT_THAT(meaningFaults("செயல் f(அ):\n    திரும்பு அ\nப = [1]\nஇ = ப\nஅச்சிடு(" + inner + ")\n"), IsEmpty());
}

TEST(SecondPlaces, DeepNestingOfRequiredPlacesIsTold) {
    std::string place = "ப[0]";
    for (int depth = 0; depth < 100; ++depth) {
        place = "ப[f(" + place + ")]";
    }
    EXPECT_THAT(meaningFaults("செயல் f(மாற்று அ):\n    திரும்பு அ\nப = [1]\nஅச்சிடு(" + place + ")\n"),
                testing::Contains(testing::StartsWith("591 4 'ப[f(")));
}

// Statements.

TEST(SecondStatements, Conditions) {
    EXPECT_EQ(mainOf("அ = 1\nஎனில் அ சமம் 1:\n    விடு\nஇல்லைஎனில் அ சமம் 2:\n    அச்சிடு(2)\nஇல்லை:\n    அச்சிடு(3)\n"),
              "{(set ::அ 1) (if (equal ::அ 1) {(pass)} (if (equal ::அ 2) {(print 2)} {(print 3)}))}");
}

TEST(SecondStatements, Loops) {
    EXPECT_EQ(mainOf("சுற்று மெய்:\n    நிறுத்து\n"), "{(while true {(break)})}");
    EXPECT_EQ(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    தொடர்\n"), "{(count ::இ 3 {(continue)})}");
    EXPECT_EQ(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(1, 9, 2):\n    விடு\n"), "{(count ::இ 1 9 2 {(pass)})}");
    EXPECT_EQ(mainOf("ஒவ்வொன்றாக இ இல் \"அ\":\n    விடு\n"), "{(each ::இ \"அ\" {(pass)})}");
}

TEST(SecondStatements, ARangeElsewhereIsAList) {
    EXPECT_EQ(mainOf("அ = வரம்பு(3)\n"), "{(set ::அ (@range 3))}");
}

TEST(SecondStatements, ARangeOfTheProgramIsGoneOver) {
    EXPECT_THAT(resolvedText("செயல் வரம்பு(அ):\n    திரும்பு [அ]\nஒவ்வொன்றாக இ இல் வரம்பு(3):\n    விடு\n"),
                HasSubstr("(each ::இ (call வரம்பு 3) {(pass)})"));
}

TEST(SecondStatements, ALoopWhoseVariableIsAssignedCountsApart) {
    EXPECT_THAT(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    இ = 5\n"), HasSubstr("(count-apart ::இ"));
    EXPECT_THAT(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    இ கூட்டிசேர் 5\n"), HasSubstr("(count-apart ::இ"));
    EXPECT_THAT(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    ஒவ்வொன்றாக இ இல் வரம்பு(2):\n        விடு\n"),
                HasSubstr("(count-apart ::இ 3 {(count ::இ 2"));
    EXPECT_THAT(mainOf("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    அச்சிடு((இ = 1))\n"), HasSubstr("(count-apart ::இ"));
    EXPECT_THAT(mainOf("செயல் f(மாற்று அ):\n    அ = 1\nஒவ்வொன்றாக இ இல் வரம்பு(3):\n    f(இ)\n"),
                HasSubstr("(count-apart ::இ"));
}

TEST(SecondStatements, AFunctionMayAssignTheVariableOfALoop) {
    EXPECT_THAT(mainOf("செயல் f():\n    பொது இ\n    இ = 1\nஒவ்வொன்றாக இ இல் வரம்பு(3):\n    f()\n"),
                HasSubstr("(count-apart ::இ"));
    EXPECT_THAT(resolvedText("செயல் f():\n"
                             "    செயல் g():\n"
                             "        இ = 1\n"
                             "    ஒவ்வொன்றாக இ இல் வரம்பு(3):\n"
                             "        g()\n"
                             "f()\n"),
                HasSubstr("(count-apart ^இ"));
}

TEST(SecondStatements, ChoicesTriesAndWaits) {
    EXPECT_EQ(mainOf("தேர்வு 1:\n    நிலை 1:\n        அச்சிடு(1)\n    மற்றவை:\n        அச்சிடு(2)\n"),
              "{(switch 1 1=>{(print 1)} {(print 2)})}");
    EXPECT_EQ(mainOf("முயற்சி:\n    விடு\nபிடி(ஏன்):\n    அச்சிடு(ஏன்)\n"), "{(try {(pass)} ::ஏன் {(print ::ஏன்)})}");
    EXPECT_EQ(mainOf("காத்திரு 1\n"), "{(wait 1)}");
}

TEST(SecondStatements, WhatLeavesALoopStandsInOne) {
    EXPECT_THAT(meaningFaults("நிறுத்து\nதொடர்\nதிரும்பு 1\n"),
                ElementsAre("559 1 'நிறுத்து'", "560 2 'தொடர்'", "561 3 'திரும்பு 1'"));
}

TEST(SecondStatements, ALoopEndsAtTheFunctionsInside) {
    EXPECT_THAT(meaningFaults("சுற்று மெய்:\n    செயல் f():\n        நிறுத்து\n    f()\n    நிறுத்து\n"),
                ElementsAre("559 3 'நிறுத்து'"));
}

TEST(SecondStatements, AChoiceIsNoLoop) {
    EXPECT_THAT(meaningFaults("தேர்வு 1:\n    நிலை 1:\n        நிறுத்து\n"), ElementsAre("559 3 'நிறுத்து'"));
}

// Calls.

TEST(SecondCalls, TheNumberOfArgumentsIsToldWithBothNumbers) {
    EXPECT_THAT(meaningFaults("செயல் f(அ):\n    விடு\nf()\nf(1, 2)\nf(1)\n"),
                ElementsAre("558 3 'f()'", "558 4 'f(1, 2)'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(நீளம்())\nஅச்சிடு(வரம்பு())\n"), ElementsAre("558 1 'நீளம்()'", "558 2 'வரம்பு()'"));
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக இ இல் வரம்பு():\n    விடு\n"), ElementsAre("558 1 'வரம்பு()'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(நேரம்.வினாடிகள்(1))\n"), ElementsAre("558 1 'நேரம்.வினாடிகள்(1)'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(உள்ளீடு(), உள்ளீடு(\"அ\"))\n"), IsEmpty());
}

TEST(SecondCalls, TheCountOfAnInnerFunctionThatSharesIsKnownToo) {
    EXPECT_THAT(meaningFaults("செயல் f(அ):\n    செயல் g():\n        திரும்பு அ\n    திரும்பு g(1)\nf(1)\n"),
                ElementsAre("558 4 'g(1)'"));
}

TEST(SecondCalls, BracketsAroundTheFunctionChangeNothing) {
    EXPECT_EQ(mainOf("செயல் f():\n    விடு\n(f)()\n"), "{(do (call f))}");
}

TEST(SecondCalls, ValuesAreCalled) {
    EXPECT_EQ(mainOf("ப = [எ => எ]\nஅச்சிடு(ப[0](1), (எ => எ)(2))\n"),
              "{(set ::ப (list 'வினை)) (print (call-value (element ::ப 0) 1) (call-value 'வினை 2))}");
}

TEST(SecondCalls, MethodsOfUnknownValuesTakeTheirPlace) {
    EXPECT_THAT(resolvedText("செயல் f(ப):\n    ப[0].சேர்(1)\n    g(ப).சேர்(2)\nசெயல் g(அ):\n    திரும்பு அ\nவ = f\nவ(1)\n"),
                HasSubstr("(do (method &ப[0] சேர் 1)) (do (method (call g ப) சேர் 2))"));
}

TEST(SecondCalls, MethodsOfCertainKindsAreBuiltins) {
    EXPECT_EQ(mainOf("ப = [1]\nப.சேர்(2)\nஅச்சிடு(ப.நீளம்(), \"அ\".நீளம்())\n"),
              "{(set ::ப (list 1)) (do (@append &::ப 2)) (print (@length ::ப) (@length \"அ\"))}");
    EXPECT_EQ(mainOf("ந = இப்போதுநேரம்()\nஅச்சிடு(ந.ஆண்டு, ந.தேதி())\n"),
              "{(set ::ந (@now)) (print (@year ::ந) (@dateText ::ந))}");
    EXPECT_EQ(mainOf("ப = [1]\nப = \"அ\"\nஅச்சிடு(ப.நீளம்())\n"),
              "{(set ::ப (list 1)) (set ::ப \"அ\") (print (method &::ப நீளம்))}");
}

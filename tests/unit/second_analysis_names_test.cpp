#include "support/resolved_text.h"

#include <gmock/gmock.h>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Variables of functions and files.

TEST(SecondNames, AVariableThatAFunctionAssignsBelongsToItsCall) {
    const std::string text = resolvedText("அ = 1\nசெயல் f():\n    அ = 9\n    திரும்பு அ\nf()\n");
    EXPECT_THAT(text, HasSubstr("f(): {(set அ 9) (return அ)}"));
    EXPECT_THAT(text, HasSubstr("main: {(set ::அ 1) (do (call f))}"));
}

TEST(SecondNames, AFunctionReadsTheVariablesOfItsFile) {
    EXPECT_THAT(resolvedText("அ = 1\nசெயல் f():\n    திரும்பு அ\nஅச்சிடு(f())\n"), HasSubstr("f(): {(return ::அ)}"));
}

TEST(SecondNames, PublicNamesAreThoseOfTheFile) {
    EXPECT_THAT(resolvedText("அ = 1\nசெயல் f():\n    பொது அ\n    அ கூட்டிசேர் 1\nf()\n"),
                HasSubstr("f(): {(set-add ::அ 1)}"));
}

TEST(SecondNames, AFunctionAloneCanGiveTheFileAVariable) {
    EXPECT_THAT(resolvedText("செயல் f():\n    பொது அ\n    அ = 1\nf()\nஅச்சிடு(அ)\n"), HasSubstr("(print ::அ?)"));
}

TEST(SecondNames, PublicHoldsWhereverItStandsInTheFunction) {
    EXPECT_THAT(resolvedText("அ = 1\nசெயல் f():\n    அ = 2\n    பொது அ\nf()\n"), HasSubstr("f(): {(set ::அ 2)}"));
}

TEST(SecondNames, InnerFunctionsInheritPublicNames) {
    const std::string text = resolvedText("அ = 1\nசெயல் f():\n    பொது அ\n    செயல் g():\n        அ = 2\n    g()\nf()\n");
    EXPECT_THAT(text, HasSubstr("g(): {(set ::அ 2)}"));
}

TEST(SecondNames, ABlockIsNoScope) {
    EXPECT_THAT(resolvedText("எனில் மெய்:\n    அ = 1\nஅச்சிடு(அ)\n"), HasSubstr("(print ::அ?)"));
}

TEST(SecondNames, LoopAndCatchVariablesBelongToTheFunction) {
    const std::string text = resolvedText("இ = 1\n"
                                          "பிழை = 2\n"
                                          "செயல் f():\n"
                                          "    ஒவ்வொன்றாக இ இல் வரம்பு(3):\n"
                                          "        விடு\n"
                                          "    முயற்சி:\n"
                                          "        விடு\n"
                                          "    பிடி:\n"
                                          "        அச்சிடு(பிழை)\n"
                                          "f()\n");
    EXPECT_THAT(text, HasSubstr("(count இ 3"));
    EXPECT_THAT(text, HasSubstr("(try {(pass)} பிழை {(print பிழை)})"));
}

TEST(SecondNames, ALoopAtTopLevelFillsAVariableOfTheFile) {
    EXPECT_THAT(resolvedText("ஒவ்வொன்றாக எ இல் [1]:\n    அச்சிடு(எ)\n"), HasSubstr("(each ::எ (list 1) {(print ::எ)})"));
}

// Shared variables.

TEST(SecondNames, AnInnerFunctionChangesTheVariableAroundIt) {
    const std::string text = resolvedText("செயல் f():\n"
                                          "    அ = 0\n"
                                          "    செயல் g():\n"
                                          "        அ = அ கூட்டு 1\n"
                                          "        திரும்பு அ\n"
                                          "    திரும்பு g\n"
                                          "f()\n");
    EXPECT_THAT(text, HasSubstr("f(): {(define g 'g[அ]) (set ^அ 0) (return g)}"));
    EXPECT_THAT(text, HasSubstr("g[அ](): {(set ^அ (add ^அ? 1)) (return ^அ)}"));
}

TEST(SecondNames, AVariableFurtherOutIsTakenAlongByEveryFunctionBetween) {
    const std::string text = resolvedText("செயல் f(அ):\n    திரும்பு இ => (உ => அ கூட்டு உ)\nஅச்சிடு(f(1)(2)(3))\n");
    EXPECT_THAT(text, HasSubstr("f(^அ): {(return 'வினை[அ])}"));
    EXPECT_THAT(text, HasSubstr("வினை[அ](இ): {(return 'வினை[அ])}"));
    EXPECT_THAT(text, HasSubstr("வினை[அ](உ): {(return (add ^அ உ))}"));
}

TEST(SecondNames, ParametersOfAnInnerFunctionAreItsOwn) {
    const std::string text = resolvedText("செயல் f(அ):\n    g = அ => (அ = அ கூட்டு 1)\n    திரும்பு g(அ)\nf(1)\n");
    EXPECT_THAT(text, HasSubstr("f(அ): {(set g 'வினை)"));
    EXPECT_THAT(text, HasSubstr("வினை(அ): {(return (set அ (add அ 1)))}"));
}

TEST(SecondNames, LoopVariablesOfAnInnerFunctionAreItsOwn) {
    const std::string text = resolvedText("செயல் f(இ):\n"
                                          "    செயல் g():\n"
                                          "        ஒவ்வொன்றாக இ இல் வரம்பு(3):\n"
                                          "            விடு\n"
                                          "    g()\n"
                                          "    திரும்பு இ\n"
                                          "f(1)\n");
    EXPECT_THAT(text, HasSubstr("f(இ): {(do (call g)) (return இ)}"));
}

TEST(SecondNames, ALambdaAtTopLevelHasItsOwnVariables) {
    EXPECT_THAT(resolvedText("அ = 1\nf = எ => (அ = எ)\nf(2)\n"), HasSubstr("வினை(எ): {(return (set அ எ))}"));
}

TEST(SecondNames, InnerFunctionsWithoutSharedVariablesAreCalledDirectly) {
    const std::string text = resolvedText("செயல் f(n):\n"
                                          "    செயல் g(n):\n"
                                          "        எனில் n சமம் 0:\n"
                                          "            திரும்பு 0\n"
                                          "        திரும்பு g(n கழி 1)\n"
                                          "    திரும்பு g(n)\n"
                                          "f(1)\n");
    EXPECT_THAT(text, HasSubstr("f(n): {(return (call g n))}"));
    EXPECT_THAT(text, HasSubstr("g(n): {(if (equal n 0) {(return 0)}) (return (call g (subtract n 1)))}"));
}

TEST(SecondNames, WhoCallsASharingFunctionSharesIt) {
    const std::string text = resolvedText("செயல் f():\n"
                                          "    அ = 0\n"
                                          "    செயல் g():\n"
                                          "        திரும்பு அ\n"
                                          "    செயல் h():\n"
                                          "        திரும்பு g()\n"
                                          "    திரும்பு h()\n"
                                          "f()\n");
    EXPECT_THAT(text, HasSubstr("f(): {(define ^g 'g[அ]) (define h 'h[g]) (set ^அ 0) (return (call-value h))}"));
    EXPECT_THAT(text, HasSubstr("h[g](): {(return (call-value ^g))}"));
}

TEST(SecondNames, FunctionsThatCallEachOtherShareEachOther) {
    const std::string text = resolvedText("செயல் f(அ):\n"
                                          "    செயல் g(n):\n"
                                          "        திரும்பு n சமம் அ அல்லது h(n)\n"
                                          "    செயல் h(n):\n"
                                          "        திரும்பு g(n கழி 1)\n"
                                          "    திரும்பு g(3)\n"
                                          "f(1)\n");
    EXPECT_THAT(text, HasSubstr("g[அ h](n)"));
    EXPECT_THAT(text, HasSubstr("h[g](n)"));
}

// Functions.

TEST(SecondNames, OrderDoesNotMatter) {
    EXPECT_THAT(resolvedText("அச்சிடு(f())\nசெயல் f():\n    திரும்பு g()\nசெயல் g():\n    திரும்பு 1\n"),
                HasSubstr("f(): {(return (call g))}"));
}

TEST(SecondNames, AFunctionInABlockOfTheFileIsOneOfTheFile) {
    EXPECT_THAT(resolvedText("f()\nஎனில் மெய்:\n    செயல் f():\n        விடு\n"), HasSubstr("(do (call f))"));
}

TEST(SecondNames, AFunctionIsAValue) {
    EXPECT_THAT(resolvedText("செயல் f():\n    விடு\nவ = f\nவ()\n"), HasSubstr("(set ::வ 'f) (do (call-value ::வ))"));
}

TEST(SecondNames, ABuiltinIsAValue) {
    EXPECT_THAT(resolvedText("வ = நீளம்\nஅச்சிடு(வ(\"அ\"))\n"), HasSubstr("(set ::வ @length)"));
}

TEST(SecondNames, AFunctionOfTheProgramGoesBeforeABuiltin) {
    EXPECT_THAT(resolvedText("செயல் நீளம்(அ):\n    திரும்பு 7\nஅச்சிடு(நீளம்(1))\n"), HasSubstr("(call நீளம் 1)"));
}

TEST(SecondNames, AParameterGoesBeforeABuiltin) {
    EXPECT_THAT(resolvedText("செயல் f(நீளம்):\n    திரும்பு நீளம்(1)\nf(எ => எ)\n"),
                HasSubstr("(return (call-value நீளம் 1))"));
}

TEST(SecondNames, AVariableLetsCallsThroughToItsNamesake) {
    EXPECT_THAT(resolvedText("செயல் மொத்தம்(ப):\n    திரும்பு 3\nமொத்தம் = மொத்தம்([1])\nஅச்சிடு(மொத்தம்)\n"),
                HasSubstr("(set ::மொத்தம் (call மொத்தம் (list 1))) (print ::மொத்தம்)"));
    EXPECT_THAT(resolvedText("நேரம் = நேரம்()\nஅச்சிடு(நேரம்)\n"), HasSubstr("(set ::நேரம் (@clockText))"));
    EXPECT_THAT(resolvedText("செயல் f(ப):\n    நீளம் = நீளம்(ப)\n    திரும்பு நீளம்\nஅச்சிடு(f([]))\n"),
                HasSubstr("f(ப): {(set நீளம் (@length ப)) (return நீளம்)}"));
}

TEST(SecondNames, AVariableThatHoldsAFunctionGoesBeforeABuiltin) {
    EXPECT_THAT(resolvedText("நீளம் = எ => 7\nஅச்சிடு(நீளம்(1))\n"), HasSubstr("(print (call-value ::நீளம் 1))"));
    EXPECT_THAT(resolvedText("செயல் f():\n    விடு\nசெயல் g():\n    நீளம் = f\n    நீளம்()\ng()\n"),
                HasSubstr("(do (call-value நீளம்))"));
}

TEST(SecondNames, NothingIsAValueUnlessTheProgramUsesTheName) {
    EXPECT_THAT(resolvedText("அச்சிடு(வெறுமை)\n"), HasSubstr("(print nothing)"));
    EXPECT_THAT(resolvedText("வெறுமை = 1\nஅச்சிடு(வெறுமை)\n"), HasSubstr("(print ::வெறுமை)"));
}

TEST(SecondNames, TheClockIsPartOfTimeUnlessTheProgramUsesTheName) {
    EXPECT_THAT(resolvedText("அச்சிடு(நேரம்.வினாடிகள்())\n"), HasSubstr("(print (@secondsSince1970))"));
    EXPECT_THAT(resolvedText("செயல் f(நேரம்):\n    திரும்பு நேரம்.வினாடிகள்()\nf(1)\n"),
                HasSubstr("(method &நேரம் வினாடிகள்)"));
}

TEST(SecondNames, WhatTheClockDoesNotHaveIsToldWithWhatItHas) {
    EXPECT_THAT(meaningFaults("அச்சிடு(நேரம்.உருவாக்கு(1))\n"), ElementsAre("555 1 'உருவாக்கு'"));
}

TEST(SecondNames, ABuiltinIsNoPlace) {
    EXPECT_THAT(meaningFaults("அச்சிடு(நீளம்.சேர்(1))\n"), ElementsAre("555 1 'சேர்'"));
    EXPECT_THAT(meaningFaults("வை(நீளம், 0, 1)\n"), ElementsAre("574 1 'நீளம்'"));
}

// Faults.

TEST(SecondNames, AnUnknownNameIsToldOnceWithTheNearest) {
    EXPECT_THAT(meaningFaults("மொத்தம் = 5\nஅச்சிடு(மொதம்)\nஅச்சிடு(மொதம்)\n"),
                ElementsAre("551 2 'மொதம்' → ஒருவேளை 'மொத்தம்' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondNames, UnknownNamesThatDifferAreAllTold) {
    EXPECT_THAT(meaningFaults("அச்சிடு(ஒன்று கூட்டு இரண்டு)\n"), ElementsAre("551 1 'ஒன்று'", "551 1 'இரண்டு'"));
}

TEST(SecondNames, AnUnknownFunctionIsToldWithTheNearest) {
    EXPECT_THAT(meaningFaults("அச்சிடூ(1)\n"), ElementsAre("552 1 'அச்சிடூ' → ஒருவேளை 'அச்சிடு' என்று எழுத நினைத்தாயா?"));
    EXPECT_THAT(meaningFaults("அச்சிடு(நீலம்(\"அ\"))\n"), ElementsAre("552 1 'நீலம்' → ஒருவேளை 'நீளம்' என்று எழுத நினைத்தாயா?"));
    EXPECT_THAT(meaningFaults("செயல் வாழ்த்து():\n    விடு\nவாழ்து()\n"),
                ElementsAre("552 3 'வாழ்து' → ஒருவேளை 'வாழ்த்து' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondNames, ANameOfAnotherFunctionIsToldAsSuch) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    அ = 9\nf()\nஅச்சிடு(அ)\n"), ElementsAre("553 4 'அ'"));
}

TEST(SecondNames, ANameIsLookedForInItsOwnFunctionFirst) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    விலை = 9\n    திரும்பு விலே\nf()\n"),
                ElementsAre("551 3 'விலே' → ஒருவேளை 'விலை' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondNames, MembersOfTheObjectAreToldAsSuch) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு நபர்:\n    வயது = 1\n    செயல் காட்டு(தான்):\n        அச்சிடு(வயது)\n"
                              "        வளர்()\n    செயல் வளர்(தான்):\n        விடு\n"),
                ElementsAre("593 4 'வயது'", "593 5 'வளர்'"));
    // Its constructor has a parameter of the same name.
    EXPECT_THAT(meaningFaults("கட்டமைப்பு நபர்:\n    வயது = 1\n    செயல் துவக்கம்(தான், வயது):\n        தான்.வயது = வயது\n"
                              "    செயல் காட்டு(தான்):\n        அச்சிடு(வயது)\n"),
                ElementsAre("593 6 'வயது'"));
}

TEST(SecondNames, ASecondDefinitionIsTold) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    விடு\nசெயல் f():\n    விடு\n"), ElementsAre("562 3 'f'"));
    EXPECT_THAT(meaningFaults("செயல் f():\n    விடு\nகட்டமைப்பு f:\n    அ = 1\n"), ElementsAre("562 3 'f'"));
    EXPECT_THAT(meaningFaults("வகை நிறம்:\n    சிவப்பு\n    சிவப்பு\n"), ElementsAre("562 3 'சிவப்பு'"));
    EXPECT_THAT(meaningFaults("செயல் f():\n    செயல் g():\n        விடு\n    செயல் g():\n        விடு\nf()\n"),
                ElementsAre("562 4 'g'"));
}

TEST(SecondNames, AFunctionAndAVariableThatHoldsOneMayNotShareAName) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    விடு\nf = எ => எ\n"), ElementsAre("562 3 'f'"));
    EXPECT_THAT(meaningFaults("வகை நிறம்:\n    சிவப்பு\nநிறம் = 1\n"), ElementsAre("562 3 'நிறம்'"));
    EXPECT_THAT(meaningFaults("செயல் f():\n    செயல் g():\n        விடு\n    g = 1\nf()\n"), ElementsAre("562 4 'g'"));
}

TEST(SecondNames, DoubleParametersAreTold) {
    EXPECT_THAT(meaningFaults("செயல் f(அ, ஆ, அ):\n    விடு\n"), ElementsAre("564 1 'அ'"));
    EXPECT_THAT(meaningFaults("f = (அ, அ) => அ\n"), ElementsAre("564 1 'அ'"));
    EXPECT_THAT(meaningFaults("செயல் f(அ, அ):\n    திரும்பு அ\nஅச்சிடு(f(1, 2))\n"), ElementsAre("564 1 'அ'"));
}

TEST(SecondNames, APublicParameterIsTold) {
    EXPECT_THAT(meaningFaults("செயல் f(அ):\n    பொது அ\n    அ = 1\nf(1)\n"), ElementsAre("583 2 'அ'"));
}

TEST(SecondNames, StructuresAndEnumerationsAreNoValues) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு க:\n    அ = 1\nஅச்சிடு(க)\n"), ElementsAre("584 3 'க'"));
    EXPECT_THAT(meaningFaults("வகை நிறம்:\n    சிவப்பு\nஅச்சிடு(நிறம்)\n"), ElementsAre("585 3 'நிறம்'"));
}

TEST(SecondNames, AFunctionInsideAnotherIsToldAsSuch) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    செயல் g():\n        விடு\n    g()\nf()\ng()\nஅச்சிடு(g)\n"),
                ElementsAre("592 6 'g'"));
}

TEST(SecondNames, FaultsComeInTheOrderOfTheText) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    திரும்பு ஒன்று\nஅச்சிடு(இரண்டு)\nf(1)\nசெயல் g():\n    திரும்பு மூன்று\n"),
                ElementsAre("551 2 'ஒன்று'", "551 3 'இரண்டு'", "558 4 'f(1)'", "551 6 'மூன்று'"));
}

TEST(SecondNames, OneFaultMoreIsFoundThanAreTold) {
    std::string text;
    for (int count = 0; count < 12; ++count) {
        text += "நிறுத்து\n";
    }
    EXPECT_EQ(meaningFaults(text).size(), pozhil::MAX_FOUND_FAULTS);
}

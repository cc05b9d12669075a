#include "support/resolved_text.h"

#include <gmock/gmock.h>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string PERSON = "கட்டமைப்பு நபர்:\n"
                           "    பெயர் = \"\"\n"
                           "    ரகசிய வயது = 1\n"
                           "    செயல் துவக்கம்(தான், ப):\n"
                           "        தான்.பெயர் = ப\n"
                           "        தான்.ஊர் = \"\"\n"
                           "    செயல் சொல்(தான்):\n"
                           "        திரும்பு தான்.வயது\n"; // 8 lines

} // namespace

TEST(SecondStructures, FieldsAreThoseOfTheBodyAndThoseThatMethodsAssign) {
    EXPECT_THAT(resolvedText(PERSON), HasSubstr("structure நபர்: பெயர்=\"\" -வயது=1 ஊர் துவக்கம்() சொல்()\n"));
}

TEST(SecondStructures, FieldsThatAParentHasAreNotMadeAnew) {
    EXPECT_THAT(resolvedText("கட்டமைப்பு ஆ(அ):\n"
                             "    செயல் m(தான்):\n"
                             "        தான்.எ = 1\n"
                             "        தான்.ஏ = 1\n"
                             "கட்டமைப்பு அ:\n"
                             "    எ = 0\n"),
                HasSubstr("structure அ: எ=0\nstructure ஆ < அ: ஏ m()\n"));
}

TEST(SecondStructures, AFieldThatIsOnlyChangedIsNone) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    செயல் m(தான்):\n        தான்.எ கூட்டிசேர் 1\n"), ElementsAre("555 3 'எ'"));
}

TEST(SecondStructures, FirstValuesAreEvaluatedInTheFile) {
    EXPECT_THAT(resolvedText("அளவு = 3\nசெயல் f():\n    அளவு = 4\n    திரும்பு க()\nகட்டமைப்பு க:\n    அ = அளவு\nf()\n"),
                HasSubstr("structure க: அ=::அளவு"));
}

TEST(SecondStructures, MethodsCallFunctionsAndConstructStructuresBelow) {
    EXPECT_THAT(resolvedText("கட்டமைப்பு அ:\n    செயல் m(தான்):\n        f()\n        திரும்பு ஆ()\n"
                             "செயல் f():\n    விடு\nகட்டமைப்பு ஆ:\n    எ = 1\n"),
                HasSubstr("அ.m(தான்): {(do (call f)) (return (new ஆ))}"));
}

TEST(SecondStructures, MethodsOfAKnownObjectAreCalledDirectly) {
    EXPECT_THAT(resolvedText(PERSON + "ப = நபர்(\"அ\")\nஅச்சிடு(ப.சொல்())\n"), HasSubstr("(print (call சொல் ::ப))"));
}

TEST(SecondStructures, MethodsOfWhatMayBeAnythingAreLookedUp) {
    EXPECT_THAT(resolvedText(PERSON + "ப = நபர்(\"அ\")\nப = [1]\nஅச்சிடு(ப.சொல்())\n"),
                HasSubstr("(print (method &::ப சொல்))"));
}

TEST(SecondStructures, OwnMethodsAreCalledDirectlyUnlessAChildOverridesThem) {
    const std::string parent = "கட்டமைப்பு அ:\n    செயல் m(தான்):\n        திரும்பு தான்.n()\n"
                               "    செயல் n(தான்):\n        திரும்பு 1\n";
    EXPECT_THAT(resolvedText(parent), HasSubstr("அ.m(தான்): {(return (call n தான்))}"));
    EXPECT_THAT(resolvedText(parent + "கட்டமைப்பு ஆ(அ):\n    செயல் n(தான்):\n        திரும்பு 2\n"),
                HasSubstr("அ.m(தான்): {(return (method &தான் n))}"));
    EXPECT_THAT(resolvedText(parent + "கட்டமைப்பு ஆ(அ):\n    எ = 1\nகட்டமைப்பு இ(ஆ):\n    n = 3\n"),
                HasSubstr("அ.m(தான்): {(return (method &தான் n))}"));
}

TEST(SecondStructures, AFieldThatHoldsAFunctionIsNoMethod) {
    EXPECT_THAT(resolvedText("கட்டமைப்பு அ:\n    n = எ => எ\nப = அ()\nப.n(1)\n"), HasSubstr("(do (method &::ப n 1))"));
}

TEST(SecondStructures, AMethodIsCalledByItsStructure) {
    EXPECT_THAT(resolvedText("கட்டமைப்பு அ:\n    செயல் m(தான்):\n        திரும்பு 1\nகட்டமைப்பு ஆ(அ):\n"
                             "    செயல் m(தான்):\n        திரும்பு அ.m(தான்)\nஅச்சிடு(ஆ.m(ஆ()))\n"),
                HasSubstr("ஆ.m(தான்): {(return (call m தான்))}"));
}

TEST(SecondStructures, AMethodNamedByItsStructureTakesItsObject) {
    const std::string text = "கட்டமைப்பு அ:\n    செயல் m(தான்):\n        திரும்பு 1\nப = அ()\n";
    EXPECT_THAT(meaningFaults(text + "அ.m()\n"), ElementsAre("558 5 'அ.m()'"));
    EXPECT_THAT(meaningFaults(text + "அ.k(ப)\n"), ElementsAre("555 5 'k'"));
}

TEST(SecondStructures, ConstructionTakesTheArgumentsOfTheNearestConstructor) {
    const std::string text = PERSON + "கட்டமைப்பு மாணவர்(நபர்):\n    வகுப்பு = 1\n";
    EXPECT_THAT(meaningFaults(text + "ப = மாணவர்(\"அ\")\n"), IsEmpty());
    EXPECT_THAT(meaningFaults(text + "ப = மாணவர்()\n"), ElementsAre("558 11 'மாணவர்()'"));
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    எ = 1\nப = அ(1)\n"), ElementsAre("558 3 'அ(1)'"));
}

// Parents.

TEST(SecondStructures, AnUnknownParentIsToldWithTheNearest) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு விலங்கு:\n    அ = 1\nகட்டமைப்பு நாய்(விளங்கு):\n    ஆ = 1\n"),
                ElementsAre("586 3 'விளங்கு' → ஒருவேளை 'விலங்கு' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondStructures, AFunctionIsNoParent) {
    EXPECT_THAT(meaningFaults("செயல் f():\n    விடு\nகட்டமைப்பு நாய்(f):\n    ஆ = 1\n"), ElementsAre("586 3 'f'"));
}

TEST(SecondStructures, ACircleOfParentsIsToldOnce) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ(ஆ):\n    எ = 1\nகட்டமைப்பு ஆ(அ):\n    ஏ = 1\n"), ElementsAre("567 1 'அ'"));
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ(அ):\n    எ = 1\n"), ElementsAre("567 1 'அ'"));
}

TEST(SecondStructures, WhatAnAbstractStructureAsksForIsWritten) {
    const std::string shape = "வடிவமைப்பு வடிவம்:\n    செயல் பரப்பு(தான்)\n    செயல் நகர்(தான், எ)\n";
    EXPECT_THAT(meaningFaults(shape + "கட்டமைப்பு வட்டம்(வடிவம்):\n    செயல் நகர்(தான்):\n        விடு\n"),
                ElementsAre("568 4 'வட்டம்'", "569 5 'நகர்'"));
    EXPECT_THAT(meaningFaults(shape + "ப = வடிவம்()\n"), ElementsAre("570 4 'வடிவம்()'"));
}

TEST(SecondStructures, GrandchildrenInheritWhatTheParentWrites) {
    EXPECT_THAT(meaningFaults("வடிவமைப்பு வடிவம்:\n    செயல் m(தான்)\n"
                              "கட்டமைப்பு அ(வடிவம்):\n    செயல் m(தான்):\n        விடு\n"
                              "கட்டமைப்பு ஆ(அ):\n    எ = 1\n"),
                IsEmpty());
}

TEST(SecondStructures, AMethodWithoutBodyIsNotCalledByItsStructure) {
    EXPECT_THAT(meaningFaults("வடிவமைப்பு அ:\n    செயல் m(தான்)\nகட்டமைப்பு ஆ(அ):\n    செயல் m(தான்):\n        அ.m(தான்)\n"),
                ElementsAre("587 5 'm'"));
}

TEST(SecondStructures, DoubleMembersAreTold) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    எ = 1\n    எ = 2\n"), ElementsAre("562 3 'எ'"));
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    எ = 1\n    செயல் எ(தான்):\n        விடு\n"), ElementsAre("562 3 'எ'"));
}

// Members.

TEST(SecondStructures, AnUnknownMemberOfAKnownObjectIsToldOnce) {
    EXPECT_THAT(meaningFaults(PERSON + "ப = நபர்(\"அ\")\nப.பயர் = 1\nஅச்சிடு(ப.பயர்)\nப.சோல்()\n"),
                ElementsAre("555 10 'பயர்' → ஒருவேளை 'பெயர்' என்று எழுத நினைத்தாயா?",
                            "555 12 'சோல்' → ஒருவேளை 'சொல்' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondStructures, AnUnknownMemberOfTheObjectItselfIsTold) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    பெயர் = 1\n    செயல் m(தான்):\n        திரும்பு தான்.பயர்\n"),
                ElementsAre("555 4 'பயர்' → ஒருவேளை 'பெயர்' என்று எழுத நினைத்தாயா?"));
}

TEST(SecondStructures, AParentMayUseWhatItsChildrenHave) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    செயல் m(தான்):\n        திரும்பு தான்.எ\nகட்டமைப்பு ஆ(அ):\n    ஏ = 1\n"
                              "கட்டமைப்பு இ(ஆ):\n    எ = 1\n"),
                IsEmpty());
}

TEST(SecondStructures, MembersOfWhatMayBeAnythingAreLookedUp) {
    EXPECT_THAT(meaningFaults("செயல் f(ப):\n    திரும்பு ப.பயர்\nகட்டமைப்பு அ:\n    பெயர் = 1\nf(அ())\n"), IsEmpty());
}

TEST(SecondStructures, PrivateMembersAreSeenInTheirStructureAndItsChildren) {
    EXPECT_THAT(meaningFaults(PERSON + "ப = நபர்(\"அ\")\nஅச்சிடு(ப.வயது)\nப.வயது = 2\n"),
                ElementsAre("571 10 'வயது'", "571 11 'வயது'"));
    EXPECT_THAT(meaningFaults(PERSON + "கட்டமைப்பு மாணவர்(நபர்):\n    செயல் m(தான்):\n        திரும்பு தான்.வயது\n"),
                IsEmpty());
    EXPECT_THAT(meaningFaults(PERSON + "கட்டமைப்பு வேறு:\n    செயல் m(தான்):\n        திரும்பு நபர்(\"அ\").வயது\n"),
                ElementsAre("571 11 'வயது'"));
}

TEST(SecondStructures, PrivateMembersAreSeenInLambdasOfMethods) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    ரகசிய எ = 1\n    செயல் m(தான்):\n        திரும்பு () => தான்.எ\n"),
                IsEmpty());
}

TEST(SecondStructures, PrivateMethodsAreSeenAsFieldsAre) {
    EXPECT_THAT(meaningFaults("கட்டமைப்பு அ:\n    ரகசிய செயல் m(தான்):\n        விடு\nஅ().m()\nஅ.m(அ())\n"),
                ElementsAre("571 4 'm'", "571 5 'm'"));
}

TEST(SecondStructures, TheNumberOfArgumentsOfAKnownMethodIsTold) {
    EXPECT_THAT(meaningFaults(PERSON + "ப = நபர்(\"அ\")\nப.சொல்(1)\n"), ElementsAre("558 10 'ப.சொல்(1)'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(\"அ\".தொடக்கம்())\n"), ElementsAre("558 1 '\"அ\".தொடக்கம்()'"));
}

TEST(SecondStructures, TheObjectItselfIsKnownInMethodsAlone) {
    EXPECT_THAT(meaningFaults("அச்சிடு(தான்.பெயர்)\n"), ElementsAre("566 1 'தான்'"));
}

TEST(SecondStructures, MembersOfTextsListsAndMapsAreKnown) {
    EXPECT_THAT(meaningFaults("ப = [1]\nப.சேற்(2)\n"), ElementsAre("555 2 'சேற்' → ஒருவேளை 'சேர்' என்று எழுத நினைத்தாயா?"));
    EXPECT_THAT(meaningFaults("அச்சிடு((5).பெயர்)\n"), ElementsAre("555 1 'பெயர்'"));
}

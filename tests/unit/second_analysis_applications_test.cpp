#include "support/resolved_text.h"

#include <gmock/gmock.h>

#include <string>

using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// An application whose page is \p body and whose logic is \p logic, lines of four blanks.
std::string application(const std::string& body, const std::string& logic, const std::string& after = "") {
    return "வலைதளம் தளம்(\n  தலைமை()\n  குமரி(" + body + ")\n  வரையறை(\n" + logic + "  )\n)\n" + after;
}

} // namespace

// The state of an application.

TEST(SecondApplications, FunctionsOfTheLogicAssignItsVariablesWithoutAWord) {
    const std::string text =
        resolvedText(application("உரை(\"அ\")", "    எண்ணிக்கை = 0\n    செயல் கூட்டு_செய்():\n        எண்ணிக்கை = 5\n"));
    EXPECT_THAT(text, HasSubstr("கூட்டு_செய்(): {(set ::எண்ணிக்கை 5)}"));
    EXPECT_THAT(text, HasSubstr("main: {{(set ::எண்ணிக்கை 0)}}"));
}

TEST(SecondApplications, WhatOnlyOneFunctionKnowsStaysItsOwn) {
    const std::string text = resolvedText(
        application("உரை(\"அ\")", "    எண்ணிக்கை = 0\n    செயல் f():\n        தற்காலிகம் = 5\n        அச்சிடு(தற்காலிகம்)\n"));
    EXPECT_THAT(text, HasSubstr("f(): {(set தற்காலிகம் 5) (print தற்காலிகம்)}"));
}

TEST(SecondApplications, WhatPagesShowIsStateAlsoWhereFunctionsAloneGiveItAValue) {
    const std::string text =
        resolvedText(application("உரை(பணி)", "    செயல் காட்டு():\n        பணி = \"எழுது\"\n    காட்டு()\n"));
    EXPECT_THAT(text, HasSubstr("காட்டு(): {(set ::பணி \"எழுது\")}"));
    EXPECT_THAT(text, HasSubstr("பக்கம்(): {(do ::பணி?)}"));
}

TEST(SecondApplications, ParametersAndLoopVariablesAreNoState) {
    const std::string text = resolvedText(application(
        "உரை(\"அ\")",
        "    அ = 0\n    செயல் f(அ):\n        அ = 1\n    செயல் g():\n        ஒவ்வொன்றாக அ இல் [1]:\n            அச்சிடு(அ)\n"));
    EXPECT_THAT(text, HasSubstr("f(அ): {(set அ 1)}"));
    EXPECT_THAT(text, Not(HasSubstr("(each ::அ")));
}

TEST(SecondApplications, ParametersOfHandlersAreNoStateOfOthers) {
    const std::string text =
        resolvedText(application("பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => f(வினை(புதியது): அச்சிடு(புதியது)))",
                                 "    செயல் f(செய்):\n        புதியது = 1\n        செய்(புதியது)\n"));
    EXPECT_THAT(text, HasSubstr("f(செய்): {(set புதியது 1)"));
}

TEST(SecondApplications, HandlersAssignStateWithoutAWord) {
    const std::string text =
        resolvedText(application("பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => எண் = எண் கூட்டு 1)", "    எண் = 0\n"));
    EXPECT_THAT(text, HasSubstr("set ::எண்"));
    EXPECT_THAT(text, Not(HasSubstr("(set எண்")));
}

TEST(SecondApplications, FunctionsOutsideTheApplicationSayWhichVariablesTheyMean) {
    const std::string text = resolvedText(application("உரை(\"அ\")", "    எண் = 0\n", "செயல் f():\n    எண் = 5\n"));
    EXPECT_THAT(text, HasSubstr("f(): {(set எண் 5)}"));
}

TEST(SecondApplications, StatementsOfAHandlerAreAFunction) {
    const std::string text = resolvedText(
        application("பொத்தான்(உரை: \"அ\", அழுத்தினால்(\n      அச்சிடு(\"வணக்கம்\")\n      எண் = 2\n    ))", "    எண் = 0\n"));
    EXPECT_THAT(text, HasSubstr("(print \"வணக்கம்\") (set ::எண் 2)"));
}

// What pages take.

TEST(SecondApplications, ConditionsOfSizesAreValuesButPercentagesAreNot) {
    const std::string text =
        resolvedText(application("பெட்டி(அகலம்: திரை_அகலம் சிறிது 600 ? 90% : அளவு, உயரம்: 50%)", "    அளவு = 440\n"));
    EXPECT_THAT(text, HasSubstr("பக்கம்(): {(do (less (@page::windowWidth) 600)) (do ::அளவு)}"));
}

TEST(SecondApplications, FieldsAreAskedByTheirNames) {
    const std::string text =
        resolvedText(application("உரைபெட்டி(அடையாளம்: \"பெயர்\")", "    செயல் f():\n        திரும்பு பெயர்.நீளம்\n"));
    EXPECT_THAT(text, HasSubstr("f(): {(return (@page::fieldLength \"பெயர்\"))}"));
}

TEST(SecondApplications, AVariableHidesTheFieldOfItsName) {
    const std::string text =
        resolvedText(application("உரைபெட்டி(அடையாளம்: \"பெயர்\")", "    பெயர் = {நீளம்: 3}\n    அச்சிடு(பெயர்[\"நீளம்\"])\n"));
    EXPECT_THAT(text, HasSubstr("(element ::பெயர் \"நீளம்\")"));
}

TEST(SecondApplications, ACheckboxHoldsATruthValueOfItsName) {
    const std::string text = resolvedText(application(
        "தேர்வுபெட்டி(அடையாளம்: \"ஒப்புதல்\")", "    செயல் f():\n        எனில் ஒப்புதல்:\n            ஒப்புதல் = பொய்\n"));
    EXPECT_THAT(text, HasSubstr("(if ::ஒப்புதல்? {(set ::ஒப்புதல் false)})"));
}

// Faults.

TEST(SecondApplicationFaults, NamesThatNobodyGivesAValue) {
    EXPECT_THAT(meaningFaults(application("உரை(பெயர்)", "    விடு\n")), ElementsAre("551 3 'பெயர்'"));
    EXPECT_THAT(meaningFaults(application("எச்சரிக்கை(காட்சி_பெயர்: \"திற\", உரை(\"அ\"))", "    விடு\n")),
                ElementsAre("551 3 '\"திற\"'"));
}

TEST(SecondApplicationFaults, PartsThatNoFieldHas) {
    EXPECT_THAT(
        meaningFaults(application("உரைபெட்டி(அடையாளம்: \"பெயர்\")", "    செயல் f():\n        திரும்பு பெயர்.உரைதரவ\n")),
        ElementsAre(HasSubstr("555 6 'உரைதரவ'")));
    EXPECT_THAT(meaningFaults(application("உரைபெட்டி(அடையாளம்: \"பெயர்\")", "    பெயர்.பிழைசெய்தி()\n")),
                ElementsAre(HasSubstr("558 5")));
}

TEST(SecondApplicationFaults, FunctionsOfPagesArePartOfApplicationsOnly) {
    EXPECT_THAT(meaningFaults(application("உரை(\"அ\")", "    செல்க(\"ஆ\")\n")), IsEmpty());
    EXPECT_THAT(meaningFaults("செல்க(\"ஆ\")\n"), ElementsAre(HasSubstr("552 1 'செல்க'")));
    EXPECT_THAT(meaningFaults("அச்சிடு(திரை_அகலம்)\n"), ElementsAre(HasSubstr("551 1 'திரை_அகலம்'")));
}

TEST(SecondApplicationFaults, PropertiesThatNothingReads) {
    EXPECT_THAT(meaningFaults(application("பொத்தான்(உரை(\"அ\", மடி: மெய்))", "    விடு\n")), ElementsAre("596 3 'மடி'"))
        << "labels are of one line";
    EXPECT_THAT(meaningFaults(application("உரை(\"அ\", அகலம்: 80)", "    விடு\n")), ElementsAre("596 3 'அகலம்'"));
    EXPECT_THAT(meaningFaults(application("உரை(\"அ\", அகலம்: 80, மடி: பொய்)", "    விடு\n")),
                ElementsAre("596 3 'அகலம்'"));
    EXPECT_THAT(meaningFaults(application("உரை(\"அ\", அகலம்: 80, மடி: மெய்)", "    விடு\n")), IsEmpty());
}

TEST(SecondApplicationFaults, ARadioInNoGroupChangesNothing) {
    EXPECT_THAT(meaningFaults(application("வட்டத்தேர்வு(உரை: \"அ\", மாறியதால்: () => அச்சிடு(1))", "    விடு\n")),
                ElementsAre("596 3 'மாறியதால்'"));
    EXPECT_THAT(
        meaningFaults(application("வட்டத்தேர்வு(உரை: \"அ\", மதிப்பு: ஆ, மாறியதால்: () => அச்சிடு(1))", "    ஆ = \"\"\n")),
        IsEmpty());
}

// What controls hold.

TEST(SecondApplications, AControlShowsAndAssignsThePlaceThatItIsBoundTo) {
    const std::string text = resolvedText(application("மாற்றி(மதிப்பு: அ)", "    அ = மெய்\n"));
    EXPECT_THAT(text, HasSubstr("பக்கம்(): {(do ::அ) (do "));
    EXPECT_THAT(text, HasSubstr("மதிப்பு(புதிய மதிப்பு): {(set ::அ புதிய மதிப்பு)}"));
}

TEST(SecondApplications, ABoundVariableMayHoldAnything) {
    EXPECT_EQ(certainKinds(application("மாற்றி(மதிப்பு: அ)", "    அ = மெய்\n    ஆ = மெய்\n")).find("அ Truth"),
              std::string::npos);
    EXPECT_THAT(certainKinds(application("உரை(அ)", "    அ = மெய்\n")), HasSubstr("அ Truth"));
}

TEST(SecondApplications, ElementsAndMembersAreBoundToo) {
    const std::string text =
        resolvedText(application("உரைபெட்டி(மதிப்பு: படிவம்[\"பெயர்\"])", "    படிவம் = {\"பெயர்\": \"\"}\n"));
    EXPECT_THAT(text, HasSubstr("(set ::படிவம்[\"பெயர்\"] புதிய மதிப்பு)"));
}

TEST(SecondApplications, ARadioAssignsItsGroup) {
    const std::string text =
        resolvedText(application("வட்டத்தேர்வு(உரை: \"சிவப்பு\", மதிப்பு: 1, குழு_மதிப்பு: நிறம்_எண்)", "    நிறம்_எண் = 0\n"));
    EXPECT_THAT(text, HasSubstr("(set ::நிறம்_எண் புதிய மதிப்பு)"));
}

TEST(SecondApplications, AFirstValueOfASliderIsNoPlaceToAssign) {
    for (const char* value : {"40", "அ கூட்டு 1", "பெயர்.நீளம்"}) {
        const std::string text = resolvedText(application(
            std::string("நெடுவரிசை(உரைபெட்டி(அடையாளம்: \"பெயர்\"), அளவி(மதிப்பு: ") + value + "))", "    அ = 40\n"));
        EXPECT_THAT(text, Not(HasSubstr("(set ::அ புதிய"))) << value;
    }
    EXPECT_THAT(resolvedText(application("அளவி(மதிப்பு: அ)", "    அ = 40\n")), HasSubstr("(set ::அ புதிய மதிப்பு)"));
}

TEST(SecondApplications, ElementsOfAListAreBoundByTheirIndex) {
    const std::string each = "நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: ப, உருப்படி: எ)(மாற்றி(மதிப்பு: ";
    EXPECT_THAT(resolvedText(application(each + "ப[இடம்])))", "    ப = [மெய்]\n")),
                HasSubstr("மதிப்பு[இடம்](புதிய மதிப்பு): {(set ::ப[^இடம்] புதிய மதிப்பு)}"));
    EXPECT_THAT(meaningFaults(application(each + "எ)))", "    ப = [மெய்]\n")), ElementsAre("573 3 'எ'"));
}

TEST(SecondApplicationFaults, ControlsThatAreBoundToNoVariable) {
    EXPECT_THAT(meaningFaults(application("மாற்றி(மதிப்பு: ஒப்புதம்)", "    ஒப்புதல் = மெய்\n")),
                ElementsAre("551 3 'ஒப்புதம்' → ஒருவேளை 'ஒப்புதல்' என்று எழுத நினைத்தாயா?"));
    EXPECT_THAT(meaningFaults(application("மாற்றி(மதிப்பு: சோதி)", "    செயல் சோதி():\n        திரும்பு மெய்\n")),
                ElementsAre("573 3 'சோதி'"));
    EXPECT_THAT(
        meaningFaults(application("மாற்றி(மதிப்பு: ப[சோதி()])", "    ப = [மெய்]\n    செயல் சோதி():\n        திரும்பு 0\n")),
        ElementsAre("573 3 'ப[சோதி()]'"));
    EXPECT_THAT(meaningFaults(application("மாற்றி(மதிப்பு: மாறிலி_அ)", "    மாறிலி_அ = மெய்\n")),
                ElementsAre("573 3 'மாறிலி_அ'"));
}

// Widgets that come once for each element of a list.

TEST(SecondApplications, ElementsAreParametersOfWhatTheirWidgetsShow) {
    const std::string text =
        resolvedText(application("நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: ப, உருப்படி: எ, சாவி: எ)(உரை(எ), உரை(இடம்)), உரை(இடம்))",
                                 "    ப = [1]\n    இடம் = 5\n"));
    EXPECT_THAT(text, HasSubstr("ஒவ்வொன்றும்(எ, இடம்): {(do எ) (do எ) (do இடம்)}"));
    EXPECT_THAT(text, HasSubstr("பக்கம்(): {(do ::ப) (do ::இடம்)}"));
}

TEST(SecondApplications, HandlersOfElementsShareTheElement) {
    const std::string text = resolvedText(
        application("நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: ப, உருப்படி: எ)(பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => f(எ))))",
                    "    ப = [1]\n    செயல் f(அ):\n        அச்சிடு(அ)\n"));
    EXPECT_THAT(text, HasSubstr("ஒவ்வொன்றும்(^எ, இடம்): {"));
}

TEST(SecondApplications, ElementsAreCopiesThatNobodyAssigns) {
    for (const char* handler : {"() => எ = 5", "() => எ[0] = 5", "() => இடம் = 5"}) {
        const std::string source = application(
            "நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: ப, உருப்படி: எ)(பொத்தான்(உரை: \"அ\", அழுத்தினால்: " + std::string(handler) + ")))",
            "    ப = [1]\n");
        EXPECT_THAT(meaningFaults(source), ElementsAre(HasSubstr("598 3"))) << handler;
    }
}

// Names of pages.

TEST(SecondApplications, PagesHaveNamesOfTheirOwn) {
    const auto page = [](const std::string& header) {
        return "வலைதளம் அ(\n  தலைமை(" + header + ")\n  குமரி(உரை(\"அ\"))\n  வரையறை()\n)\n";
    };
    EXPECT_THAT(meaningFaults(page("பக்கம்: \"ஒன்று\"") + page("பக்கம்: \"இரண்டு\"") + page("")), IsEmpty());
    EXPECT_THAT(meaningFaults(page("பக்கம்: \"ஒன்று\"") + page("பக்கம்: \"ஒன்று\"")), ElementsAre("599 6 'வலைதளம் அ('"));
    EXPECT_THAT(meaningFaults(page("") + page("")), ElementsAre("599 6 'வலைதளம் அ('"));
}

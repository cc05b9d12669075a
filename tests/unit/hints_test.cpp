#include "analysis/hints.h"
#include "front_end/front_end.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

namespace {

using Kind = HintKind;

/// What is told of a source, with the parser alive that it points into.
class Hints : public testing::Test {
protected:
    const std::vector<Hint>& hints(const std::string& text) {
        MemoryLoader loader;
        for (const auto& [path, imported] : files_) {
            loader.set(path, imported);
        }
        FrontEndOptions options;
        options.loader = &loader;
        parsed_ = parseSource(makeSource("நிரல்.பொழில்", text), options);
        hints_ = hintsOf(parsed_.program, *parsed_.parser);
        return hints_;
    }

    /// Line and kind of each hint.
    std::vector<std::pair<int, Kind>> told(const std::string& text) {
        std::vector<std::pair<int, Kind>> all;
        for (const Hint& hint : hints(text)) {
            all.emplace_back(hint.line, hint.kind);
        }
        return all;
    }

    /// The part of the source that a hint is about.
    static std::string place(const Hint& hint) {
        const ByteRange range = hint.place.range;
        return hint.place.source->text.substr(range.begin, range.end - range.begin);
    }

    std::vector<std::pair<std::string, std::string>> files_;

private:
    ParsedSource parsed_;
    std::vector<Hint> hints_;
};

TEST_F(Hints, NameTheirPlace) {
    const std::vector<Hint>& found = hints("மொத்தம் = 5\nஅச்சிடு(1, மொதம்)\n");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(place(found[0]), "மொதம்");
    EXPECT_EQ(found[0].place.source->path, "நிரல்.பொழில்");
    EXPECT_EQ(found[0].line, 2);
    EXPECT_THAT(found[0].text, HasSubstr("'மொதம்'"));
}

TEST_F(Hints, CountLinesAsDiagnosticsDo) {
    EXPECT_THAT(told("அ = \"இரண்டு\nவரிகள்\"\nஅச்சிடு(ஆ, அ)\n"), ElementsAre(Pair(2, Kind::UnassignedName)));
}

TEST_F(Hints, StandInTheOrderOfTheTextOfEachKindOneALine) {
    EXPECT_THAT(
        told("அச்சிடு(ஆ, இ)\nஅ = [1]\nஅ[0] கூட்டிசேர் ஈ\n"),
        ElementsAre(Pair(1, Kind::UnassignedName), Pair(3, Kind::CompoundOverwrite), Pair(3, Kind::UnassignedName)));
}

TEST_F(Hints, OfImportedFilesComeLast) {
    files_ = {{"கருவி.பொழில்", "செயல் கருவி():\n    திரும்பு இல்லாதது\n"}};
    const std::vector<Hint>& found = hints("நூஇறக்கி \"கருவி\"\nகருவி()\n\nஅச்சிடு(அ)\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].line, 4);
    EXPECT_EQ(found[1].place.source->path, "கருவி.பொழில்");
    EXPECT_EQ(found[1].line, 2);
}

TEST_F(Hints, CountTheLinesOfImportedFilesToo) {
    files_ = {{"கருவி.பொழில்", "\nகட்டமைப்பு பை:\n    எடை = 1\n    எனில் மெய்:\n        அச்சிடு(1)\n"}};
    EXPECT_THAT(told("நூஇறக்கி \"கருவி\"\n"), ElementsAre(Pair(4, Kind::DroppedStatement)));
}

TEST_F(Hints, AFileMayAssignWhatAnotherReads) {
    files_ = {{"கருவி.பொழில்", "செயல் கருவி():\n    திரும்பு வெளியே\n"}};
    EXPECT_THAT(told("நூஇறக்கி \"கருவி\"\nவெளியே = 1\nகருவி()\n"), IsEmpty());
}

// Names.

TEST_F(Hints, AssignedAnywhereIsAssigned) {
    EXPECT_THAT(told("செயல் காட்டு():\n    அச்சிடு(அ)\nகாட்டு()\nஅ = 1\n"), IsEmpty());
    EXPECT_THAT(told("முயற்சி:\n    அச்சிடு(1 வகு (1 கழி 1))\nபிடி (சிக்கல்):\n    அச்சிடு(சிக்கல்)\n"), IsEmpty());
    EXPECT_THAT(told("முயற்சி:\n    விடு\nபிடி:\n    விடு\nஅச்சிடு(பிழை)\n"), IsEmpty());
    EXPECT_THAT(told("செயல் வெளி():\n    செயல் உள்(அ):\n        திரும்பு அ\n    திரும்பு உள்(1)\n"), IsEmpty());
    EXPECT_THAT(told("அ = (இ, ஈ) => இ கூட்டு ஈ\nஅச்சிடு(அ(1, 2))\n"), IsEmpty());
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    செயல் சொல்(தான், எ):\n        அச்சிடு(தான், எ)\n"), IsEmpty());
}

TEST_F(Hints, ACompoundAssignmentGivesNoFirstValue) {
    EXPECT_THAT(told("எ கூட்டிசேர் 1\n"), ElementsAre(Pair(1, Kind::UnassignedName)));
}

TEST_F(Hints, NativeNamesEndWithTheirBlock) {
    EXPECT_THAT(told("செயல் ஒன்று(அளவு):\n    திரும்பு அளவு\nசெயல் இரண்டு():\n    திரும்பு அளவு\n"),
                ElementsAre(Pair(4, Kind::UnassignedName)));
    EXPECT_THAT(told("அ = எ => எ\nஅச்சிடு(எ)\n"), ElementsAre(Pair(2, Kind::UnassignedName)));
}

TEST_F(Hints, NamesThatAreNoVariables) {
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    எடை = 1\nஅச்சிடு(பை)\n"), IsEmpty());
    EXPECT_THAT(told("வகை பருவம்:\n    கோடை\nஅச்சிடு(பருவம்.கோடை)\n"), IsEmpty());
    EXPECT_THAT(told("அச்சிடு(நேரம்.வினாடிகள்(), பெயர்.உரைதரவு)\n"), IsEmpty());
}

TEST_F(Hints, AFunctionIsNoValue) {
    const std::vector<Hint>& found = hints("செயல் ஒன்று():\n    திரும்பு 1\nஅச்சிடு(ஒன்று)\n");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_THAT(found[0].text, HasSubstr("'() => ஒன்று()'"));
    EXPECT_THAT(told("செயல் ஒன்று():\n    திரும்பு 1\nஒன்று = 2\nஅச்சிடு(ஒன்று)\n"), IsEmpty());
}

std::string page(const std::string& interface, const std::string& logic) {
    return "வலைதளம் (\n    தலைமை()\n    குமரி(\n        " + interface + "\n    )\n    வரையறை(\n        " + logic +
           "\n    )\n)\n";
}

TEST_F(Hints, WhatAPageSetsIsAssigned) {
    EXPECT_THAT(told(page("தேர்வுபெட்டி(அடையாளம்: \"சரியா\")", "அ = () => சரியா")), IsEmpty());
    EXPECT_THAT(told(page("பெட்டி(அகலம்: திரை_அகலம் சிறிது 481 ? 100 : 340)", "அ = 1")), IsEmpty());
    EXPECT_THAT(told(page("உரை(வணக்கம்)", "காட்சி_நிலை.பலகை = மெய்\n        அ = () => பலகை")), IsEmpty());
    EXPECT_THAT(told(page("நெடுவரிசை()", "நிகழ்நேர.தரவுபடி(\"அ\") {\n            அ = தரவு\n        }")), IsEmpty());
    EXPECT_THAT(told("அச்சிடு(திரை_அகலம்)\n"), ElementsAre(Pair(1, Kind::UnassignedName)));
}

TEST_F(Hints, OfPagesToo) {
    EXPECT_THAT(told(page("பொத்தான்(\"சேர்\", அழுத்தினால்: () => எண்ணிகை கூட்டு 1)", "எண்ணிக்கை = 1")),
                ElementsAre(Pair(4, Kind::UnassignedName)));
}

// Recursion.

/// A function that calls itself, with these lines in it.
std::string recursive(const std::string& lines) {
    return "செயல் ஓடு(எ):\n    எனில் எ சமம் 0:\n        திரும்பு 1\n" + lines + "ஓடு(3)\n";
}

TEST_F(Hints, AnOwnCallOverwritesAVariable) {
    EXPECT_THAT(told(recursive("    பாதி = எ வகு 2\n    ஓடு(எ கழி 1)\n    அச்சிடு(பாதி)\n")),
                ElementsAre(Pair(6, Kind::SharedInRecursion)));
    EXPECT_THAT(told(recursive("    இ = 0\n    சுற்று இ சிறிது 2:\n        ஓடு(எ கழி 1)\n        இ கூட்டிசேர் 1\n")),
                ElementsAre(Pair(7, Kind::SharedInRecursion)));
    EXPECT_THAT(told(recursive("    விடைகள் = []\n    ஓடு(எ கழி 1)\n    விடைகள்.சேர்(எ)\n")),
                ElementsAre(Pair(6, Kind::SharedInRecursion)));
}

TEST_F(Hints, AMethodCallsItselfByItsObject) {
    EXPECT_THAT(told("கட்டமைப்பு மரம்:\n    செயல் ஏறு(தான், எ):\n        பாதி = எ வகு 2\n        தான்.ஏறு(எ கழி 1)\n"
                     "        அச்சிடு(பாதி)\n"),
                ElementsAre(Pair(5, Kind::SharedInRecursion)));
}

TEST_F(Hints, WhatAnOwnCallLeavesAlone) {
    // A parameter and the variable of a loop.
    EXPECT_THAT(told(recursive("    எ = எ கழி 1\n    ஓடு(எ)\n    அச்சிடு(எ)\n")), IsEmpty());
    EXPECT_THAT(told(recursive("    ஒவ்வொன்றாக இ இல் வரம்பு(எ):\n        ஓடு(இ)\n        அச்சிடு(இ)\n")), IsEmpty());
    // Given a value anew, or the same one by each call.
    EXPECT_THAT(told(recursive("    பாதி = எ\n    ஓடு(பாதி கழி 1)\n    பாதி = எ\n    அச்சிடு(பாதி)\n")), IsEmpty());
    EXPECT_THAT(told(recursive("    படிகள் = [1, 2]\n    ஓடு(எ கழி 1)\n    அச்சிடு(படிகள்)\n")), IsEmpty());
    // Read before, and in one expression with the call.
    EXPECT_THAT(told(recursive("    பாதி = எ வகு 2\n    அச்சிடு(பாதி)\n    ஓடு(பாதி)\n")), IsEmpty());
    EXPECT_THAT(told(recursive("    விடை = ஓடு(எ கழி 1)\n    திரும்பு விடை\n")), IsEmpty());
    EXPECT_THAT(told(recursive("    பாதி = எ வகு 2\n    திரும்பு பாதி கூட்டு ஓடு(எ கழி 1)\n")), IsEmpty());
}

TEST_F(Hints, AVariableMayBeSharedOnPurpose) {
    // Named outside too.
    EXPECT_THAT(told("கடைசி = 0\n" + recursive("    கடைசி = எ\n    ஓடு(எ கழி 1)\n    அச்சிடு(கடைசி)\n")), IsEmpty());
    // A result that the innermost call leaves behind.
    EXPECT_THAT(told("செயல் ஓடு(எ):\n    எனில் எ சமம் 0:\n        விடை = எ\n    இல்லை:\n        ஓடு(எ கழி 1)\n"
                     "        அச்சிடு(விடை)\nஓடு(3)\n"),
                IsEmpty());
    // A count.
    EXPECT_THAT(told(recursive("    படிகள் = படிகள் கூட்டு எ\n    ஓடு(எ கழி 1)\n    அச்சிடு(படிகள்)\n")), IsEmpty());
}

TEST_F(Hints, ACallOfAnotherBranchComesNotBefore) {
    EXPECT_THAT(told(recursive("    பாதி = எ வகு 2\n    எனில் எ சமம் 1:\n        திரும்பு ஓடு(0)\n    அச்சிடு(பாதி)\n")),
                IsEmpty());
    EXPECT_THAT(
        told(recursive("    பாதி = எ வகு 2\n    எனில் எ சமம் 1:\n        ஓடு(0)\n    இல்லை:\n        அச்சிடு(பாதி)\n")),
        IsEmpty());
    EXPECT_THAT(told(recursive("    பாதி = எ வகு 2\n    எனில் எ சமம் 1:\n        ஓடு(0)\n    அச்சிடு(பாதி)\n")),
                ElementsAre(Pair(7, Kind::SharedInRecursion)));
}

TEST_F(Hints, WhatACaseIsComparedWithIsReadToo) {
    EXPECT_THAT(
        told(recursive("    பாதி = எ வகு 2\n    ஓடு(எ கழி 1)\n    தேர்வு எ:\n        நிலை பாதி:\n            விடு\n")),
        ElementsAre(Pair(7, Kind::SharedInRecursion)));
    EXPECT_THAT(
        told(recursive("    பாதி = எ வகு 2\n    தேர்வு எ:\n        நிலை ஓடு(எ கழி 1):\n            அச்சிடு(பாதி)\n")),
        ElementsAre(Pair(7, Kind::SharedInRecursion)));
    // It comes after none of the blocks.
    EXPECT_THAT(
        told(recursive("    பாதி = எ வகு 2\n    தேர்வு எ:\n        நிலை 1:\n            ஓடு(0)\n            ஓடு(0)\n"
                       "        நிலை பாதி:\n            விடு\n")),
        IsEmpty());
}

// Conditions.

TEST_F(Hints, AnAssignmentIsNoComparison) {
    EXPECT_THAT(told("அ = 3\nஎனில் அ = 5:\n    விடு\n"), ElementsAre(Pair(2, Kind::AssignmentCondition)));
    EXPECT_THAT(told("அ = 3\nஎனில் பொய்:\n    விடு\nஇல்லைஎனில் (அ = 5):\n    விடு\n"),
                ElementsAre(Pair(4, Kind::AssignmentCondition)));
    EXPECT_THAT(told("அ = பொய்\nசுற்று (அ = மெய்) மற்றும் மெய்:\n    நிறுத்து\n"),
                ElementsAre(Pair(2, Kind::AssignmentCondition)));
    EXPECT_THAT(told("அ = [1]\nஎனில் அ[0] = 5:\n    விடு\n"), ElementsAre(Pair(2, Kind::AssignmentCondition)));
    EXPECT_THAT(told("அ = 3\nஆ = (அ = 5) எனில் 1 இல்லைஎனில் 2\n"), ElementsAre(Pair(2, Kind::AssignmentCondition)));
}

TEST_F(Hints, ATruthMayBeKeptWhileItIsTested) {
    EXPECT_THAT(told("செயல் உண்டா():\n    திரும்பு மெய்\nஎனில் அ = உண்டா():\n    விடு\n"), IsEmpty());
    EXPECT_THAT(told("எனில் அ = 5 சமம் 5:\n    அச்சிடு(அ)\n"), IsEmpty());
    EXPECT_THAT(told("அ = 3\nஆ = அ சமம் 5 எனில் 1 இல்லைஎனில் 2\n"), IsEmpty());
    EXPECT_THAT(told("சுற்று (வரி = உள்ளீடு(\"\")) சமமில்லை \"முடி\":\n    அச்சிடு(வரி)\n"), IsEmpty());
}

// Letters.

TEST_F(Hints, ACurlyQuoteIsALetter) {
    EXPECT_THAT(told("அச்சிடு(“வணக்கம்”)\n"), ElementsAre(Pair(1, Kind::CurlyQuote)));
    EXPECT_THAT(told("அ = {‘பெயர்’: 1}\n"), ElementsAre(Pair(1, Kind::CurlyQuote)));
    EXPECT_THAT(told("அச்சிடு(\"“வணக்கம்”…\", '’') ஃ “வணக்கம்”\n"), IsEmpty());
}

TEST_F(Hints, ABlankThatIsALetter) {
    EXPECT_THAT(told("அ\u00A0= 1\n"), ElementsAre(Pair(1, Kind::OddBlank)));
    EXPECT_THAT(told("அ\u2003= 1\n"), ElementsAre(Pair(1, Kind::OddBlank)));
    EXPECT_THAT(told("அ = \"1\u00A0000\"\n"), IsEmpty());
}

TEST_F(Hints, ATabEatsLetters) {
    EXPECT_THAT(told("எனில் மெய்:\n\tஅளவு = 1\n"), ElementsAre(Pair(2, Kind::Tab)));
    EXPECT_THAT(told("எனில் மெய்:\n\tஃ அளவு = 1\n"), ElementsAre(Pair(2, Kind::Tab)));
}

TEST_F(Hints, ATabThatDoesNoHarm) {
    EXPECT_THAT(told("எனில் மெய்:\n    அ = 1\tஃ குறிப்பு\n\t\n    அச்சிடு(\tஅ\t)\n"), IsEmpty());
    EXPECT_THAT(told("அ = \"முதல்\n\tஇரண்டாம்\"\n"), IsEmpty());
    EXPECT_THAT(told("ஃஃ முதல்\n\tஇரண்டாம்\n\tமூன்றாம் ஃஃ அ = 1\n"), IsEmpty());
}

TEST_F(Hints, TwoSpellingsThatLookAlike) {
    EXPECT_THAT(told("பொருள் = 1\nஅச்சிடு(ப\u0BC6\u0BBEருள்)\n"), ElementsAre(Pair(2, Kind::TwoSpellings)));
    EXPECT_THAT(told("செயல் போடு(கோடு):\n    திரும்பு க\u0BC7\u0BBEடு\nபோடு(1)\n"),
                ElementsAre(Pair(2, Kind::TwoSpellings)));
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    கௌரி = 1\nஇது = பை()\nஅச்சிடு(இது.க\u0BC6\u0BD7ரி)\n"),
                testing::Contains(Pair(4, Kind::TwoSpellings)));
    EXPECT_THAT(told("ப\u0BC6\u0BBEருள் = 1\nஅச்சிடு(ப\u0BC6\u0BBEருள், \"பொருள்\")\n"), IsEmpty());
    EXPECT_THAT(told("பெருள் = 1\nபொருள் = 1\nபாருள் = 1\n"), IsEmpty());
}

// Elements, members and structures.

TEST_F(Hints, ACompoundAssignmentOnlyCalculatesWithVariables) {
    EXPECT_THAT(told("அ = [1]\nஅ[0] கழிசேர் 1\n"), ElementsAre(Pair(2, Kind::CompoundOverwrite)));
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    செயல் ஏற்று(தான்):\n        தான்.எடை = 1\n        தான்.எடை கூட்டிசேர் 1\n"),
                ElementsAre(Pair(4, Kind::CompoundOverwrite)));
    EXPECT_THAT(told("அ = [1]\nஆ = அ[0]\nஆ கழிசேர் 1\n"), IsEmpty());
}

TEST_F(Hints, ALengthIsNoIndex) {
    EXPECT_THAT(told("அ = [1]\nஅச்சிடு(அ[நீளம்(அ)])\n"), ElementsAre(Pair(2, Kind::LengthAsIndex)));
    EXPECT_THAT(told("அ = [1]\nஅச்சிடு(அ[(நீளம்(அ) கழி 1)])\n"), ElementsAre(Pair(2, Kind::LengthAsIndex)));
    EXPECT_THAT(told("அ = [1]\nஅ[நீளம்(அ)] = 2\n"), ElementsAre(Pair(2, Kind::LengthAsIndex)));
}

TEST_F(Hints, ALengthMayServeAsIndexAfterAll) {
    EXPECT_THAT(told("அ = [1]\nஅச்சிடு(அ[கீழ்எண்(நீளம்(அ) கூட்டு குறை 1)])\n"), IsEmpty());
    EXPECT_THAT(told("செயல் நீளம்(அ):\n    திரும்பு 0\nஅ = [1]\nஅச்சிடு(அ[நீளம்(அ)])\n"), IsEmpty());
    EXPECT_THAT(told("அ = [1]\nமுயற்சி:\n    அச்சிடு(அ[நீளம்(அ)])\nபிடி:\n    விடு\n"), IsEmpty());
    // Another list may be longer, a map takes any number, and what a parameter holds isn't known.
    EXPECT_THAT(told("அ = [1, 2]\nஆ = [1]\nஅ[நீளம்(ஆ)] = 2\n"), IsEmpty());
    EXPECT_THAT(told("அ = [[1], [2]]\nஆ = [1]\nஅ[நீளம்(ஆ)][0] = 2\n"), IsEmpty());
    EXPECT_THAT(told("அ = {}\nஅ[நீளம்(அ)] = 2\n"), IsEmpty());
    EXPECT_THAT(told("செயல் சேர்ப்பு(அ):\n    அ[நீளம்(அ)] = 2\nஅ = []\nசேர்ப்பு({})\n"), IsEmpty());
}

TEST_F(Hints, AMemberThatNothingSets) {
    const std::string type = "கட்டமைப்பு பை:\n    எடை = 1\n    செயல் காட்டு(தான்):\n        அச்சிடு(தான்.எடை)\nஇது = பை()\n";
    EXPECT_THAT(told(type + "அச்சிடு(இது.இடை)\n"), ElementsAre(Pair(6, Kind::UnsetMember)));
    EXPECT_THAT(told(type + "இது.காடு()\n"), ElementsAre(Pair(6, Kind::UnsetMember)));
    EXPECT_THAT(told(type + "அச்சிடு(இது.எடை)\nஇது.காட்டு()\nஇது.புதியது = 2\nஅச்சிடு(இது.புதியது)\n"), IsEmpty());
    EXPECT_THAT(told(type + "முயற்சி:\n    அச்சிடு(இது.இடை)\nபிடி:\n    விடு\n"), IsEmpty());
    EXPECT_THAT(told("இப்போது = இப்போதுநேரம்()\nஅச்சிடு(இப்போது.ஆண்டு)\n"), IsEmpty());
}

TEST_F(Hints, AStructureDropsStatements) {
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    எடை = 1\n    எனில் மெய்:\n        அச்சிடு(1)\n"),
                ElementsAre(Pair(3, Kind::DroppedStatement)));
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    விடு\n"), IsEmpty());
    EXPECT_THAT(told("கட்டமைப்பு பை:\n    வகை நிறம்பெயர்:\n        சிவப்பு\n    எடை = 1\n"), IsEmpty());
}

// Inputs.

TEST_F(Hints, InputsFromRightToLeft) {
    const std::string ask = "உள்ளீடு(\"\")";
    EXPECT_THAT(told("அச்சிடு(" + ask + " கூட்டு " + ask + ")\n"), ElementsAre(Pair(1, Kind::InputOrder)));
    EXPECT_THAT(told("அச்சிடு(" + ask + " இணை (" + ask + "))\n"), ElementsAre(Pair(1, Kind::InputOrder)));
    EXPECT_THAT(told("அச்சிடு(பிளவு(" + ask + ", " + ask + "))\n"), ElementsAre(Pair(1, Kind::InputOrder)));
    EXPECT_THAT(told("அ = {}\nஅ[" + ask + "] = எண்(" + ask + ")\n"), ElementsAre(Pair(2, Kind::InputOrder)));
}

TEST_F(Hints, InputsFromLeftToRight) {
    const std::string ask = "உள்ளீடு(\"\")";
    EXPECT_THAT(told("அச்சிடு(" + ask + ", " + ask + ", [" + ask + ", " + ask + "])\n"), IsEmpty());
    EXPECT_THAT(told("அச்சிடு(எண்(" + ask + ") கழி எண்(" + ask + "))\n"), IsEmpty());
    EXPECT_THAT(told("எனில் " + ask + " சமம் \"1\" மற்றும் " + ask + " சமம் \"2\":\n    விடு\n"), IsEmpty());
    EXPECT_THAT(told("ஒவ்வொன்றாக எ இல் வரம்பு(எண்(" + ask + "), எண்(" + ask + ")):\n    விடு\n"), IsEmpty());
    EXPECT_THAT(told("கேள் = (அ, ஆ) => அ() கூட்டு ஆ()\nகேள்(இ => " + ask + ", இ => " + ask + ")\n"), IsEmpty());
    EXPECT_THAT(told("செயல் உள்ளீடு(அ):\n    திரும்பு அ\nஅச்சிடு(" + ask + " கூட்டு " + ask + ")\n"), IsEmpty());
}

} // namespace

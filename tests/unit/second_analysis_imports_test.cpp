#include "support/resolved_text.h"
#include "support/second_source.h"
#include "support/working_folder.h"

#include <gmock/gmock.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class SecondImports : public WorkingFolder {
protected:
    static std::vector<std::string> faults(const std::string& text) { return meaningFaults(text); }
};

} // namespace

TEST_F(SecondImports, BringFunctionsStructuresAndEnumerations) {
    write("அ.பொழில்", "செயல் f():\n    திரும்பு 1\nகட்டமைப்பு க:\n    எ = 1\nவகை நிறம்:\n    சிவப்பு\n");
    EXPECT_THAT(resolvedText("நூஇறக்கி \"அ\"\nஅச்சிடு(f(), க(), நிறம்.சிவப்பு)\n"),
                HasSubstr("(print (call f) (new க) 0)"));
}

TEST_F(SecondImports, BringWhatTheirImportsSee) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\n");
    write("ஆ.பொழில்", "செயல் f():\n    திரும்பு 1\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nஅச்சிடு(f())\n"), IsEmpty());
}

TEST_F(SecondImports, LeaveVariablesToTheirFile) {
    write("அ.பொழில்", "எண்ணி = 1\nசெயல் f():\n    பொது எண்ணி\n    எண்ணி கூட்டிசேர் 1\n    திரும்பு எண்ணி\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nஅச்சிடு(எண்ணி)\n"), ElementsAre("554 2 'எண்ணி'"));
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nஎண்ணி = \"என்\"\nஅச்சிடு(எண்ணி, f())\n"), IsEmpty());
    EXPECT_EQ(certainKinds("நூஇறக்கி \"அ\"\nஎண்ணி = \"என்\"\nஅச்சிடு(எண்ணி, f())\n"), "எண்ணி Whole, எண்ணி Text, f() Whole");
}

TEST_F(SecondImports, DoNotSeeWhoImportsThem) {
    write("அ.பொழில்", "செயல் f():\n    திரும்பு g()\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nசெயல் g():\n    விடு\nf()\n"), ElementsAre("552 2 'g'"));
}

TEST_F(SecondImports, ThatClashAreToldWithBothFiles) {
    write("அ.பொழில்", "செயல் f():\n    விடு\n");
    write("ஆ.பொழில்", "செயல் f():\n    விடு\n");
    const MeaningOf found("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ஆ\"\n");
    EXPECT_THAT(faultTexts(found.meaning.faults), ElementsAre("563 2 'நூஇறக்கி \"ஆ\"'"));
    EXPECT_THAT(found.meaning.faults[0].values, ElementsAre("f", HasSubstr("அ.பொழில்"), HasSubstr("ஆ.பொழில்")));
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nசெயல் f():\n    விடு\n"), ElementsAre("563 2 'f'"));
}

TEST_F(SecondImports, ThatClashAreToldWhereTheyAreBroughtIn) {
    write("ப.பொழில்", "செயல் g():\n    விடு\n");
    write("கப.பொழில்", "செயல் f():\n    விடு\n");
    write("அ.பொழில்", "செயல் f():\n    விடு\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ப\"\nநூஇறக்கி \"கப\"\n"), ElementsAre("563 3 'நூஇறக்கி \"கப\"'"));
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ப\"\nநூஇறக்கி \"./கப\"\n"), ElementsAre("563 3 'நூஇறக்கி \"./கப\"'"));
}

TEST_F(SecondImports, OfOneFileOnTwoWaysAreNoClash) {
    write("அ.பொழில்", "நூஇறக்கி \"இ\"\n");
    write("ஆ.பொழில்", "நூஇறக்கி \"இ\"\n");
    write("இ.பொழில்", "செயல் f():\n    திரும்பு 1\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nநூஇறக்கி \"ஆ\"\nஅச்சிடு(f())\n"), IsEmpty());
}

TEST_F(SecondImports, AClashInAnImportIsToldThereAlone) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\nசெயல் f():\n    விடு\n");
    write("ஆ.பொழில்", "செயல் f():\n    விடு\n");
    EXPECT_EQ(faults("நூஇறக்கி \"அ\"\n").size(), 1U);
}

TEST_F(SecondImports, OfEachOtherSeeEachOther) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\nசெயல் f(எ):\n    திரும்பு எ சமம் 0 அல்லது g(எ கழி 1)\n");
    write("ஆ.பொழில்", "நூஇறக்கி \"அ\"\nசெயல் g(எ):\n    திரும்பு எ சமம் 0 அல்லது f(எ கழி 1)\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nஅச்சிடு(f(3), g(3))\n"), IsEmpty());
}

TEST_F(SecondImports, AVariableHidesAFunctionThatAnImportBrings) {
    write("அ.பொழில்", "செயல் மொத்தம்(ப):\n    திரும்பு 1\n");
    EXPECT_THAT(resolvedText("நூஇறக்கி \"அ\"\nமொத்தம் = மொத்தம்([])\nஅச்சிடு(மொத்தம்)\n"),
                HasSubstr("(set ::மொத்தம் (call மொத்தம் (list))) (print ::மொத்தம்)"));
    EXPECT_THAT(resolvedText("நூஇறக்கி \"அ\"\nமொத்தம் = எ => 2\nஅச்சிடு(மொத்தம்(1))\n"),
                HasSubstr("(print (call-value ::மொத்தம் 1))"));
}

TEST_F(SecondImports, ParentsComeFromImports) {
    write("அ.பொழில்", "வடிவமைப்பு வடிவம்:\n    செயல் m(தான்)\nகட்டமைப்பு க:\n    எ = 1\n");
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nகட்டமைப்பு ங(க):\n    ஏ = 1\nஅச்சிடு(ங().எ)\n"), IsEmpty());
    EXPECT_THAT(faults("நூஇறக்கி \"அ\"\nகட்டமைப்பு ங(வடிவம்):\n    ஏ = 1\n"), ElementsAre("568 2 'ங'"));
}

TEST_F(SecondImports, AFunctionThatRunsBeforeItsFileFindsVariablesUnset) {
    write("அ.பொழில்", "நூஇறக்கி \"ஆ\"\nஅளவு = 5\nசெயல் f():\n    திரும்பு அளவு\n");
    write("ஆ.பொழில்", "நூஇறக்கி \"அ\"\nமுயற்சி:\n    f()\nபிடி:\n    விடு\n");
    EXPECT_THAT(resolvedText("நூஇறக்கி \"அ\"\n"), HasSubstr("(return ::அளவு?)"));
    write("ஆ.பொழில்", "நூஇறக்கி \"அ\"\n");
    EXPECT_THAT(resolvedText("நூஇறக்கி \"அ\"\n"), HasSubstr("(return ::அளவு)"));
}

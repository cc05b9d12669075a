#include "support/resolved_text.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// The hints on a program, each with what it is about.
std::vector<std::string> hints(const std::string& text) {
    std::vector<std::string> texts;
    for (const SecondHint& hint : MeaningOf(text).meaning.hints) {
        const ByteRange range = hint.place.range;
        texts.push_back(hint.place.source->text.substr(range.begin, range.end - range.begin) + ": " + hint.text);
    }
    return texts;
}

TEST(Hints, TellASlipInAnAssignedName) {
    EXPECT_THAT(hints("மொத்தம் = 0\nமொததம் = மொத்தம் கூட்டு 1\nஅச்சிடு(மொத்தம்)\n"),
                ElementsAre(testing::AllOf(HasSubstr("மொததம்:"), HasSubstr("'மொத்தம்' என்று எழுத நினைத்தீர்களா"))));
    EXPECT_THAT(hints("செயல் f(எண்ணி):\n    எண்ணீ = எண்ணி கூட்டு 1\n    திரும்பு எண்ணி\nf(1)\n"),
                ElementsAre(HasSubstr("'எண்ணி'")));
}

TEST(Hints, TellASlipInAField) {
    EXPECT_THAT(hints("கட்டமைப்பு நபர்:\n    வயது = 0\n    செயல் f(தான்):\n        தான்.வயத = 1\n"),
                ElementsAre(HasSubstr("'வயது'")));
}

TEST(Hints, TellAFieldThatIsWrittenWithoutItsObject) {
    EXPECT_THAT(hints("கட்டமைப்பு நபர்:\n    வயது = 0\n    செயல் f(தான், எ):\n        வயது = எ\n"),
                ElementsAre(HasSubstr("'தான்.வயது'")));
    EXPECT_THAT(hints("கட்டமைப்பு நபர்:\n    வயது = 0\n    செயல் f(தான், எ):\n        வயது = எ\n        திரும்பு வயது\n"),
                IsEmpty())
        << "a variable of its own";
}

TEST(Hints, TellArgumentsGivenByName) {
    EXPECT_THAT(hints("செயல் f(எ):\n    விடு\nf(எ = 1)\nஅச்சிடு(1, end = \"\")\n"),
                ElementsAre(HasSubstr("எ = 1: 'எ = …'"), HasSubstr("'end = …'")));
    EXPECT_THAT(hints("எ = 1\nஅச்சிடு(எ கூட்டு 1)\nஎ = எ = 2\n"), IsEmpty());
}

TEST(Hints, AreSilentWhenInDoubt) {
    EXPECT_THAT(hints("மொத்தம் = 0\nமொததம் = 1\nஅச்சிடு(மொத்தம், மொததம்)\n"), IsEmpty()) << "both are read";
    EXPECT_THAT(hints("மொததம் = 1\n"), IsEmpty()) << "no name is near";
    EXPECT_THAT(hints("விடை1 = 1\nவிடை2 = 2\nஅச்சிடு(விடை1)\n"), IsEmpty()) << "numbered on purpose";
    EXPECT_THAT(hints("அணி = 1\nஒவ்வொன்றாக அணு இல் வரம்பு(2):\n    அச்சிடு(அணி)\n"), IsEmpty()) << "a loop needs a variable";
    EXPECT_THAT(hints("பட்டியல் = [1]\nபட்டியால் = [2]\nபட்டியால்[0] = 3\nஅச்சிடு(பட்டியல்)\n"), IsEmpty())
        << "an element of it is written";
    EXPECT_THAT(hints("எண்ணி = 0\nசெயல் f():\n    எண்ணீ = 1\n    செயல் g():\n        திரும்பு எண்ணீ\n    திரும்பு g\n"
                      "அச்சிடு(எண்ணி, f())\n"),
                IsEmpty())
        << "an inner function reads it";
    EXPECT_THAT(hints("கட்டமைப்பு நபர்:\n    வயது = 0\n    செயல் f(தான்):\n        தான்.வயத = 1\n"
                      "அச்சிடு(நபர்().வயது)\nந = நபர்()\nந.f()\nஅச்சிடு(ந.வயத)\n"),
                IsEmpty())
        << "the field is read";
    EXPECT_THAT(hints("அ1 = 1\nஅ2 = 2\nஅச்சிடு(அ2)\nமலர் = 3\nபலா = 4\nஅச்சிடு(பலா)\n"), IsEmpty());
}

} // namespace

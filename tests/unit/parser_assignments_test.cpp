#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

TEST(Assignment, ToANameKeepsItsOperator) {
    EXPECT_EQ(tree("அ = 5"), "(Expression (Assignment அ = (Number 5)))");
    for (const std::string word : {"கூட்டிசேர்", "கழிசேர்", "பெருக்குசேர்", "வகுசேர்", "மீதிசேர்", "பெஇசேர்", "கூட்டுஇசேர்",
                                   "வேஇசேர்", "இடதுஇசேர்", "வலதுஇசேர்", "ஒன்றுசேர்", "ஒன்றுகழி"}) {
        EXPECT_EQ(tree("அ " + word + " 1"), "(Expression (Assignment அ " + word + " (Number 1)))");
    }
}

TEST(Assignment, ToAnElementIsACall) {
    EXPECT_EQ(tree("அ[0] = 5"), "(Expression (Call _set_index_internal அ (Number 0) (Number 5)))");
    EXPECT_EQ(tree("அ.ஆ[இ] = 5"), "(Expression (Call _set_index_internal (Get அ ஆ) இ (Number 5)))");
    EXPECT_EQ(tree("அ[0][1] = 5"),
              "(Expression (Call _set_index_internal (Index அ (Number 0)) (Number 1) (Number 5)))");
    EXPECT_EQ(tree("[1][0] = 5"), "(Expression (Call _set_index_internal (List (Number 1)) (Number 0) (Number 5)))");
}

TEST(Assignment, ToAMemberSetsIt) {
    EXPECT_EQ(tree("அ.ஆ = 5"), "(Expression (SetMember அ ஆ (Number 5)))");
    EXPECT_EQ(tree("அ[0].ஆ = 5"), "(Expression (SetMember (Index அ (Number 0)) ஆ (Number 5)))");
    EXPECT_EQ(tree("அ().ஆ.இ = 5"), "(Expression (SetMember (Get (Call அ) ஆ) இ (Number 5)))");
}

TEST(Assignment, ToAnElementOrMemberLosesItsCompoundOperator) {
    EXPECT_EQ(tree("அ[0] கூட்டிசேர் 5"), "(Expression (Call _set_index_internal அ (Number 0) (Number 5)))");
    EXPECT_EQ(tree("அ[0] ஒன்றுசேர் 5"), "(Expression (Call _set_index_internal அ (Number 0) (Number 5)))");
    EXPECT_EQ(tree("அ.ஆ கூட்டிசேர் 5"), "(Expression (SetMember அ ஆ (Number 5)))");
    EXPECT_EQ(tree("அ.ஆ ஒன்றுகழி 5"), "(Expression (SetMember அ ஆ (Number 5)))");
}

TEST(Assignment, GroupsToTheRight) {
    EXPECT_EQ(tree("அ = ஆ = 5"), "(Expression (Assignment அ = (Assignment ஆ = (Number 5))))");
    EXPECT_EQ(tree("அ = ஆ.இ = ஈ[0] = 5"),
              "(Expression (Assignment அ = (SetMember ஆ இ (Call _set_index_internal ஈ (Number 0) (Number 5)))))");
    EXPECT_EQ(tree("அ கூட்டிசேர் ஆ கழிசேர் 5"), "(Expression (Assignment அ கூட்டிசேர் (Assignment ஆ கழிசேர் (Number 5))))");
}

TEST(Assignment, TakesTheWholeExpressionBehindIt) {
    EXPECT_EQ(tree("அ = ஆ அல்லது இ"), "(Expression (Assignment அ = (Logical ஆ அல்லது இ)))");
    EXPECT_EQ(tree("அ = ஆ ? இ : ஈ"), "(Expression (Assignment அ = (Ternary ஆ இ ஈ)))");
    EXPECT_EQ(tree("அ = ஆ => இ"), "(Expression (Assignment அ = (Lambda (ஆ) இ)))");
    EXPECT_EQ(tree("அ = (ஆ) = பெரிது இ"), "(Expression (Assignment அ = (Lambda (ஆ) இ)))");
    EXPECT_EQ(tree("அ = எனில் எனில் ஆ : இ"), "(Expression (Assignment அ = (Ternary எனில் ஆ இ)))");
}

TEST(Assignment, MayTargetWordsOfTheVocabulary) {
    for (const std::string name : {"செயல்", "வகை", "உரை", "பெட்டி", "பக்கம்", "அகலம்", "பாணி", "தலைமை", "குமரி", "வரையறை",
                                   "செல்க", "இல்", "பொது", "பிடி", "மாற்று", "நிலை"}) {
        EXPECT_EQ(tree(name + " = 5"), "(Expression (Assignment " + name + " = (Number 5)))");
    }
}

TEST(Assignment, RefusesEveryOtherTarget) {
    for (const std::string target : {"5", "1.5", "\"அ\"", "'அ'", "மெய்", "அ()", "(அ)", "[அ]", "{}", "அ கூட்டு ஆ",
                                     "இல்லை அ", "அ ? ஆ : இ", "\"#fff\"", "அ மற்றும் ஆ"}) {
        for (const std::string word : {"=", "கூட்டிசேர்", "ஒன்றுசேர்"}) {
            EXPECT_EQ(fault(target + " " + word + " 5"), "பொழி-211 வரி 1") << target << " " << word;
        }
    }
    EXPECT_EQ(fault("அ = 5 = 6"), "பொழி-211 வரி 1");
}

TEST(Assignment, NeedsAValue) {
    EXPECT_EQ(fault("அ ="), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ =\n5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ கூட்டிசேர்"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ ஒன்றுசேர்"), "பொழி-201 வரி 1");
}

TEST(ColonAssignment, SetsAMemberOfTheViewState) {
    EXPECT_EQ(tree("காட்சி_நிலை.அ: 5"), "(Expression (SetMember காட்சி_நிலை அ (Number 5)))");
    EXPECT_EQ(tree("காட்சி_நிலை.அ = 5"), "(Expression (SetMember காட்சி_நிலை அ (Number 5)))");
    EXPECT_EQ(tree("காட்சி_நிலை.அ: காட்சி_நிலை.ஆ: 5"),
              "(Expression (SetMember காட்சி_நிலை அ (SetMember காட்சி_நிலை ஆ (Number 5))))");
    EXPECT_EQ(valueTree("அ(காட்சி_நிலை.ஆ: இ => ஈ)"), "(Call அ (SetMember காட்சி_நிலை ஆ (Lambda (இ) ஈ)))");
}

TEST(ColonAssignment, TakesEveryColonBehindSuchAMember) {
    EXPECT_EQ(valueFault("அ ? காட்சி_நிலை.ஆ : இ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueTree("அ ? (காட்சி_நிலை.ஆ) : இ"), "(Ternary அ (Grouping (Get காட்சி_நிலை ஆ)) இ)");
    EXPECT_EQ(fault("எனில் காட்சி_நிலை.அ:\n    விடு\n"), "பொழி-201 வரி 1");
}

TEST(ColonAssignment, IsForThatOneNameOnly) {
    EXPECT_EQ(fault("அ.ஆ: 5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("காட்சி_நிலை: 5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("காட்சி_நிலை.அ.ஆ: 5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("காட்சி_நிலை[0]: 5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("(காட்சி_நிலை).அ: 5"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("காட்சி_நிலை.அ:"), "பொழி-201 வரி 1");
}

} // namespace

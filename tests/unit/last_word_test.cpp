#include "diagnostics/last_word/words.h"

#include <any>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::last_word;
using testing::HasSubstr;
using testing::Not;

std::string textOf(const Paragraph& paragraph) {
    return {paragraph.data(), paragraph.size()};
}

std::string placeText(const Place& place) {
    Paragraph paragraph;
    addPlace(paragraph, place);
    return textOf(paragraph);
}

template <class Exception> std::string descriptionOf(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        return causeOfException().description;
    }
}

TEST(Paragraph, HoldsTextsAndNumbers) {
    Paragraph paragraph;
    paragraph.add("வரி ");
    paragraph.add(2147483647);
    paragraph.add("");
    paragraph.add(0);
    EXPECT_EQ(textOf(paragraph), "வரி 21474836470");
}

TEST(Paragraph, HoldsAddresses) {
    Paragraph paragraph;
    for (const std::uintptr_t address : {std::uintptr_t{0}, std::uintptr_t{0x401a0f}, UINTPTR_MAX}) {
        paragraph.addHexadecimal(address);
        paragraph.add(" ");
    }
    EXPECT_EQ(textOf(paragraph), "0 401a0f ffffffffffffffff ");
}

TEST(Paragraph, CutsBetweenLetters) {
    Paragraph paragraph;
    paragraph.add("அஆ", 5);
    EXPECT_EQ(textOf(paragraph), "அ");
    paragraph.add("ஆ", 2);
    EXPECT_EQ(textOf(paragraph), "அ");
    paragraph.add("ஆஇ", 6);
    EXPECT_EQ(textOf(paragraph), "அஆஇ");
}

TEST(Paragraph, NeverGrowsBeyondWhatAPipeTakesAtOnce) {
    Paragraph paragraph;
    paragraph.add("-");
    const std::string letters = "அஆஇஈ";
    for (int round = 0; round < 1000; ++round) {
        paragraph.add(letters.c_str());
    }
    EXPECT_EQ(paragraph.size(), 4096U);
    Paragraph shifted;
    shifted.add("--");
    for (int round = 0; round < 1000; ++round) {
        shifted.add(letters.c_str());
    }
    EXPECT_EQ(shifted.size(), 4094U);
    shifted.add(7);
    EXPECT_EQ(shifted.size(), 4095U);
}

TEST(LastWord, PlaceIsWhatIsKnown) {
    EXPECT_EQ(placeText({"அ.பொழில்", 0, 0}), "அ.பொழில், செயல்களுக்கு வெளியே உள்ள வரிகள்");
    EXPECT_EQ(placeText({nullptr, 0, 0}), "செயல்களுக்கு வெளியே உள்ள வரிகள்");
    EXPECT_EQ(placeText({"அ.பொழில்", 12, 0}), "அ.பொழில், வரி 12, அல்லது அதற்குப் பின் ஓடிய வரிகள்");
    EXPECT_EQ(placeText({nullptr, 12, 3}), "வரி 12-இல் கடைசியாக அழைத்த செயல், அல்லது அதற்குப் பின் ஓடிய வரிகள்");
}

TEST(LastWord, RemedyFollowsTheLongestPathAndDescription) {
    const std::string longText(100000, 'x');
    Paragraph paragraph;
    addWord(paragraph, {longText.c_str(), WRONG_KIND.remedy}, {longText.c_str(), 12, 3});
    EXPECT_THAT(textOf(paragraph), HasSubstr("வரி 12"));
    EXPECT_THAT(textOf(paragraph), HasSubstr(std::string(WRONG_KIND.remedy) + "\n"));
}

TEST(LastWord, ExceptionsAreToldInTheWordsOfTheLanguage) {
    EXPECT_EQ(descriptionOf(std::bad_any_cast()), WRONG_KIND.description);
    EXPECT_EQ(descriptionOf(std::bad_alloc()), OUT_OF_MEMORY.description);
    EXPECT_EQ(descriptionOf(std::bad_array_new_length()), OUT_OF_MEMORY.description);
    EXPECT_EQ(descriptionOf(std::length_error("vector::_M_default_append")), OUT_OF_MEMORY.description);
    EXPECT_EQ(descriptionOf(std::out_of_range("map::at")), UNKNOWN_NAME.description);
    EXPECT_EQ(descriptionOf(std::logic_error("basic_string: construction from null")), UNKNOWN_FAULT.description);
    EXPECT_EQ(descriptionOf(std::runtime_error("")), UNKNOWN_FAULT.description);
    EXPECT_EQ(descriptionOf(7), UNKNOWN_FAULT.description);
}

TEST(LastWord, TheRuntimeSpeaksForItself) {
    try {
        throw std::runtime_error("பொருந்தாத தரவு வகை (Type Mismatch)!");
    } catch (...) {
        const Cause cause = causeOfException();
        EXPECT_STREQ(cause.description, "பொருந்தாத தரவு வகை (Type Mismatch)!");
        EXPECT_STREQ(cause.remedy, SPEAKING_REMEDY);
    }
}

TEST(LastWord, WithoutAnExceptionTheFaultIsUnknown) {
    EXPECT_STREQ(causeOfException().description, UNKNOWN_FAULT.description);
}

} // namespace

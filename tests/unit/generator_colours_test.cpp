// Colours of a source: the words, the hex forms, and what is taken for black.

#include "generator/web/colours.h"

#include <gtest/gtest.h>
#include <map>

using pozhil::Colour;
using pozhil::parsePozhilColor;

namespace {

void expectColour(const Colour& actual, const Colour& expected, const std::string& text) {
    EXPECT_FLOAT_EQ(actual.red, expected.red) << text;
    EXPECT_FLOAT_EQ(actual.green, expected.green) << text;
    EXPECT_FLOAT_EQ(actual.blue, expected.blue) << text;
    EXPECT_FLOAT_EQ(actual.alpha, expected.alpha) << text;
}

constexpr Colour BLACK = {0.0F, 0.0F, 0.0F, 1.0F};

TEST(ColourWords, HaveTheirComponents) {
    const std::map<std::string, Colour> words = {
        {"வெள்ளை", {1.0F, 1.0F, 1.0F, 1.0F}},      {"கருப்பு", {0.0F, 0.0F, 0.0F, 1.0F}},
        {"சிவப்பு", {1.0F, 0.0F, 0.0F, 1.0F}},     {"பச்சை", {0.0F, 1.0F, 0.0F, 1.0F}},
        {"நீலம்", {0.0F, 0.0F, 1.0F, 1.0F}},        {"மஞ்சள்", {1.0F, 1.0F, 0.0F, 1.0F}},
        {"ஆரஞ்சு", {1.0F, 0.647F, 0.0F, 1.0F}},    {"ஊதா", {0.5F, 0.0F, 0.5F, 1.0F}},
        {"இளஞ்சிவப்பு", {1.0F, 0.75F, 0.8F, 1.0F}}, {"சாம்பல்", {0.5F, 0.5F, 0.5F, 1.0F}},
        {"பழுப்பு", {0.65F, 0.16F, 0.16F, 1.0F}},  {"வானநீலம்", {0.53F, 0.81F, 0.92F, 1.0F}},
        {"தங்கம்", {1.0F, 0.84F, 0.0F, 1.0F}},      {"வெள்ளி", {0.75F, 0.75F, 0.75F, 1.0F}},
        {"சுண்ணாம்பு", {0.0F, 1.0F, 0.0F, 1.0F}},   {"கடல்நீலம்", {0.0F, 0.41F, 0.58F, 1.0F}},
    };
    for (const auto& [word, colour] : words) {
        expectColour(parsePozhilColor(word, false), colour, word);
    }
}

TEST(UnknownColourWords, AreBlack) {
    for (const std::string word : {"", "செம்மை", "FF0000", "#FF0000", "வெள்ளை "}) {
        expectColour(parsePozhilColor(word, false), BLACK, word);
    }
}

TEST(HexColours, TakeSixOrEightDigits) {
    expectColour(parsePozhilColor("#FF8000", true), {1.0F, 128.0F / 255.0F, 0.0F, 1.0F}, "six digits");
    expectColour(parsePozhilColor("ff8000", true), {1.0F, 128.0F / 255.0F, 0.0F, 1.0F}, "without #");
    expectColour(parsePozhilColor("#FF000080", true), {1.0F, 0.0F, 0.0F, 128.0F / 255.0F}, "eight digits");
}

TEST(HexColours, IgnoreAlphaWhenTheLengthIsOdd) {
    expectColour(parsePozhilColor("#0000FF8", true), {0.0F, 0.0F, 1.0F, 1.0F}, "seven digits");
    expectColour(parsePozhilColor("#0000FF800", true), {0.0F, 0.0F, 1.0F, 1.0F}, "nine digits");
}

TEST(HexColours, HaveNoShortForm) {
    for (const std::string text : {"", "#", "#F", "#FFF", "#FFFF", "#FFFFF"}) {
        expectColour(parsePozhilColor(text, true), BLACK, text);
    }
}

TEST(HexColours, KeepTheComponentsBeforeAWrongDigit) {
    expectColour(parsePozhilColor("#FFXX00", true), {1.0F, 0.0F, 0.0F, 1.0F}, "wrong green");
    expectColour(parsePozhilColor("#தமிழ்", true), BLACK, "no digits");
}

} // namespace

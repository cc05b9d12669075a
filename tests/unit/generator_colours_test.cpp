// Colours of a source: the words, the hex forms, what is taken for black, and how they are written.

#include "generator/web/write/colours.h"
#include "support/generating.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <map>

using namespace pozhil;
using namespace pozhil::test;

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

TEST(TextColours, AreHexBehindASharpAndWordsOtherwise) {
    expectColour(styleColour("#00FF00"), {0.0F, 1.0F, 0.0F, 1.0F}, "hex");
    expectColour(styleColour("தங்கம்"), {1.0F, 0.84F, 0.0F, 1.0F}, "a word");
    for (const std::string text : {"FF0000", "", "gold", " #FF0000"}) {
        expectColour(styleColour(text), BLACK, text);
    }
}

TEST(ColourValues, AreColoursTextsAndMembersOfTheColours) {
    const auto expectValue = [](const ExpressionPtr& value, const Colour& colour, const std::string& name) {
        const std::optional<Colour> found = colourOf(value.get());
        ASSERT_TRUE(found) << name;
        expectColour(*found, colour, name);
    };
    constexpr Colour RED = {1.0F, 0.0F, 0.0F, 1.0F};
    expectValue(make<ColorExpression>("#FF0000", true), RED, "a hex colour");
    expectValue(make<ColorExpression>("சிவப்பு", false), RED, "a colour word");
    expectValue(text("#FF0000"), RED, "a hex text");
    expectValue(text("சிவப்பு"), RED, "a text that is a word");
    expectValue(member(variable("நிறம்"), "சிவப்பு"), RED, "a member");
    expectValue(member(variable("நிறம்"), "செம்மை"), BLACK, "an unknown member");
}

TEST(ColourValues, AreNothingElse) {
    EXPECT_FALSE(colourOf(nullptr));
    EXPECT_FALSE(colourOf(number("5").get()));
    EXPECT_FALSE(colourOf(variable("சிவப்பு").get()));
    EXPECT_FALSE(colourOf(member(variable("வண்ணம்"), "சிவப்பு").get()));
    EXPECT_FALSE(colourOf(member(member(variable("நிறம்"), "நிறம்"), "சிவப்பு").get()));
}

TEST(ColourTexts, AreCutOffBytesOrFloats) {
    const Colour orange = parsePozhilColor("ஆரஞ்சு", false);
    EXPECT_EQ(byteColourText(orange), "nvgRGBA(255, 164, 0, 255)");
    EXPECT_EQ(cssColour(orange), "rgba(255,164,0,1.000000)");
    EXPECT_EQ(floatColour(orange), "nvgRGBAf(1.0f, 0.647f, 0.0f, 1.0f)");
    const Colour translucent = parsePozhilColor("#FF000080", true);
    EXPECT_EQ(byteColourText(translucent), "nvgRGBA(255, 0, 0, 128)");
    EXPECT_EQ(cssColour(translucent), "rgba(255,0,0,0.501961)");
    EXPECT_EQ(floatColour(translucent), "nvgRGBAf(1.0f, 0.0f, 0.0f, 0.5019608f)");
    EXPECT_EQ(byteColourText(parsePozhilColor("சாம்பல்", false)), "nvgRGBA(127, 127, 127, 255)");
}

TEST(ColourTexts, GiveEveryByteBack) {
    for (int byte = 0; byte <= 255; ++byte) {
        char hex[8];
        std::snprintf(hex, sizeof hex, "#%02X0000", static_cast<unsigned int>(byte));
        EXPECT_EQ(byteColour(parsePozhilColor(hex, true)).red, byte) << hex;
    }
}

TEST(ColourTexts, AreWhatAColourBecomesInAnExpression) {
    const auto printed = [](ExpressionPtr colour) {
        return mainBody("", listOf(make<PrintStatement>(listOf<ExpressionList>(std::move(colour)))));
    };
    EXPECT_EQ(printed(make<ColorExpression>("#FF000080", true)),
              "    std::cout << fn_any_to_string(nvgRGBA(255, 0, 0, 128)) << std::endl;\n");
    EXPECT_EQ(printed(make<ColorExpression>("பழுப்பு", false)),
              "    std::cout << fn_any_to_string(nvgRGBA(165, 40, 40, 255)) << std::endl;\n");
}

} // namespace

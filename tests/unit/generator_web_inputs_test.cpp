// Text fields, search bars and the browser's own fields: the text that they become.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

struct Case {
    const char* source;
    const char* line;
};

TEST(TextField, IsDrawnInThisOrder) {
    expectInOrder(
        frameOf("உரைபெட்டி(அடையாளம்: \"பெயர்\", குறிப்பு: \"எழுதுக\")"),
        {"float tbX = std::floor(0.0f); float tbY = std::floor(0.0f);\n",
         "float tbW = 320.0f, tbH = 50.0f, radius = 8.0f, fSize = 16.0f;\n",
         "tbW = responsiveW(tbW, winWidth, 40.0f);\n", "if (forcedW > 0.0f) tbW = forcedW;\n",
         "nvgRoundedRect(vg, tbX, tbY, tbW, tbH, radius);\n", "nvgFillColor(vg, nvgRGBAf(1.0f, 1.0f, 1.0f, 1.0f));\n",
         "nvgStrokeColor(vg, nvgRGBAf(0.8980392f, 0.9058824f, 0.9215686f, 1.0f));\n", "nvgStrokeWidth(vg, 1.0f);\n",
         "nvgFill(vg);\n", "nvgStroke(vg);\n",
         "bool hasError = g_inputErrors.count(\"பெயர்\") && !g_inputErrors[\"பெயர்\"].empty();\n", "if (hasError) {\n",
         "nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));\n", "nvgStrokeWidth(vg, 2.0f);\n",
         "drawFixedText(tbX, tbY + tbH + 4, g_inputErrors[\"பெயர்\"].c_str(), \"#F44336\", 12.0f, \"left\");\n",
         "float prefixOffset = 0.0f;\n",
         "\"பெயர்\", \"எழுதுக\", false, \"rgba(51,51,51,1.000000)\", tbX, tbY, tbW, tbH, prefixOffset, fSize);\n"});
    EXPECT_THAT(frameOf("உரைபெட்டி()"), Not(HasSubstr("forcedH > 0.0f"))) << "an imposed height isn't read";
}

TEST(TextField, TakesEachPropertyFromItsStyleFirst) {
    const Case cases[] = {
        {"உரைபெட்டி(அகலம்: 200)", "tbW = 200.0f;\n"},
        {"உரைபெட்டி(உயரம்: 80)", "tbH = 80.0f;\n"},
        {"உரைபெட்டி(வளைவு: 3)", "radius = 3.0f;\n"},
        {"உரைபெட்டி(வளைவு: 3, உரைபாணி(வளைவு: 4))", "radius = 4.0f;\n"},
        {"உரைபெட்டி(அகலம்: 200, உரைபாணி(அகலம்: 210))", "tbW = 210.0f;\n"},
        {"உரைபெட்டி(பின்னணி: \"#FF0000\")", "nvgFillColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));\n"},
        {"உரைபெட்டி(கரை_நிறம்: \"#FF0000\")", "nvgStrokeColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));\n"},
        {"உரைபெட்டி(கரை_அளவு: 2.5)", "nvgStrokeWidth(vg, 2.5f);\n"},
        {"உரைபெட்டி(எழுத்து_நிறம்: \"#FF0000\")", "\"rgba(255,0,0,1.000000)\", tbX"},
        {"உரைபெட்டி(பலவரி: மெய்)", ", true, \"rgba("},
        {"உரைபெட்டி(பலவரி: \"மெய்\")", ", false, \"rgba("},
        {"உரைபெட்டி(தேடல்_பாணி(களப்பின்னணி: \"#00FF00\"), பின்னணி: \"#FF0000\")",
         "nvgFillColor(vg, nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f));\n"},
    };
    for (const Case& one : cases) {
        EXPECT_THAT(frameOf(one.source), HasSubstr(one.line)) << one.source;
    }
    EXPECT_THAT(frameOf("உரைபெட்டி(அகலம்: 50%)"), Not(HasSubstr("0.500000f"))) << "numbers alone";
}

TEST(TextField, WithoutAnIdIsNamedByItsNumber) {
    const std::string text = frameOf("உரைபெட்டி()");
    EXPECT_THAT(text, HasSubstr("g_inputErrors.count(\"default_id\")"));
    EXPECT_THAT(text, HasSubstr("pozhil_place_text_field(\"text_"));
}

TEST(TextField, MakesRoomForItsPrefix) {
    expectInOrder(frameOf("உரைபெட்டி(முன்னணி: படம்(அகலம்: 20, உயரம்: 24))"),
                  {"float prefixOffset = 0.0f;\n", "float leadW = 20.0f; float leadH = 24.0f;\n",
                   "float leadY = tbY + std::floor((tbH - leadH) / 2.0f);\n", "float leadX = tbX + 12.0f;\n",
                   "prefixOffset = leadW + 12.0f;\n", "forcedW = -1.0f; forcedH = -1.0f;\n",
                   "std::floor(leadX); float imgY = std::floor(leadY);",
                   "forcedW = savedForcedW; forcedH = savedForcedH;\n", "pozhil_place_text_field("});
}

TEST(SearchBar, IsDrawnInThisOrder) {
    for (const char* word : {"தேடல்_பட்டை", "தேடுபொறி"}) {
        expectInOrder(frameOf(std::string(word) + "()"),
                      {"float sbX = std::floor(0.0f); float sbY = std::floor(0.0f);\n",
                       "float sbW = 350.0f, sbH = 50.0f, radius = 25.0f, fSize = 16.0f;\n",
                       "if (forcedW > 0.0f) sbW = forcedW;\n",
                       "if (forcedH > 0.0f) sbH = forcedH;\n",
                       "sbW = responsiveW(sbW, winWidth, 0.0f);\n",
                       "nvgRoundedRect(vg, sbX, sbY, sbW, sbH, radius);\n",
                       "nvgFillColor(vg, nvgRGBAf(0.9411765f, 0.9568627f, 0.9803922f, 1.0f));\n",
                       "float iconX = sbX + 20.0f;\n",
                       "float iconY = sbY + sbH / 2.0f;\n",
                       "nvgCircle(vg, iconX - 2, iconY - 2, 6);\n",
                       "nvgMoveTo(vg, iconX + 2.5f, iconY + 2.5f);\n",
                       "nvgLineTo(vg, iconX + 8, iconY + 8);\n",
                       "nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));\n",
                       "nvgStrokeWidth(vg, 2);\n",
                       "std::string sbId = \"search_\" + std::to_string(",
                       "\"Search...\"",
                       "if (!g_inputValues[sbId].empty()) {\n",
                       "float clearX = sbX + sbW - 25.0f;\n",
                       "nvgMoveTo(vg, clearX - 5, iconY - 5);\n",
                       "nvgLineTo(vg, clearX + 5, iconY + 5);\n",
                       "if (g_mouseClicked && ",
                       "<= 15.0f",
                       "g_inputValues[sbId] = \"\";\n"});
    }
}

TEST(SearchBar, TakesItsLookFromItsProperties) {
    const Case cases[] = {
        {"தேடல்_பட்டை(தேடல்_பாணி(வளைவு: 4))", "radius = 4.0f"},
        {"தேடல்_பட்டை(தேடல்_பாணி(எழுத்தளவு: 20))", "fSize = 20.0f;"},
        {"தேடல்_பட்டை(தேடல்_பாணி(களப்பின்னணி: \"#FF0000\"))", "nvgFillColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));\n"},
        {"தேடல்_பட்டை(தேடல்_பாணி(அகலம்: 50%))", "sbW = ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f);\n"},
        {"தேடல்_பட்டை(உயரம்: 40)", "sbH = 40.0f;\n"},
        {"தேடல்_பட்டை(குறிப்பு: \"அ\")", "\"அ\", sbX"},
        {"தேடல்_பட்டை(குறிப்பு: \"அ\", தேடல்_குறிப்பு: \"ஆ\")", "\"ஆ\", sbX"},
    };
    for (const Case& one : cases) {
        EXPECT_THAT(frameOf(one.source), HasSubstr(one.line)) << one.source;
    }
}

TEST(SearchBar, LoadsItsIconsOnce) {
    const std::string text = frameOf("தேடல்_பட்டை(தேடல்_படம்: \"தேடு.png\", அழி_படம்: \"அழி.png\")");
    expectInOrder(text, {"static int sIcon_", " = -1;\n", "nvgCreateImage(vg, \"தேடு.png\", 0)", "20, 20, 0.0f, sIcon_",
                         ", 0.5f)", "if (!g_inputValues[sbId].empty()) {\n", "nvgCreateImage(vg, \"அழி.png\", 0)"});
    EXPECT_THAT(text, Not(HasSubstr("nvgCircle(vg, iconX")));
    EXPECT_THAT(text, Not(HasSubstr("nvgMoveTo(vg, clearX")));
}

TEST(HtmlInput, IsDrawnInThisOrder) {
    const std::string text = frameOf("நெடுவரிசை(கடவுமறை(குறிப்பு: \"எழுதுக\"))");
    expectInOrder(text, {"std::string inputId = \"input_",
                         "float tx = std::floor(childX); float ty = std::floor(currentY);\n", "float tw = 320.0f;\n",
                         "tw = responsiveW(tw, winWidth, 40.0f);\n", "float th = 60.0f;\n",
                         "nvgRoundedRect(vg, tx, ty, tw, th, 12);\n",
                         "nvgFillColor(vg, nvgRGBAf(1.0f, 1.0f, 1.0f, 1.0f));\n", "\"எழுதுக\"", "currentY += th;\n"});
    EXPECT_THAT(frameOf("கடவுமறை()"), Not(HasSubstr("0.0f += th")));
}

TEST(HtmlInput, ReadsItsColourByWhatElseIsGiven) {
    const std::string white = "\"rgba(255,255,255,1.000000)\"";
    const std::string black = "\"rgba(0,0,0,1.000000)\"";
    const std::string red = "\"rgba(255,0,0,1.000000)\"";
    const std::string blue = "\"rgba(0,0,255,1.000000)\"";
    struct Colours {
        const char* source;
        std::string background;
        std::string text;
    };
    const Colours cases[] = {
        {"கடவுமறை()", white, black},
        {"கடவுமறை(நிறம்: \"#FF0000\")", red, black},
        {"கடவுமறை(பின்னணி: \"#0000FF\")", blue, black},
        {"கடவுமறை(பின்னணி: \"#0000FF\", நிறம்: \"#FF0000\")", blue, red},
        {"கடவுமறை(நிறம்: \"#FF0000\", எழுத்து_நிறம்: \"#0000FF\")", red, blue},
        {"கடவுமறை(பின்னணி: \"#0000FF\", நிறம்: \"#000000\", எழுத்து_நிறம்: \"#FF0000\")", blue, red},
    };
    for (const Colours& one : cases) {
        EXPECT_THAT(frameOf(one.source), HasSubstr(one.background + ", " + one.text + ", tx")) << one.source;
    }
}

TEST(HtmlInput, TakesItsSizeFromItsStyleFirst) {
    expectInOrder(frameOf("கடவுமறை(அகலம்: 200, உயரம்: 40)"), {"float tw = 200.0f;\n", "float th = 40.0f;\n"});
    expectInOrder(frameOf("கடவுமறை(அகலம்: 200, உரைபாணி(அகலம்: 210, உயரம்: 44))"),
                  {"float tw = 210.0f;\n", "float th = 44.0f;\n"});
}

} // namespace

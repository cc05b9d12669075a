// Buttons: label, colours, size, what the mouse does, and the order of all that.

#include "generator/web/widgets/button_label.h"
#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string styled(const std::string& style) {
    return frameOf("பொத்தான்(உரை: \"அ\", பொ_பாணி(" + style + "))");
}

TEST(Button, IsDrawnInThisOrder) {
    expectInOrder(
        frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => செல்க(\"ஆ\"))"),
        {"float btnX = 0.0f; float btnY = 0.0f;\n",
         "float radius = 8.0f;\n",
         "float shadowBlur = 0.0f;\n",
         "fn_any_to_string(std::string(u8\"அ\"))",
         "int r=33, g=150, b=243, a=255;\n",
         "int tr=255, tg=255, tb=255, ta=255;\n",
         "float responsiveSize = responsiveTextSize(16.0f, winWidth);\n",
         "nvgFontSize(vg, responsiveSize);\n",
         "nvgFontFace(vg, \"tamil_font\");\n",
         "nvgTextBounds(vg, 0, 0, btnTextStr.c_str(), NULL, bounds);\n",
         "float btnW = txtW + 32.0f;\n",
         "if (btnW < 80.0f) btnW = 80.0f;\n",
         "btnW = responsiveW(btnW, winWidth, 40.0f);\n",
         "float btnH = txtH + 18.0f;\n",
         "if (btnH < 36.0f) btnH = 36.0f;\n",
         "if (forcedW > 0.0f) btnW = forcedW;\n",
         "if (forcedH > 0.0f) btnH = forcedH;\n",
         "bool isHover = mx >= btnX && mx <= btnX + btnW && my >= btnY && my <= btnY + btnH && "
         "(!g_block_background_clicks || g_inside_overlay);\n",
         "if (isHover) {\n",
         "pozhil_pointer_cursor();\n",
         "r = std::max(0, r - 20); g = std::max(0, g - 20); b = std::max(0, b - 20);\n",
         "if (g_mouseClicked) {\n",
         "std::any callback = ",
         "if (shadowBlur > 0.0f) {\n",
         "nvgRect(vg, btnX - 2, btnY - 2, btnW + 4, btnH + 4);\n",
         "nvgBoxGradient(vg, btnX, btnY + 2, btnW, btnH, radius, shadowBlur, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0))",
         "if (true) {\n",
         "nvgRoundedRect(vg, btnX + 1, btnY + 2, btnW, btnH, radius);\n",
         "nvgFillColor(vg, nvgRGBA(0, 0, 0, 64));\n",
         "nvgRoundedRect(vg, btnX, btnY, btnW, btnH, radius);\n",
         "nvgFillColor(vg, nvgRGBA(r, g, b, a));\n",
         "std::string tColor = \"rgb(\"",
         "float centerX = btnX + btnW/2;\n",
         "float centerY = btnY + btnH/2 - responsiveSize/2 + 2.0f;\n",
         "drawFixedText(centerX, centerY, btnTextStr.c_str(), tColor.c_str(), responsiveSize, \"center\", \"400\", "
         "false, \"\");\n"});
}

TEST(Button, TakesItsLookFromItsStyleFirst) {
    struct Case {
        const char* source;
        const char* line;
    };
    const Case cases[] = {
        {"பொத்தான்(வளைவு: 3)", "float radius = 3.0f;\n"},
        {"பொத்தான்(வளைவு: 3, பொ_பாணி(வளைவு: 5))", "float radius = 5.0f;\n"},
        {"பொத்தான்(வளைவு: 3, பொ_பாணி(வளைவு: அ))", "float radius = 3.0f;\n"},
        {"பொத்தான்(பொ_பாணி(வளைவு: 7.5))", "float radius = 7.5f;\n"},
        {"பொத்தான்(பொ_பாணி(வளைவு: அ))", "float radius = 8.0f;\n"},
        {"பொத்தான்(பொ_பாணி(நிழல்: 12))", "float shadowBlur = 12.0f;\n"},
        {"பொத்தான்(பொபின்னணி: \"#102030\")", "r = 16; g = 32; b = 48; a = 255;\n"},
        {"பொத்தான்(பொ_பாணி(பொபின்னணி: \"#10203080\"))", "r = 16; g = 32; b = 48; a = 128;\n"},
        {"பொத்தான்(பொ_பாணி(பொபின்னணி: \"சிவப்பு\"))", "r = 255; g = 0; b = 0; a = 255;\n"},
        {"பொத்தான்(பொ_பாணி(பொபின்னணி: நிறம்.ஆரஞ்சு))", "r = 255; g = 164; b = 0; a = 255;\n"},
        {"பொத்தான்(பொ_பாணி(அகலம்: 200))", "btnW = 200.0f;\n"},
        {"பொத்தான்(அகலம்: 90, பொ_பாணி(அகலம்: 50%))", "btnW = ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f);\n"},
        {"பொத்தான்(உயரம்: 25%)", "btnH = ((forcedH > 0.0f ? forcedH : winHeight) * 0.250000f);\n"},
    };
    for (const Case& one : cases) {
        EXPECT_THAT(frameOf(one.source), HasSubstr(one.line)) << one.source;
    }
    expectInOrder(frameOf("பொத்தான்(பொபின்னணி: \"#102030\", பொ_பாணி(பொபின்னணி: \"#405060\"))"),
                  {"r = 16; g = 32; b = 48; a = 255;\n", "r = 64; g = 80; b = 96; a = 255;\n"});
}

TEST(Button, PutsItsDeclaredWidthBeforeTheCutAndTheForcedOneBehind) {
    expectInOrder(styled("அகலம்: 900, உயரம்: 70"), {"btnW = 900.0f;\n", "btnW = responsiveW(btnW, winWidth, 40.0f);\n",
                                                  "btnH = 70.0f;\n", "if (forcedW > 0.0f) btnW = forcedW;\n"});
}

TEST(Button, ChangesToItsHoverColour) {
    const std::string text = styled("மேம்படுத்தப்பட்ட_நிறம்: \"#102030\"");
    expectInOrder(text, {"int hr=16, hg=32, hb=48;\n", "if (isHover) {\n", "r = hr; g = hg; b = hb;\n"});
    EXPECT_THAT(text, Not(HasSubstr("std::max(0, r - 20)")));
}

TEST(Button, WithAnAnimationKeepsItsColourUnderThePointer) {
    const std::string text = frameOf("பொத்தான்(உரை: \"அ\", பொ_பாணி(மேம்படுத்தப்பட்ட_நிறம்: \"#102030\"), "
                                     "அசைவூட்டம்(காலம்: 300, நிலைமை: \"hover\", இலக்கு(பின்னணி: \"#FF0000\")))");
    EXPECT_THAT(text, Not(HasSubstr("r = hr;")));
    EXPECT_THAT(text, Not(HasSubstr("std::max(0, r - 20)")));
    expectInOrder(text,
                  {"float t = getCurveValue(", "NVGcolor curCol = nvgRGBA(r, g, b, a);\n",
                   "NVGcolor targetCol = nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f);\n",
                   "curCol = lerpColor(curCol, targetCol, t);\n", "r = (int)(curCol.r * 255);", "if (isHover) {\n"});
}

TEST(Button, HasABorderOnlyWithColourAndWidth) {
    expectInOrder(styled("கரை_நிறம்: \"#FF0000\", கரை_அளவு: 2"),
                  {"nvgFillColor(vg, nvgRGBA(r, g, b, a));\n", "nvgRoundedRect(vg, btnX, btnY, btnW, btnH, radius);\n",
                   "nvgStrokeColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));\n", "nvgStrokeWidth(vg, 2.0f);\n",
                   "nvgStroke(vg);\n"});
    EXPECT_THAT(styled("கரை_நிறம்: \"#FF0000\", கரை_அளவு: 1.5"), HasSubstr("nvgStrokeWidth(vg, 1.5f);\n"));
    for (const char* half : {"கரை_நிறம்: \"#FF0000\"", "கரை_அளவு: 2"}) {
        EXPECT_THAT(styled(half), Not(HasSubstr("nvgStroke"))) << half;
    }
}

TEST(Button, RunsItsStatementsOnlyWithoutAHandler) {
    expectInOrder(frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்(அச்சிடு(\"ஆ\")))"),
                  {"if (g_mouseClicked) {\n", "try {\n", "std::cout << ", "} catch (...) {\n"});
    EXPECT_THAT(frameOf("பொத்தான்(உரை: \"அ\")"), Not(HasSubstr("try {")));
}

// --- labels ---

TEST(ButtonLabels, ComeFromTheTextChildFirst) {
    struct Case {
        const char* source;
        const char* text;
        const char* colour;
    };
    const Case cases[] = {
        {"பொத்தான்()", "std::string(\"Click\")", "tr = 255; tg = 255; tb = 255; ta = 255;\n"},
        {"பொத்தான்(உரை: \"அ\")", "std::string(u8\"அ\")", "tr = 255; tg = 255; tb = 255; ta = 255;\n"},
        {"பொத்தான்(உரை: எண்ணிக்கை)", "global_vars[\"எண்ணிக்கை\"]", "tr = 255; tg = 255; tb = 255; ta = 255;\n"},
        {"பொத்தான்(உரை(\"ஆ\"))", "std::string(u8\"ஆ\")", "tr = 0; tg = 0; tb = 0; ta = 255;\n"},
        {"பொத்தான்(உரை: \"அ\", உரை(\"ஆ\"))", "std::string(u8\"ஆ\")", "tr = 0; tg = 0; tb = 0; ta = 255;\n"},
        {"பொத்தான்(உரை())", "std::string(\"Click\")", "tr = 0; tg = 0; tb = 0; ta = 255;\n"},
        {"பொத்தான்(உரை(\"ஆ\", உரைபாணி(நிறம்: \"#102030\")), பொ_பாணி(எழுத்து_நிறம்: \"#FFFFFF\"))", "std::string(u8\"ஆ\")",
         "tr = 16; tg = 32; tb = 48; ta = 255;\n"},
        {"பொத்தான்(உரை: \"அ\", பொ_பாணி(எழுத்து_நிறம்: \"#102030\"))", "std::string(u8\"அ\")",
         "tr = 16; tg = 32; tb = 48; ta = 255;\n"},
    };
    for (const Case& one : cases) {
        const std::string text = frameOf(one.source);
        EXPECT_THAT(text, HasSubstr("std::string btnTextStr = fn_any_to_string(" + std::string(one.text) + ");\n"))
            << one.source;
        EXPECT_THAT(text, HasSubstr(one.colour)) << one.source;
    }
}

TEST(ButtonLabels, AreMeasuredInTheFaceOfTheirWeight) {
    const std::pair<const char*, const char*> faces[] = {
        {"400", "tamil_font"}, {"300", "tamil_font"},  {"30", "tamil_font"},      {"29", "sans"},
        {"700", "tamil_font"}, {"bold", "tamil_font"}, {"தடிமனான", "tamil_font"}, {"normal", "sans"},
        {"", "tamil_font"},    {"12px", "sans"},
    };
    for (const auto& [weight, face] : faces) {
        pozhil::TextStyle style;
        style.weight = weight;
        EXPECT_EQ(pozhil::faceOf(style), face) << weight;
    }
    pozhil::TextStyle own;
    own.font = "எழுத்து/அ.ttf";
    EXPECT_EQ(pozhil::faceOf(own), "எழுத்து/அ.ttf");
}

TEST(ButtonLabels, LoadTheirOwnFont) {
    expectInOrder(frameOf("பொத்தான்(உரை(\"அ\", உரைபாணி(எழுத்துரு: \"அ.ttf\", அளவு: 20, தடிமன்: 300)))"),
                  {"responsiveTextSize(20.0f, winWidth)", "nvgFontFace(vg, \"அ.ttf\");\n",
                   "if (nvgFindFont(vg, \"அ.ttf\") == -1) nvgCreateFont(vg, \"அ.ttf\", \"அ.ttf\");\n",
                   "\"center\", \"300\", false, \"அ.ttf\");\n"});
    EXPECT_THAT(frameOf("பொத்தான்(உரை(\"அ\"))"), Not(HasSubstr("nvgCreateFont")));
}

TEST(ButtonLabels, LetAStyleRecordOverrideTheirOwnStyle) {
    const auto record = [](pozhil::PropertyMap entries) {
        pozhil::StatementList none;
        return std::make_unique<pozhil::WidgetNode>("உரைபாணி", std::move(entries), std::move(none),
                                                    pozhil::சீரமைப்பு_வகை::மேல்_இடது);
    };
    pozhil::PropertyMap entries;
    entries.emplace("நிறம்", text("#FF0000"));
    entries.emplace("அளவு", number("30"));
    entries.emplace("எழுத்துரு", text("அ.ttf"));
    entries.emplace("தடிமன்", number("700"));
    const auto button = [&](pozhil::PropertyMap style) {
        auto label = std::make_unique<pozhil::WidgetNode>(
            "உரை", pozhil::PropertyMap(), listOf(record(std::move(style))), pozhil::சீரமைப்பு_வகை::மேல்_இடது);
        label->style.size = 20;
        label->style.weight = "300";
        return pozhil::WidgetNode("பொத்தான்", {}, listOf(std::move(label)), pozhil::சீரமைப்பு_வகை::மேல்_இடது);
    };
    const pozhil::WidgetNode overridden = button(std::move(entries));
    const pozhil::ButtonLabel label = pozhil::buttonLabel(overridden);
    EXPECT_EQ(label.colour.red, 1.0F);
    EXPECT_EQ(label.style.size, 30.0F);
    EXPECT_EQ(label.style.font, "அ.ttf");
    EXPECT_EQ(label.style.weight, "700");
    const pozhil::WidgetNode kept = button({});
    EXPECT_EQ(pozhil::buttonLabel(kept).style.size, 20.0F);
    EXPECT_EQ(pozhil::buttonLabel(kept).style.weight, "300");
    EXPECT_EQ(pozhil::buttonLabel(kept).colour.red, 0.0F);
}

} // namespace

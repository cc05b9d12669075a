// Texts and text buttons: what they show, and the text that they become.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(Text, IsDrawnInThisOrder) {
    expectInOrder(frameOf("உரை(\"அ\")"),
                  {"std::string textContent = fn_any_to_string(std::string(u8\"அ\"));\n", "float animAlpha = 1.0f;\n",
                   "float animOffsetY = 0.0f;\n", "float textX = 0.0f; float textY = 0.0f; float drawX = textX;\n",
                   "float responsiveSize = responsiveTextSize(16.0f, winWidth);\n",
                   "float _actualW = getTextWidth(textContent.c_str(), responsiveSize);\n",
                   "float _maxW = (forcedW > 0.0f) ? forcedW : winWidth;\n", "if (_actualW > _maxW - 20.0f) {\n",
                   "responsiveSize *= (_maxW - 20.0f) / _actualW;\n", "std::string webAlign = \"left\";\n",
                   "std::string alignProp = \"left\";\n", "if (alignProp == \"மையம்\" || alignProp == \"center\") {\n",
                   "webAlign = \"center\";\n",
                   "drawX = textX + getTextWidth(textContent.c_str(), responsiveSize) / 2.0f;\n",
                   "drawFixedText(drawX, textY, textContent.c_str(), \"rgba(0,0,0,1.000000)\", responsiveSize, "
                   "webAlign.c_str(), \"normal\", false, \"\", animAlpha, animOffsetY);\n"});
}

TEST(Text, ShowsTheValueOfItsExpression) {
    const std::pair<const char*, const char*> cases[] = {
        {"உரை()", "std::string(\"\")"},
        {"உரை(எண்ணிக்கை)", "global_vars[\"எண்ணிக்கை\"]"},
        {"உரை(காட்சி_நிலை.எண்ணிக்கை)", "global_vars[\"எண்ணிக்கை\"]"},
        {"உரை(பெயர்.உரைதரவு)", "std::any(g_inputValues[\"பெயர்\"])"},
        {"உரை(5)", "5LL"},
        {"உரை(\"அ\" இணை எண்ணிக்கை)", "fn_any_to_string(global_vars[\"எண்ணிக்கை\"])"},
        {"உரை(உரை: உரை(\"உள்ளே\"))", "std::string(u8\"உள்ளே\")"},
        {"உரை(உரை: மாற்றி())", "std::string(u8\"[விட்ஜெட்]\")"},
    };
    for (const auto& [source, value] : cases) {
        const std::string text = frameOf(source);
        const std::string begin = "std::string textContent = fn_any_to_string(";
        const std::size_t start = text.find(begin);
        ASSERT_NE(start, std::string::npos) << source;
        EXPECT_THAT(text.substr(start, text.find('\n', start) - start), HasSubstr(value)) << source;
    }
}

TEST(TextStyles, StandInTheDrawing) {
    const std::pair<const char*, const char*> cases[] = {
        {"நிறம்: \"#FF8040\"", "\"rgba(255,128,64,1.000000)\""},
        {"நிறம்: \"#FF804080\"", "\"rgba(255,128,64,0.501961)\""},
        {"நிறம்: \"ஆரஞ்சு\"", "\"rgba(255,164,0,1.000000)\""},
        {"நிறம்: \"அறியாதது\"", "\"rgba(0,0,0,1.000000)\""},
        {"நிறம்: \"\"", "\"rgba(0,0,0,1.000000)\""},
        {"அளவு: 40", "responsiveTextSize(40.0f, winWidth)"},
        {"அளவு: 22.5", "responsiveTextSize(22.5f, winWidth)"},
        {"அளவு: 0", "responsiveTextSize(16.0f, winWidth)"},
        {"தடிமன்: \"bold\"", "webAlign.c_str(), \"700\", false"},
        {"தடிமன்: 300", "webAlign.c_str(), \"300\", false"},
        {"சீரமைப்பு: மையம்", "alignProp = \"மையம்\";"},
        {"சீரமைப்பு: \"center\"", "alignProp = \"center\";"},
        {"சீரமைப்பு: \"\"", "alignProp = \"இடது\";"},
        {"அடிக்குறிப்பு: மெய்", "\"normal\", true, \"\""},
        {"எழுத்துரு: \"எழுத்து/அ.ttf\"", "false, \"எழுத்து/அ.ttf\", animAlpha"},
    };
    for (const auto& [style, drawn] : cases) {
        EXPECT_THAT(frameOf("உரை(\"அ\", உரைபாணி(" + std::string(style) + "))"), HasSubstr(drawn)) << style;
    }
}

TEST(TextAnimation, FadesByProgressAndCountsByTheCurve) {
    const std::string fading =
        frameOf("உரை(\"அ\", அசைவூட்டம்(காலம்: 400, வகை: \"ease_in\", நிலைமை: \"தானாக\", இலக்கு(மங்குநழுவு: 1)))");
    expectInOrder(fading,
                  {"float animOffsetY = 0.0f;\n", "float p = updateProgress(",
                   "ULL, \"தானாக\", false, 0.0f, winHeight, 400.0f);\n", "float t = getCurveValue(\"ease_in\", p);\n",
                   "if (1) { animAlpha = p; animOffsetY = 30.0f * (1.0f - p); }\n", "float textX = "});
    EXPECT_THAT(fading, Not(HasSubstr("currentNum")));
    expectInOrder(frameOf("உரை(\"₹500\", அசைவூட்டம்(காலம்: 400, இலக்கு(மதிப்பு: 500)))"),
                  {"if (0) { animAlpha = p; animOffsetY = 30.0f * (1.0f - p); }\n",
                   "int currentNum = (int)(0.0f + (500.0f * t));\n", "splitText(textContent)",
                   "textContent = parts.prefix + std::to_string(currentNum) + parts.suffix;\n"});
    EXPECT_THAT(frameOf("உரை(\"அ\")"), Not(HasSubstr("updateProgress")));
}

// --- text buttons ---

TEST(TextButton, IsDrawnInThisOrder) {
    expectInOrder(
        frameOf("உரைபொத்தான்(\"முகப்பு\", அழுத்தினால்: செல்க(\"ஆ\"))"),
        {"const char* txt = u8\"முகப்பு\"; float fs = 16.0f; float bX = 0.0f; float bY = 0.0f;\n",
         "nvgFontSize(vg, fs); nvgFontFace(vg, \"sans\");\n", "nvgTextBounds(vg, 0, 0, txt, NULL, bounds);\n",
         " + 16.0f;\n", "float bH = 40.0f;\n", "bool isHov = mx >= bX && mx <= bX + bW && my >= bY && my <= bY + bH;\n",
         "if (isHov && g_mouseClicked) {\n", "std::any callback = std::function<void()>([=](){ ", "; });\n",
         "if (isHov) pozhil_pointer_cursor();\n",
         "std::string activeColor = isHov ? \"rgba(58,173,104,1.000000)\" : \"rgba(255,255,255,1.000000)\";\n",
         "drawFixedText(bX + (bW / 2.0f), bY + (bH / 2.0f) - (fs / 2.0f) + 2.0f, txt, activeColor.c_str(), fs, "
         "\"center\", \"400\", false, \"\");\n"});
}

TEST(TextButton, DrawsNothingButItsText) {
    const std::string text = frameOf("உரைபொத்தான்(\"அ\", அகலம்: 300)");
    const std::string block = text.substr(text.find("const char* txt"));
    for (const char* absent : {"nvgFill", "nvgStroke", "responsiveTextSize", "forcedW", "g_mouseClicked"}) {
        EXPECT_THAT(block, Not(HasSubstr(absent)));
    }
}

TEST(TextButton, HasAUsualLabel) {
    EXPECT_THAT(frameOf("உரைபொத்தான்()"), HasSubstr("const char* txt = u8\"Home\";"));
    EXPECT_THAT(frameOf("உரைபொத்தான்(எண்ணிக்கை)"), HasSubstr("const char* txt = u8\"Home\";"));
}

TEST(TextButton, DrawsAWidgetInPlaceOnAPress) {
    const std::string text = frameOf("உரைபொத்தான்(\"அ\", அழுத்தினால்: மாற்றி())");
    expectInOrder(text, {"if (isHov && g_mouseClicked) {\n", "// மாற்றி\n", "activeColor"});
    EXPECT_THAT(text, Not(HasSubstr("std::any callback")));
}

TEST(TextButton, EvaluatesWhatAPressFindsWithoutCallingIt) {
    expectInOrder(frameOf("உரைபொத்தான்(\"அ\", அழுத்தினால்: () => செல்க(\"ஆ\"))"),
                  {"std::function<void()>([=](){ std::function<std::any()>(",
                   "std::any_cast<std::function<void()>>(callback)();"});
    EXPECT_THAT(frameOf("உரைபொத்தான்(\"அ\", அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: \"ஆ\"))"),
                HasSubstr("std::any callback = std::function<void()>([=](){ "));
}

} // namespace

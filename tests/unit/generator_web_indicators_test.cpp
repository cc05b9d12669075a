// Widgets that only show something: a line, a turning arc, a bar, a message.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(Divider, IsALineThroughTheMiddleOfItsHeight) {
    expectInOrder(frameOf("பிரிப்பான்()"),
                  {"float divX = std::floor(0.0f); float divY = std::floor(0.0f);",
                   "float divWidth = 300.0f; float divHeight = 20.0f;", "if (forcedW > 0.0f) divWidth = forcedW;",
                   "if (forcedH > 0.0f) divHeight = forcedH;", "divWidth = responsiveW(divWidth, winWidth, 0.0f);",
                   "float centerY = divY + divHeight / 2;", "nvgMoveTo(vg, divX, centerY);",
                   "nvgLineTo(vg, divX + divWidth, centerY);", "nvgStrokeColor(vg, nvgRGBA(158, 158, 158, 255));",
                   "nvgStrokeWidth(vg, 1.0f);", "nvgStroke(vg);"});
}

TEST(Divider, TakesSizeColourAndThickness) {
    expectInOrder(frameOf("பிரிப்பான்(அகலம்: 50%, உயரம்: 8, நிறம்: \"#FF0000\", style_தடிமன்: 2.5)"),
                  {"divWidth = ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f);", "divHeight = 8.0f;",
                   "nvgRGBA(255, 0, 0, 255)", "nvgStrokeWidth(vg, 2.5f);"});
    EXPECT_THAT(frameOf("பிரிப்பான்(நிறம்: \"#FF0000\", style_நிறம்: \"#00FF00\")"), HasSubstr("nvgRGBA(0, 255, 0, 255)"));
}

TEST(Spinner, TurnsSixRadiansInASecond) {
    expectInOrder(frameOf("சுழல்_காட்டி()"),
                  {"float spX = std::floor(0.0f); float spY = std::floor(0.0f);", "float size = 40.0f;",
                   "float radius = size / 2 - 4;", "float centerX = spX + size / 2; float centerY = spY + size / 2;",
                   "double time = emscripten_get_now() / 1000.0;", "nvgSave(vg);",
                   "nvgTranslate(vg, centerX, centerY);", "nvgRotate(vg, time * 6.0f);",
                   "nvgArc(vg, 0, 0, radius, 0, NVG_PI * 1.5f, NVG_CW);",
                   "nvgStrokeColor(vg, nvgRGBA(33, 150, 243, 255));", "nvgStrokeWidth(vg, 4.0f);",
                   "nvgLineCap(vg, NVG_ROUND);", "nvgStroke(vg);", "nvgRestore(vg);"});
    expectInOrder(frameOf("சுழல்_காட்டி(style_அளவு: 60, style_தடிமன்: 8, style_நிறம்: \"#AA00AA\")"),
                  {"float size = 60.0f;", "nvgRGBA(170, 0, 170, 255)", "nvgStrokeWidth(vg, 8.0f);"});
}

TEST(Spinner, ListensToItsStyleBlockOnly) {
    expectInOrder(frameOf("சுழல்_காட்டி(எச்சரிக்கை_பாணி(அளவு: 60, நிறம்: \"#00FF00\"))"),
                  {"float size = 60.0f;", "nvgStrokeColor(vg, nvgRGBA(0, 255, 0, 255));"});
    const std::string text = frameOf("சுழல்_காட்டி(அளவு: 60, நிறம்: \"#FF0000\", அகலம்: 70, உயரம்: 80)");
    expectInOrder(text, {"float size = 40.0f;", "nvgStrokeColor(vg, nvgRGBA(33, 150, 243, 255));"});
    EXPECT_THAT(text, Not(HasSubstr("70.0f")));
}

TEST(ProgressBar, GoesToAndFroWithoutAValue) {
    const std::string text = frameOf("முன்னேற்றவரி()");
    expectInOrder(text,
                  {"float lpX = std::floor(0.0f); float lpY = std::floor(0.0f);",
                   "float lpWidth = 200.0f; float lpHeight = 6.0f;", "lpWidth = responsiveW(lpWidth, winWidth, 0.0f);",
                   "nvgRoundedRect(vg, lpX, lpY, lpWidth, lpHeight, lpHeight / 2);",
                   "nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));", "nvgBeginPath(vg);",
                   "float animPos = (sin(time * 3.0f) + 1.0f) / 2.0f;", "float barW = lpWidth * 0.3f;",
                   "float barX = lpX + animPos * (lpWidth - barW);",
                   "nvgRoundedRect(vg, barX, lpY, barW, lpHeight, lpHeight / 2);",
                   "nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));", "nvgFill(vg);"});
    EXPECT_THAT(text, Not(HasSubstr("float progress")));
}

TEST(ProgressBar, ShowsItsValue) {
    const std::string text = frameOf("முன்னேற்றவரி(மதிப்பு: 40, நிறம்: \"#FF0000\")");
    expectInOrder(text, {"nvgBeginPath(vg);", "nvgBeginPath(vg);", "nvgBeginPath(vg);",
                         "float progress = 40.0f / 100.0f;", "if (progress < 0.0f) progress = 0.0f;",
                         "if (progress > 1.0f) progress = 1.0f;", "if (progress > 0.01f) {",
                         "nvgRoundedRect(vg, lpX, lpY, lpWidth * progress, lpHeight, lpHeight / 2);",
                         "nvgFillColor(vg, nvgRGBA(255, 0, 0, 255));"});
    EXPECT_THAT(text, Not(HasSubstr("emscripten_get_now")));
    for (const std::string minus : {"கழி", "குறை"}) {
        EXPECT_THAT(frameOf("முன்னேற்றவரி(மதிப்பு: " + minus + " 5)"), HasSubstr("float progress = -5.0f / 100.0f;"));
    }
    EXPECT_THAT(frameOf("முன்னேற்றவரி(மதிப்பு: 40, style_மதிப்பு: 60)"), HasSubstr("float progress = 60.0f / 100.0f;"));
    EXPECT_THAT(frameOf("முன்னேற்றவரி(மதிப்பு: படி)"),
                HasSubstr("float progress = (float)fn_get_double(global_vars[\"படி\"]) / 100.0f;"));
}

TEST(IndicatorProperties, ComeFromTheStyleBlockFirst) {
    const std::string sizes = "அகலம்: 10, style_அகலம்: 77, உயரம்: 11, style_உயரம்: 33";
    for (const auto& [kind, stem] :
         {std::pair{"பிரிப்பான்", "div"}, std::pair{"முன்னேற்றவரி", "lp"}, std::pair{"தகவல்பட்டை", "sb"}}) {
        const std::string width = std::string(stem) + "Width";
        const std::string height = std::string(stem) + "Height";
        const std::string text = frameOf(std::string(kind) + "(" + sizes + ")");
        expectInOrder(text, {width + " = 77.0f;", height + " = 33.0f;", "if (forcedW > 0.0f) " + width + " = forcedW;",
                             "if (forcedH > 0.0f) " + height + " = forcedH;",
                             width + " = responsiveW(" + width + ", winWidth, 0.0f);"});
        EXPECT_THAT(text, Not(HasSubstr(width + " = 10.0f;"))) << kind;
        EXPECT_THAT(text, Not(HasSubstr(height + " = 11.0f;"))) << kind;
    }
    EXPECT_THAT(frameOf("முன்னேற்றவரி(நிறம்: \"#FF0000\", style_நிறம்: \"#00FF00\")"),
                HasSubstr("nvgFillColor(vg, nvgRGBA(0, 255, 0, 255));"));
    EXPECT_THAT(frameOf("தகவல்பட்டை(பின்னணி: \"#FF0000\", style_பின்னணி: \"#00FF00\")"),
                HasSubstr("nvgFillColor(vg, nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f));"));
}

TEST(InfoPill, ShowsItsMessage) {
    expectInOrder(
        frameOf("தகவல்பட்டை()"),
        {"float sbX = std::floor(0.0f); float sbY = std::floor(0.0f);",
         "float sbWidth = 300.0f; float sbHeight = 40.0f;", "sbWidth = responsiveW(sbWidth, winWidth, 0.0f);",
         "std::string msgText = fn_any_to_string(std::string(u8\"தகவல்\"));",
         "nvgRect(vg, sbX - 5, sbY - 5, sbWidth + 10, sbHeight + 10);", "nvgPathWinding(vg, NVG_HOLE);",
         "nvgBoxGradient(vg, sbX, sbY+2, sbWidth, sbHeight, sbHeight/2, 4, nvgRGBA(0,0,0,60), nvgRGBA(0,0,0,0))",
         "nvgRoundedRect(vg, sbX, sbY, sbWidth, sbHeight, sbHeight/2);",
         "nvgFillColor(vg, nvgRGBAf(0.1960784f, 0.1960784f, 0.1960784f, 0.9019608f));",
         "drawFixedText(sbX + sbWidth/2, sbY + sbHeight/2 - 8.0f, msgText.c_str(), \"#FFFFFF\", 16.0f, \"center\");"});
    expectInOrder(frameOf("தகவல்பட்டை(செய்தி: பெயர், பின்னணி: \"#FF0000\", உயரம்: 50)"),
                  {"sbHeight = 50.0f;", "std::string msgText = fn_any_to_string(global_vars[\"பெயர்\"]);",
                   "nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f)"});
}

} // namespace

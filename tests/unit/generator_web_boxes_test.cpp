// Boxes and cards: the text that they become, from where they take their look, and where children stand.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(Box, IsWhiteAndAHundredPixelsEachWay) {
    expectInOrder(frameOf("பெட்டி()"),
                  {"float boxX = std::floor(0.0f); float boxY = std::floor(0.0f);",
                   "float boxW = 100.0f; float boxH = 100.0f;",
                   "if (forcedW > 0.0f) boxW = forcedW;",
                   "if (forcedH > 0.0f) boxH = forcedH;",
                   "float radius = 0.0f;",
                   "float shadow = 0.0f;",
                   "bool isBoxHover = mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH && "
                   "(!g_block_background_clicks || g_inside_overlay);",
                   "NVGcolor boxColor = nvgRGBAf(1.0f, 1.0f, 1.0f, 1.0f);",
                   "if (isBoxHover && false) {",
                   "if (shadow > 0) {",
                   "float shadowBlur = shadow * 8.0f;",
                   "float offsetY = shadow * 1.5f;",
                   "nvgBoxGradient(vg, boxX, boxY + offsetY, boxW, boxH, radius, shadowBlur, nvgRGBA(0, 0, 0, 25), "
                   "nvgRGBA(0, 0, 0, 0))",
                   "nvgRect(vg, boxX - shadowBlur - 10, boxY - shadowBlur - 10, boxW + (shadowBlur * 2) + 20, "
                   "boxH + (shadowBlur * 2) + 20);",
                   "nvgPathWinding(vg, NVG_HOLE);",
                   "nvgBeginPath(vg);",
                   "nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);",
                   "nvgFillColor(vg, boxColor);",
                   "nvgFill(vg);",
                   "nvgSave(vg);",
                   "nvgBeginPath(vg);",
                   "nvgIntersectScissor(vg, boxX, boxY, boxW, boxH);",
                   "g_currentClipX = boxX; g_currentClipY = boxY;",
                   "float oldForcedW_container = forcedW;",
                   "forcedW = oldForcedW_container;",
                   "nvgRestore(vg);",
                   "g_currentClipX = oldClipX;"});
    EXPECT_THAT(frameOf("பெட்டி()"), Not(HasSubstr("isBoxClicked")));
}

TEST(Box, TakesItsOwnSizeBeforeThatOfItsStyle) {
    const std::string style = "பெட்டி_பாணி(அகலம்: 50%, உயரம்: 40)";
    expectInOrder(frameOf("பெட்டி(" + style + ")"),
                  {"boxW = ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f);\n", "boxH = 40.0f;\n"});
    const std::string both = frameOf("பெட்டி(" + style + ", அகலம்: 300)");
    EXPECT_THAT(both, HasSubstr("boxW = 300.0f;\n"));
    EXPECT_THAT(both, HasSubstr("boxH = 40.0f;\n"));
    EXPECT_THAT(both, Not(HasSubstr("0.500000f")));
}

TEST(Box, ChoosesItsSizeByTheWindow) {
    EXPECT_THAT(frameOf("பெட்டி(அகலம்: திரை_அகலம் சிறிது 600 ? 90% : 400)"),
                HasSubstr("boxW = ((winWidth < 600.0f)) ? ((forcedW > 0.0f ? forcedW : winWidth) * 0.900000f) : "
                          "400.0f;\n"));
}

TEST(Box, TakesRadiusAndShadowFromItsStyleUnlessItHasOnes) {
    const std::string style = "பெட்டி_பாணி(வளைவு: 9, நிழல்: 3)";
    expectInOrder(frameOf("பெட்டி(" + style + ")"), {"float radius = 9.0f;", "float shadow = 3.0f;"});
    expectInOrder(frameOf("பெட்டி(" + style + ", வளைவு: 5, நிழல்: 2)"), {"float radius = 5.0f;", "float shadow = 2.0f;"});
}

TEST(Box, TakesTheLastColourThatIsGiven) {
    const std::string red = "NVGcolor boxColor = nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f);";
    const std::string blue = "NVGcolor boxColor = nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f);";
    EXPECT_THAT(frameOf("பெட்டி(பெட்டி_பாணி(பின்னணி: \"#FF0000\"))"), HasSubstr(red));
    EXPECT_THAT(frameOf("பெட்டி(பெட்டி_பாணி(பின்னணி: \"#00FF00\", பெட்டிபின்னணி: நிறம்.நீலம்))"), HasSubstr(blue));
    EXPECT_THAT(frameOf("பெட்டி(பின்னணி: நிறம்.சிவப்பு, பெட்டி_பாணி(பெட்டிபின்னணி: நிறம்.நீலம்))"), HasSubstr(red));
    EXPECT_THAT(frameOf("பெட்டி(பின்னணி: \"சிவப்பு\")"), HasSubstr(red));
    EXPECT_THAT(frameOf("பெட்டி(பின்னணி: \"#FF000080\")"), HasSubstr("nvgRGBAf(1.0f, 0.0f, 0.0f, 0.5019608f)"));
}

TEST(Box, ChangesColourAtOnceUnderThePointer) {
    expectInOrder(
        frameOf("பெட்டி(பெட்டி_பாணி(மேம்படுத்தப்பட்ட_நிறம்: \"#00FF00\"))"),
        {"if (isBoxHover && true) {", "boxColor = nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f);", "pozhil_pointer_cursor();", "}"});
}

TEST(Box, ChangesColourGraduallyWithAnAnimation) {
    const std::string text = frameOf("பெட்டி(பெட்டி_பாணி(மேம்படுத்தப்பட்ட_நிறம்: \"#00FF00\"), "
                                     "அசைவூட்டம்(காலம்: 300, நிலைமை: \"hover\"))");
    expectInOrder(
        text,
        {"if (aCond == \"மவுஸ்_மேலே\" || aCond == \"hover\" || aCond == \"சுட்டி_மேல்\") animActive = isBoxHover;",
         "float progress = updateProgress(", "if (isBoxHover) pozhil_pointer_cursor();",
         "NVGcolor targetCol = nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f);", "boxColor = lerpColor(boxColor, targetCol, t);"});
    EXPECT_THAT(text, Not(HasSubstr("isBoxHover &&"))) << "the colour must not jump";
}

TEST(Box, FillsWithAPictureThatMayChange) {
    expectInOrder(frameOf("பெட்டி(பின்னணிபடம்: கோப்பு)"),
                  {"nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);",
                   "static std::map<std::string, int> bgImgCache;", "fn_any_to_string(global_vars[\"கோப்பு\"])",
                   "nvgCreateImage(vg, ", "if (bgImgHandle > 0) {",
                   "nvgImagePattern(vg, boxX, boxY, boxW, boxH, 0.0f, bgImgHandle, 1.0f)", "} else {",
                   "nvgFillColor(vg, boxColor);", "nvgFill(vg);"});
}

TEST(Box, CallsItsHandlerOnAPress) {
    expectInOrder(frameOf("பெட்டி(அழுத்தினால்: () => செல்க(\"ஆ\"))"),
                  {"if (isBoxHover) pozhil_pointer_cursor();", "nvgFill(vg);",
                   "bool isBoxClicked = g_mouseClicked && mx >= boxX && mx <= boxX + boxW && my >= boxY && "
                   "my <= boxY + boxH;",
                   "if (isBoxClicked) {", "std::any callback = ", "} catch (...) {", "nvgSave(vg);"});
}

TEST(BoxChildren, StandByTheirOwnAlignment) {
    expectInOrder(frameOf("பெட்டி(பொத்தான்(உரை: \"அ\", சீரமைப்பு: கீழ்_வலது), பெட்டி_பாணி(வளைவு: 1))"),
                  {"float childW = 80.0f; float childH = 40.0f;",
                   "float childX = boxX + (boxW - childW) * (1.0f + 1.0f) / 2.0f;",
                   "float childY = boxY + (boxH - childH) * (1.0f + 1.0f) / 2.0f;", "forcedW = -1.0f; forcedH = -1.0f;",
                   "float btnX = childX; float btnY = childY;", "forcedW = savedForcedW; forcedH = savedForcedH;"});
    EXPECT_THAT(frameOf("பெட்டி(பெட்டி_பாணி(வளைவு: 1))"), Not(HasSubstr("childX"))) << "a style is no child";
}

TEST(BoxChildren, WithAnAlignmentAsAPropertyStandAtTheBottomForTheRightCentre) {
    expectInOrder(frameOf("பெட்டி(பட்டியல்_உருப்படி(சீரமைப்பு: மைய_வலது))"),
                  {"(boxW - childW) * (1.0f + 1.0f) / 2.0f", "(boxH - childH) * (1.0f + 1.0f) / 2.0f"});
    expectInOrder(frameOf("பெட்டி(பட்டியல்_உருப்படி(சீரமைப்பு: \"மைய_இடது\"))"),
                  {"(boxW - childW) * (1.0f + -1.0f) / 2.0f", "(boxH - childH) * (1.0f + 0.0f) / 2.0f"});
    expectInOrder(frameOf("பெட்டி(படம்(சீரமைப்பு: மைய_வலது))"),
                  {"(boxW - childW) * (1.0f + 1.0f) / 2.0f", "(boxH - childH) * (1.0f + 0.0f) / 2.0f"});
}

TEST(BoxChildren, ThatAreTextsAreMeasuredAsTheyAreDrawn) {
    expectInOrder(frameOf("பெட்டி(உரை(\"அ\", உரைபாணி(அளவு: 20, தடிமன்: \"bold\"), சீரமைப்பு: மையம்))"),
                  {"float childW = 13.0f; float childH = 20.0f;", "if (std::string(u8\"உரை\") == \"உரை\") {",
                   "childW = pozhil_text_width(fn_any_to_string(std::string(u8\"அ\")).c_str(), 20.0f, \"700\");",
                   "float childX = boxX + (boxW - childW) * (1.0f + 0.0f) / 2.0f;", "childY += 2.0f;"});
}

TEST(Card, StacksItsChildrenBelowItsRaisedEdge) {
    expectInOrder(frameOf("அட்டை(படம்(அகலம்: 20, உயரம்: 30), வட்டபடம்())"),
                  {"float cardX = std::floor(0.0f); float cardY = std::floor(0.0f);",
                   "float cardW = 350.0f; float cardH = 200.0f;",
                   "if (forcedW > 0.0f) cardW = forcedW;",
                   "float radius = 12.0f;",
                   "float elevation = 4.0f;",
                   "if (elevation > 0.0f) {",
                   "float shadowBlur = elevation * 3.0f;",
                   "float shadowOffsetY = elevation * 1.5f;",
                   "nvgRGBA(0, 0, 0, 80)",
                   "nvgRect(vg, cardX - shadowBlur - 5, cardY - shadowBlur - 5, cardW + (shadowBlur * 2) + 10, "
                   "cardH + (shadowBlur * 2) + 10);",
                   "nvgPathWinding(vg, NVG_HOLE);",
                   "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));",
                   "nvgIntersectScissor(vg, cardX, cardY, cardW, cardH);",
                   "forcedW = cardW; forcedH = cardH;",
                   "float currentChildY = cardY + 15.0f;",
                   "float imgX = std::floor(cardX + 15.0f); float imgY = std::floor(currentChildY);",
                   "currentChildY += 30.0f + 10.0f;",
                   "float caX = std::floor(cardX + 15.0f);",
                   "currentChildY += 48.0f + 10.0f;",
                   "forcedW = savedForcedW; forcedH = savedForcedH;",
                   "nvgRestore(vg);"});
}

TEST(Card, TakesItsLookFromItsStyleFirst) {
    const std::string text = frameOf("அட்டை(அகலம்: 90, வளைவு: 3, பின்னணி: \"#FF0000\", "
                                     "அட்டை_பாணி(அகலம்: 80, வளைவு: 4, பின்னணி: \"#00FF0080\"))");
    expectInOrder(text, {"cardW = 80.0f;", "float radius = 4.0f;", "nvgRGBA(0, 255, 0, 255)"});
    EXPECT_THAT(frameOf("அட்டை(அட்டை_பாணி(நிறம்: \"#0000FF\"))"), HasSubstr("nvgRGBA(0, 0, 255, 255)"));
    EXPECT_THAT(frameOf("அட்டை(பின்னணி: \"#FF0000\", அட்டை_பாணி(நிறம்: \"#0000FF\"))"),
                HasSubstr("nvgRGBA(255, 0, 0, 255)"));
}

TEST(Card, InACardIsPlacedByTheOuterOne) {
    expectInOrder(frameOf("அட்டை(அட்டை())"), {"float outerX = cardX + 15.0f;", "float cardX = std::floor(outerX);"});
}

} // namespace

// Boxes and cards: the text that they become, from where they take their look, and where children stand.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
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

TEST(Box, KnowsFractions) {
    expectInOrder(frameOf("பெட்டி(வளைவு: 7.5, நிழல்: 0.5)"), {"float radius = 7.5f;", "float shadow = 0.5f;"});
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

TEST(Box, TakesTheColourUnderThePointerFromItselfFirst) {
    const auto hoverOf = [](std::initializer_list<std::string> ofStyle, std::initializer_list<std::string> own) {
        auto style = make<WidgetNode>("பெட்டி_பாணி", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
        for (const std::string& name : ofStyle) {
            style->properties[name] = text(name.rfind("style_", 0) == 0 ? "#00FF00" : "#0000FF");
        }
        auto box = make<ContainerNode>(listOf(std::move(style)), சீரமைப்பு_வகை::மேல்_இடது);
        for (const std::string& name : own) {
            box->properties[name] = text("#FF0000");
        }
        const std::string frame = frameOf(std::move(box));
        const std::string begin = "boxColor = ";
        const std::size_t start = frame.find(begin, frame.find("if (isBoxHover && true) {")) + begin.size();
        return frame.substr(start, frame.find(';', start) - start);
    };
    const std::string plain = "மேம்படுத்தப்பட்ட_நிறம்";
    const std::string marked = "style_மேம்படுத்தப்பட்ட_நிறம்";
    EXPECT_EQ(hoverOf({plain}, {}), "nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f)");
    EXPECT_EQ(hoverOf({plain, marked}, {}), "nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f)");
    EXPECT_EQ(hoverOf({plain, marked}, {marked}), "nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f)");
}

TEST(Box, ChangesColourGraduallyWithAnAnimation) {
    const std::string text = frameOf("பெட்டி(பெட்டி_பாணி(மேம்படுத்தப்பட்ட_நிறம்: \"#00FF00\"), "
                                     "அசைவூட்டம்(காலம்: 300, நிலைமை: \"hover\"))");
    expectInOrder(
        text, {"if (aCond == \"மவுஸ்_மேலே\" || aCond == \"hover\" || aCond == \"சுட்டி_மேல்\") animActive = isBoxHover;",
               "float progress = updateProgress(", "if (isBoxHover) pozhil_pointer_cursor();",
               "NVGcolor targetCol = nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f);",
               "boxColor = lerpColor(boxColor, targetCol, t);", "if (isBoxHover && false) {"});
    EXPECT_THAT(text, Not(HasSubstr("isBoxHover && true"))) << "the colour must not jump";
}

TEST(Box, FadesToTheColoursThatItsAnimationNames) {
    for (const std::string name : {"பின்னணி", "பெட்டிபின்னணி"}) {
        const std::string animation = "அசைவூட்டம்(காலம்: 300, நிலைமை: \"தானாக\", இலக்கு(" + name + ": \"#0000FF\"))";
        const std::string plain = frameOf("பெட்டி(" + animation + ")");
        expectInOrder(plain, {"NVGcolor targetCol = nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f);",
                              "boxColor = lerpColor(boxColor, targetCol, t);", "if (isBoxHover && false) {"});
        EXPECT_THAT(plain, Not(HasSubstr("if (isBoxHover) pozhil_pointer_cursor();"))) << "it doesn't wait for it";
        // The pointer then has a colour of its own to show.
        expectInOrder(frameOf("பெட்டி(பெட்டி_பாணி(மேம்படுத்தப்பட்ட_நிறம்: \"#00FF00\"), " + animation + ")"),
                      {"NVGcolor targetCol = nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f);", "if (isBoxHover && true) {",
                       "boxColor = nvgRGBAf(0.0f, 1.0f, 0.0f, 1.0f);"});
    }
}

TEST(Box, MovesAndGrowsBeforeItIsDrawn) {
    expectInOrder(frameOf("பெட்டி(அசைவூட்டம்(காலம்: 300, நிலைமை: \"hover\", "
                          "இலக்கு(அகலம்: 150, கி_நகர்வு: 7, வளைவு: 9, விரிவு: 1.5)))"),
                  {"NVGcolor boxColor = ", "boxW = lerp(boxW, 150.0f, t);", "boxX = lerp(boxX, boxX + 7.0f, t);",
                   "radius = lerp(radius, 9.0f, t);", "float scale = lerp(1.0f, 1.5f, t);",
                   "boxX -= (boxW * scale - boxW) / 2.0f;", "boxW *= scale;", "if (isBoxHover && false) {",
                   "if (shadow > 0) {", "nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);"});
}

TEST(Box, FillsWithAPictureThatMayChange) {
    expectInOrder(frameOf("பெட்டி(பின்னணிபடம்: கோப்பு)"),
                  {"nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);",
                   "static std::map<std::string, int> bgImgCache;", "fn_any_to_string(global_vars[\"கோப்பு\"])",
                   "nvgCreateImage(vg, ", "if (bgImgHandle > 0) {",
                   "nvgImagePattern(vg, boxX, boxY, boxW, boxH, 0.0f, bgImgHandle, 1.0f)", "} else {",
                   "nvgFillColor(vg, boxColor);", "nvgFill(vg);"});
}

TEST(Box, TakesItsPictureFromItselfFirst) {
    const std::string style = "பெட்டி_பாணி(பின்னணிபடம்: \"பாணி.png\")";
    EXPECT_THAT(frameOf("பெட்டி(" + style + ")"), HasSubstr("fn_any_to_string(std::string(u8\"பாணி.png\"))"));
    const std::string both = frameOf("பெட்டி(" + style + ", பின்னணிபடம்: \"தன்.png\")");
    EXPECT_THAT(both, HasSubstr("fn_any_to_string(std::string(u8\"தன்.png\"))"));
    EXPECT_THAT(both, Not(HasSubstr("பாணி.png")));
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

/// The two factors by which a child is placed in a box, 0 to 2 from left or top on.
std::string placeOf(const std::string& box) {
    const std::string frame = frameOf(box);
    const std::string begin = "(1.0f + ";
    const std::size_t x = frame.find(begin, frame.find("float childX = ")) + begin.size();
    const std::size_t y = frame.find(begin, frame.find("float childY = ")) + begin.size();
    return frame.substr(x, frame.find(')', x) - x) + " " + frame.substr(y, frame.find(')', y) - y);
}

TEST(BoxChildren, KnowNineWordsOfAlignment) {
    struct Row {
        const char* word;
        const char* asProperty;
        const char* asField;
    };
    constexpr Row ROWS[] = {
        {"மேல்_இடது", "-1.0f -1.0f", "-1.0f -1.0f"}, {"மேல்_மையம்", "0.0f -1.0f", "0.0f -1.0f"},
        {"மேல்_வலது", "1.0f -1.0f", "1.0f -1.0f"},   {"மைய_இடது", "-1.0f 0.0f", "-1.0f 0.0f"},
        {"மையம்", "0.0f 0.0f", "0.0f 0.0f"},         {"மைய_வலது", "1.0f 1.0f", "1.0f 0.0f"},
        {"கீழ்_இடது", "-1.0f 1.0f", "-1.0f 1.0f"},    {"கீழ்_மையம்", "0.0f 1.0f", "0.0f 1.0f"},
        {"கீழ்_வலது", "1.0f 1.0f", "1.0f 1.0f"},      {"எங்கோ", "-1.0f -1.0f", "-1.0f -1.0f"},
    };
    for (const auto& [word, asProperty, asField] : ROWS) {
        const std::string name = word;
        // A tile keeps the word as a property, a picture as a field.
        for (const std::string& value : {name, "\"" + name + "\"", "சீரமைப்பு_வகை." + name}) {
            EXPECT_EQ(placeOf("பெட்டி(பட்டியல்_உருப்படி(சீரமைப்பு: " + value + "))"), asProperty) << value;
        }
        EXPECT_EQ(placeOf("பெட்டி(படம்(சீரமைப்பு: " + name + "))"), asField) << word;
    }
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
                   "nvgRGBA(0,0,0,80), nvgRGBA(0,0,0,0)",
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

TEST(Card, IsRaisedByItsStyleFirst) {
    const auto card = [](std::initializer_list<std::pair<const char*, const char*>> properties) {
        auto node = make<WidgetNode>("அட்டை", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
        for (const auto& [name, value] : properties) {
            node->properties[name] = number(value);
        }
        return frameOf(std::move(node));
    };
    EXPECT_THAT(card({{"எலிவேஷன்", "0"}}), HasSubstr("float elevation = 0.0f;"));
    EXPECT_THAT(card({{"எலிவேஷன்", "2"}, {"style_எலிவேஷன்", "7"}}), HasSubstr("float elevation = 7.0f;"));
}

TEST(Card, InACardIsPlacedByTheOuterOne) {
    expectInOrder(frameOf("அட்டை(அட்டை())"), {"float outerX = cardX + 15.0f;", "float cardX = std::floor(outerX);"});
}

} // namespace

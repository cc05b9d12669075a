// Controls: the text that they become, their state, and what a press or a change does.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string HANDLER = "மாறியதால்: () => அ = 1";
const std::string HANDLER_CALL = "std::any_cast<std::function<std::any()>>(callback)();";

TEST(Checkbox, IsABoxWithATick) {
    const std::string text = frameOf("தேர்வுபெட்டி()");
    expectInOrder(text, {"float cb_w = 24.0f; float cb_h = 24.0f;",
                         "if (forcedW > 0.0f) cb_w = forcedW;",
                         "if (forcedH > 0.0f) cb_h = forcedH;",
                         "float _txtW = 0.0f;",
                         "float cbX = (0.0f); float cbY = (0.0f);",
                         "static bool checked_2 = false;",
                         "float hitW = cb_w + 15.0f + _txtW;",
                         "bool isHover = mx >= cbX && mx <= cbX + hitW && my >= cbY && my <= cbY + cb_h;",
                         "pozhil_pointer_cursor();",
                         "if (g_mouseClicked) {",
                         "checked_2 = !checked_2;",
                         "nvgRoundedRect(vg, cbX, cbY, cb_w, cb_h, 5);",
                         "if (checked_2) {",
                         "nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));",
                         "nvgMoveTo(vg, cbX + cb_w * 0.25f, cbY + cb_h * 0.5f);",
                         "nvgLineTo(vg, cbX + cb_w * 0.42f, cbY + cb_h * 0.68f);",
                         "nvgLineTo(vg, cbX + cb_w * 0.75f, cbY + cb_h * 0.33f);",
                         "nvgStrokeColor(vg, nvgRGBA(255, 255, 255, 255));",
                         "nvgStrokeWidth(vg, cb_w * 0.1f);",
                         "nvgLineCap(vg, NVG_ROUND);",
                         "} else {",
                         "nvgStrokeColor(vg, nvgRGBA(117, 117, 117, 255));",
                         "nvgStrokeWidth(vg, 2);"});
    EXPECT_THAT(text, Not(HasSubstr("g_inputErrors")));
    EXPECT_THAT(text, Not(HasSubstr("cbChildX")));
}

TEST(Checkbox, TakesStateSizeAndColours) {
    const std::string text = frameOf("தேர்வுபெட்டி(தேர்வுபெட்டிநிலை: மெய், அகலம்: 10%, உயரம்: 30, "
                                     "தேர்வு_நிறம்: \"#FF0000\", தேர்வற்ற_நிறம்: நிறம்.நீலம்)");
    expectInOrder(text, {"cb_w = ((forcedW > 0.0f ? forcedW : winWidth) * 0.100000f);", "cb_h = 30.0f;",
                         "static bool checked_2 = true;", "nvgFillColor(vg, nvgRGBA(255, 0, 0, 255));",
                         "nvgStrokeColor(vg, nvgRGBA(0, 0, 255, 255));"});
}

TEST(Checkbox, HasItsLabelToTheRight) {
    expectInOrder(frameOf("தேர்வுபெட்டி(உரை(\"சரி\", உரைபாணி(அளவு: 20)))"),
                  {"std::string _cbTxt = fn_any_to_string(std::string(u8\"சரி\"));",
                   "float _txtW = getTextWidth(_cbTxt.c_str(), 20.0f);", "float cbChildX = cbX + cb_w + 12.0f;",
                   "float cbTextY = cbY + (cb_h - 16.0f) / 2.0f + 2.5f;", "forcedW = -1.0f; forcedH = -1.0f;",
                   "float textX = cbChildX; float textY = cbTextY;",
                   "forcedW = savedForcedW; forcedH = savedForcedH;"});
    EXPECT_THAT(frameOf("தேர்வுபெட்டி(உரை(\"சரி\", உரைபாணி(அளவு: 0)))"),
                HasSubstr("getTextWidth(_cbTxt.c_str(), 15.0f)"));
    EXPECT_THAT(frameOf("தேர்வுபெட்டி(உரை(பெயர்))"),
                HasSubstr("std::string _cbTxt = fn_any_to_string(global_vars[\"பெயர்\"]);"));
}

TEST(Checkbox, SharesItsStateUnderItsId) {
    expectInOrder(
        frameOf("தேர்வுபெட்டி(அடையாளம்: \"ஏற்பு\")"),
        {"checked_2 = !checked_2;", "global_vars[\"ஏற்பு\"] = std::any(checked_2);", "g_inputErrors.erase(\"ஏற்பு\");",
         "if (global_vars.find(\"ஏற்பு\") == global_vars.end()) {", "global_vars[\"ஏற்பு\"] = std::any(checked_2);",
         "checked_2 = std::any_cast<bool>(global_vars[\"ஏற்பு\"]);", "if (checked_2) {",
         "if (g_inputErrors.count(\"ஏற்பு\") && !g_inputErrors[\"ஏற்பு\"].empty()) {",
         "nvgRoundedRect(vg, cbX - 2, cbY - 2, cb_w + 4, cb_h + 4, 5);",
         "nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));", "nvgStrokeWidth(vg, 2);",
         "drawFixedText(cbX, cbY + cb_h + 6, g_inputErrors[\"ஏற்பு\"].c_str(), \"#F44336\", 12.0f, \"left\");"});
}

TEST(Radio, KeepsAStateOfItsOwnWithoutAGroup) {
    const std::string text = frameOf("வட்டத்தேர்வு(உரை: \"ஒன்று\", " + HANDLER + ")");
    expectInOrder(text, {"float rbX = std::floor(0.0f); float rbY = std::floor(0.0f);", "float rbSize = 20.0f;",
                         "bool isSelected = false;", "static bool demoState_2 = false; isSelected = demoState_2;",
                         "float txtW = pozhil_plain_text_width(\"ஒன்று\");",
                         "mx >= rbX && mx <= rbX + rbSize + 15.0f + txtW && my >= rbY && my <= rbY + rbSize;",
                         "if (g_mouseClicked) {", "demoState_2 = !demoState_2;",
                         "nvgCircle(vg, rbX + rbSize / 2.0f, rbY + rbSize / 2.0f, 10);",
                         "nvgStrokeColor(vg, isSelected ? nvgRGBA(33, 150, 243, 255) : nvgRGBA(120, 120, 120, 255));",
                         "nvgStrokeWidth(vg, 2);", "if (isSelected) {",
                         "nvgCircle(vg, rbX + rbSize / 2.0f, rbY + rbSize / 2.0f, 5);",
                         "drawFixedText(std::floor(rbX + rbSize + 10), std::floor(rbY + (rbSize/2)), \"ஒன்று\", "
                         "\"#000000\", 18.0, \"left\");"});
    EXPECT_THAT(text, Not(HasSubstr("callback"))) << "only a group tells the program";
}

TEST(Radio, IsSelectedWhileTheGroupHasItsValue) {
    const std::string text = frameOf("வட்டத்தேர்வு(மதிப்பு: 2, குழு_மதிப்பு: குழு, " + HANDLER + ")");
    expectInOrder(text, {"if (fn_compare_any(2LL, global_vars[\"குழு\"], \"==\")) isSelected = true;",
                         "if (g_mouseClicked) {", "std::any callback = ", HANDLER_CALL, "nvgCircle("});
    EXPECT_THAT(text, Not(HasSubstr("demoState")));
}

TEST(Radio, KeepsAStateOfItsOwnWithOnlyOneOfBothValues) {
    const std::string ownValue = frameOf("வட்டத்தேர்வு(மதிப்பு: 2, " + HANDLER + ")");
    expectInOrder(ownValue, {"isSelected = demoState_2;", "demoState_2 = !demoState_2;"});
    EXPECT_THAT(ownValue, Not(HasSubstr("callback")));

    const std::string groupOnly = frameOf("வட்டத்தேர்வு(குழு_மதிப்பு: குழு, " + HANDLER + ")");
    expectInOrder(groupOnly, {"isSelected = demoState_2;", "if (g_mouseClicked) {", HANDLER_CALL});
    EXPECT_THAT(groupOnly, Not(HasSubstr("demoState_2 = !demoState_2;"))) << "a group's value is the program's";
}

TEST(Radio, TakesColoursAndALabelThatChanges) {
    const std::string text = frameOf("வட்டத்தேர்வு(உரை: பெயர், தேர்வு_நிறம்: \"#FF0000\", தேர்வற்ற_நிறம்: \"#00FF0080\")");
    EXPECT_THAT(text, HasSubstr("isSelected ? nvgRGBA(255, 0, 0, 255) : nvgRGBA(0, 255, 0, 128)"));
    EXPECT_THAT(text, HasSubstr("fn_any_to_string(global_vars[\"பெயர்\"]).c_str(), \"#000000\", 18.0, \"left\");"));
    EXPECT_THAT(frameOf("வட்டத்தேர்வு()"), HasSubstr("\"\", \"#000000\", 18.0, \"left\");"));
}

TEST(Switch, TurnsOverAtOnce) {
    expectInOrder(frameOf("மாற்றி(" + HANDLER + ")"),
                  {"float swX = std::floor(0.0f); float swY = std::floor(0.0f);",
                   "float swW = 48.0f; float swH = 28.0f;",
                   "float thumbSize = 24.0f; float padding = (swH - thumbSize) / 2.0f;", "static bool isOn_2 = false;",
                   "mx >= swX - 5 && mx <= swX + swW + 5 && my >= swY - 5 && my <= swY + swH + 5;", "isOn_2 = !isOn_2;",
                   HANDLER_CALL, "nvgRoundedRect(vg, swX, swY, swW, swH, swH / 2.0f);", "if (isOn_2) {",
                   "nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));", "} else {",
                   "nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));", "nvgStrokeColor(vg, nvgRGBA(180, 180, 180, 255));",
                   "nvgStrokeWidth(vg, 1);", "float thumbX = isOn_2 ? swX + swW - thumbSize - padding : swX + padding;",
                   "nvgRect(vg, thumbX - 5, thumbY - 5, thumbSize + 10, thumbSize + 10);",
                   "nvgBoxGradient(vg, thumbX, thumbY + 2, thumbSize, thumbSize, thumbSize/2, 4, nvgRGBA(0,0,0,60), "
                   "nvgRGBA(0,0,0,0))",
                   "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));"});
}

TEST(Switch, TakesStateAndColours) {
    expectInOrder(frameOf("மாற்றி(ஆரம்ப_நிலை: மெய், இயங்கும்_நிறம்: \"#00FF00\", முடங்கிய_நிறம்: \"சிவப்பு\")"),
                  {"static bool isOn_2 = true;", "nvgRGBA(0, 255, 0, 255)", "nvgRGBA(255, 0, 0, 255)"});
    EXPECT_THAT(frameOf("மாற்றி(ஆரம்ப_நிலை: இருள்)"),
                HasSubstr("static bool isOn_2 = fn_compare_any(global_vars[\"இருள்\"], true, \"==\");"));
}

TEST(Slider, FollowsThePointerWhileTheButtonIsDown) {
    expectInOrder(frameOf("அளவி(" + HANDLER + ")"),
                  {"float minVal = 0.0f; float maxVal = 100.0f;",
                   "float slX = std::floor(0.0f); float slY = std::floor(0.0f);",
                   "float slW = 200.0f;",
                   "if (forcedW > 0.0f) slW = forcedW;",
                   "slW = responsiveW(slW, winWidth, 0.0f);",
                   "float slH = 20.0f;",
                   "bool isMouseDown = glfwGetMouseButton(window, GLFW_MOUSE_BUTTON_LEFT) == GLFW_PRESS;",
                   "static float currentVal_2 = -99999.0f;",
                   "if (currentVal_2 == -99999.0f) currentVal_2 = minVal;",
                   "mx >= slX - 10 && mx <= slX + slW + 10 && my >= slY - 10 && my <= slY + slH + 10;",
                   "if (isMouseDown) {",
                   "float normalized = (mx - slX) / slW;",
                   "currentVal_2 = minVal + normalized * (maxVal - minVal);",
                   HANDLER_CALL,
                   "float val = currentVal_2;",
                   "float ratio = (val - minVal) / (maxVal - minVal);",
                   "float thumbX = slX + ratio * slW;",
                   "float trackY = slY + slH / 2;",
                   "nvgRoundedRect(vg, slX, trackY - 2, slW, 4, 2);",
                   "nvgRGBA(224, 224, 224, 255)",
                   "nvgRoundedRect(vg, slX, trackY - 2, thumbX - slX, 4, 2);",
                   "nvgRGBA(33, 150, 243, 255)",
                   "if (isDragging) {",
                   "nvgCircle(vg, thumbX, trackY, 15);",
                   "nvgRGBA(33, 150, 243, 50)",
                   "nvgCircle(vg, thumbX, trackY + 1, 10);",
                   "nvgBoxGradient(vg, thumbX - 10, trackY - 10, 20, 20, 10, 4, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0))",
                   "nvgCircle(vg, thumbX, trackY, 10);",
                   "if (isDragging) {",
                   "std::string valStr = std::to_string((int)val);",
                   "drawFixedText(thumbX, trackY - 25, valStr.c_str(), \"#000000\", 12.0, \"center\");"});
}

TEST(Slider, TakesItsRangeFromConstantsAndFromTheProgram) {
    expectInOrder(frameOf("அளவி(குறைந்தபட்சம்: கழி 5, அதிகபட்சம்: 2.5, மதிப்பு: அளவு_மாறி, அகலம்: 50%)"),
                  {"float minVal = -5.0f; float maxVal = 2.5f;",
                   "slW = ((forcedW > 0.0f ? forcedW : winWidth) * 0.500000f);",
                   "if (currentVal_2 == -99999.0f) currentVal_2 = (float)fn_get_double(global_vars[\"அளவு_மாறி\"]);"});
}

TEST(Slider, HasOneHeight) {
    const std::string text = frameOf("அளவி(உயரம்: 50, style_உயரம்: 60)");
    EXPECT_THAT(text, HasSubstr("float slH = 20.0f;"));
    EXPECT_THAT(text, Not(HasSubstr("slH = 50.0f;")));
    EXPECT_THAT(text, Not(HasSubstr("slH = 60.0f;")));
}

TEST(Dropdown, OpensItsMenuAboveThePage) {
    expectInOrder(frameOf("கீழ்வரி(பட்டியல்: [\"மதுரை\", \"கோவை\"], " + HANDLER + ")"),
                  {"float ddX = std::floor(0.0f); float ddY = std::floor(0.0f);",
                   "float ddW = 200.0f; float ddH = 40.0f;",
                   "if (forcedW > 0.0f) ddW = forcedW;",
                   "if (forcedH > 0.0f) ddH = forcedH;",
                   "ddW = responsiveW(ddW, winWidth, 0.0f);",
                   "static bool isOpen_2 = false; static int selectedIndex_2 = -1;",
                   "items.push_back(\"மதுரை\");",
                   "items.push_back(\"கோவை\");",
                   "std::string displayFilter = \"தேர்ந்தெடு...\";",
                   "mx >= ddX && mx <= ddX + ddW && my >= ddY && my <= ddY + ddH;",
                   "isClicked = true;",
                   "isOpen_2 = !isOpen_2;",
                   "nvgRoundedRect(vg, ddX, ddY, ddW, ddH, 6);",
                   "nvgRGBA(255, 255, 255, 255)",
                   "isOpen_2 ? nvgRGBA(33, 150, 243, 255) : nvgRGBA(200, 200, 200, 255)",
                   "isOpen_2 ? 2.0f : 1.5f",
                   "drawFixedText(ddX + 15, ddY + (ddH/2) - 8, displayFilter.c_str(), \"#333333\", 16.0, \"left\");",
                   "nvgMoveTo(vg, arrowX - 5, arrowY - 3);",
                   "nvgLineTo(vg, arrowX, arrowY + 3);",
                   "nvgLineTo(vg, arrowX + 5, arrowY - 3);",
                   "nvgRGBA(150, 150, 150, 255)",
                   "if (isOpen_2) {",
                   "g_overlays.push_back([=]() mutable {",
                   "float itemH = 40.0f;",
                   "float menuY = ddY + ddH + 4;",
                   "nvgRoundedRect(vg, ddX, menuY, ddW, menuH, 6);",
                   "nvgRGBA(220, 220, 220, 255)",
                   "nvgStrokeWidth(vg, 1);",
                   "nvgRGBA(240, 240, 240, 255)",
                   "if (g_mouseClicked) {",
                   "selectedIndex_2 = i;",
                   "isOpen_2 = false;",
                   HANDLER_CALL,
                   "drawFixedText(ddX + 15, curY + itemH/2 - 8, items[i].c_str(), i == selectedIndex_2 ? \"#2196F3\" : "
                   "\"#333333\", 16.0, \"left\");",
                   "if (g_mouseClicked && !isClicked && !isMenuHover) isOpen_2 = false;",
                   "});"});
}

TEST(Dropdown, TakesTextsOnly) {
    const std::string text = frameOf("கீழ்வரி(பட்டியல்: [\"அ\", 5, மாறி])");
    EXPECT_THAT(text, HasSubstr("items.push_back(\"அ\");"));
    EXPECT_EQ(text.find("items.push_back"), text.rfind("items.push_back"));
    EXPECT_THAT(frameOf("கீழ்வரி(பட்டியல்: மாறி)"), Not(HasSubstr("items.push_back")));
}

TEST(ControlSizes, ComeFromTheStyleBlockFirst) {
    for (const auto& [kind, width, height] :
         {std::tuple{"தேர்வுபெட்டி", "cb_w", "cb_h"}, std::tuple{"அளவி", "slW", ""}, std::tuple{"கீழ்வரி", "ddW", "ddH"}}) {
        const std::string text = frameOf(std::string(kind) + "(அகலம்: 10, style_அகலம்: 77, உயரம்: 11, style_உயரம்: 33)");
        const std::string name = width;
        expectInOrder(text, {"    " + name + " = 77.0f;", "if (forcedW > 0.0f) " + name + " = forcedW;"});
        EXPECT_THAT(text, Not(HasSubstr(name + " = 10.0f;"))) << kind;
        if (const std::string tall = height; !tall.empty()) {
            expectInOrder(text, {"    " + tall + " = 33.0f;", "if (forcedH > 0.0f) " + tall + " = forcedH;"});
            EXPECT_THAT(text, Not(HasSubstr(tall + " = 11.0f;"))) << kind;
        }
    }
}

TEST(ControlHandlers, MayFailOrBeAWidget) {
    for (const std::string kind : {"வட்டத்தேர்வு(குழு_மதிப்பு: குழு, ", "மாற்றி(", "அளவி(", "கீழ்வரி("}) {
        expectInOrder(frameOf(kind + HANDLER + ")"),
                      {"std::any callback = ", "try {", "if (callback.type() == typeid(std::function<std::any()>)) {",
                       HANDLER_CALL, "} catch (...) {"});
        const std::string drawing = frameOf(kind + "மாறியதால்: உரை(\"மாற்றம்\"))");
        EXPECT_THAT(drawing, HasSubstr("std::string(u8\"மாற்றம்\")")) << kind;
        EXPECT_THAT(drawing, Not(HasSubstr("std::any callback"))) << kind;
        EXPECT_THAT(frameOf(kind + "மாறியதால்: அறிவிப்பு_பட்டை(செய்தி: \"மாற்றம்\"))"), HasSubstr(HANDLER_CALL)) << kind;
    }
}

TEST(DisabledControls, AreDrawnAndAnswerNothing) {
    for (const auto& [kind, drawing] : {std::pair{"வட்டத்தேர்வு", "nvgCircle("}, std::pair{"மாற்றி", "swH / 2.0f);"},
                                        std::pair{"அளவி", "nvgCircle("}, std::pair{"கீழ்வரி", "displayFilter.c_str()"}}) {
        const std::string text = frameOf(std::string(kind) + "(செயலிழப்பு: மெய், " + HANDLER + ")");
        EXPECT_THAT(text, HasSubstr(drawing)) << kind;
        for (const char* answer : {"pozhil_pointer_cursor", "g_mouseClicked", "isMouseDown", "callback"}) {
            EXPECT_THAT(text, Not(HasSubstr(answer))) << kind;
        }
    }
}

} // namespace

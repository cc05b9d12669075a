// Dialogs and snack bars: the text that they become, as widgets and as values.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string logicOf(const std::string& logic) {
    const std::string text = webText(app("", "", logic));
    return text.substr(0, text.find("void render_frame"));
}

TEST(Dialog, IsDrawnOverThePageWhileItsVariableIsTrue) {
    expectInOrder(frameOf("எச்சரிக்கை(காட்சி_பெயர்: \"உறுதி\")(நெடுவரிசை(உரை(\"ஆமா\")))"),
                  {"g_alert_names.insert(\"உறுதி\");",
                   "if (global_vars.count(\"உறுதி\") && ",
                   "== true) {",
                   "g_overlays.push_back([=]() mutable {",
                   "nvgResetScissor(vg);",
                   "float alertW = 400.0f; float alertH = 280.0f;",
                   "alertW = responsiveW(alertW, winWidth, 40.0f);",
                   "float alertX = (winWidth - alertW) / 2.0f;",
                   "float alertY = (winHeight - alertH) / 2.0f;",
                   "float radius = 16.0f;",
                   "float shadow = 8.0f;",
                   "pozhil_dim_page(alertX, alertY, alertW, alertH, radius);",
                   "if (shadow > 0.0f) {",
                   "nvgBoxGradient(vg, alertX, alertY + (shadow * 1.5f), alertW, alertH, radius, shadow * 4.0f, "
                   "nvgRGBA(0,0,0,80), nvgRGBA(0,0,0,0))",
                   "nvgRect(vg, alertX - shadow*5 - 10, alertY - shadow*5 - 10, alertW + shadow*10 + 20, "
                   "alertH + shadow*12 + 20);",
                   "nvgPathWinding(vg, NVG_HOLE);",
                   "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));",
                   "nvgSave(vg);",
                   "nvgScissor(vg, alertX, alertY, alertW, alertH);",
                   "forcedW = alertW; forcedH = alertH;",
                   "float colX = alertX; float colY = alertY;",
                   "nvgRestore(vg);",
                   "});",
                   "} // End Visibility Check for உறுதி"});
}

TEST(Dialog, TakesItsLookFromItsStyle) {
    expectInOrder(
        frameOf("எச்சரிக்கை(எச்சரிக்கை_பாணி(அகலம்: 50%, உயரம்: 90, வளைவு: 3, பின்னணி: \"#FF000080\"))"),
        {"alertW = (winWidth * 0.500000f);", "alertH = 90.0f;", "float radius = 3.0f;", "nvgRGBA(255, 0, 0, 255)"});
}

TEST(Dialog, DimsThePageAndCutsOutItsOwnPlace) {
    expectInOrder(generatedText(app("")),
                  {"void pozhil_dim_page(", "ctx.save();", "'rgba(0,0,0,0.63)'",
                   "ctx.fillRect(-100, -100, window.innerWidth + 200, window.innerHeight + 200);",
                   "ctx.globalCompositeOperation = 'destination-out';", "'rgba(0,0,0,1)'", "quadraticCurveTo",
                   "quadraticCurveTo", "quadraticCurveTo", "quadraticCurveTo", "ctx.fill();", "ctx.restore();"});
}

TEST(Dialog, TakesItsColourFromItsStyleFirst) {
    EXPECT_THAT(frameOf("எச்சரிக்கை(பின்னணி: \"#00FF00\")"), HasSubstr("nvgRGBA(0, 255, 0, 255)"));
    EXPECT_THAT(frameOf("எச்சரிக்கை(பின்னணி: \"#00FF00\", எச்சரிக்கை_பாணி(பின்னணி: நிறம்.நீலம்))"),
                HasSubstr("nvgRGBA(0, 0, 255, 255)"));
    EXPECT_THAT(frameOf("எச்சரிக்கை(அகலம்: 90, எச்சரிக்கை_பாணி(அகலம்: 80))"), HasSubstr("alertW = 80.0f;"));
    EXPECT_THAT(frameOf("எச்சரிக்கை(எச்சரிக்கை_பாணி(நிழல்: 0))"), HasSubstr("float shadow = 0.0f;"));
}

TEST(Dialog, PutsAllItsChildrenIntoItsCorner) {
    const std::string child = "forcedW = alertW; forcedH = alertH;";
    expectInOrder(frameOf("எச்சரிக்கை(படம்(), வட்டபடம்())"),
                  {child, "float imgX = std::floor(alertX); float imgY = std::floor(alertY);",
                   "forcedW = savedForcedW; forcedH = savedForcedH;", child,
                   "float caX = std::floor(alertX); float caY = std::floor(alertY);", "});"});
}

TEST(SnackBar, DrawsNothingWhereItStands) {
    EXPECT_THAT(frameOf("நெடுவரிசை(அறிவிப்பு_பட்டை(செய்தி: \"அ\"))"), Not(HasSubstr("active_sb\"] = std::any(true)")));
}

TEST(SnackBar, IsAFunctionWhereAValueStands) {
    const std::vector<std::string> function = {"std::function<std::any()>([=]() mutable -> std::any {",
                                               "global_vars[\"active_sb\"] = std::any(true);",
                                               "global_vars[\"sb_start_time\"] = ",
                                               "emscripten_get_now()",
                                               "global_vars[\"sb_y_pos\"] = std::any(-100.0f);",
                                               "global_vars[\"sb_msg\"] = "
                                               "std::any(fn_any_to_string(std::string(u8\"வணக்கம்\")));",
                                               "global_vars[\"sb_bg_r\"] = std::any((int)0);",
                                               "global_vars[\"sb_bg_g\"] = std::any((int)128);",
                                               "global_vars[\"sb_bg_b\"] = std::any((int)255);",
                                               "return std::any();",
                                               "})"};
    const std::string bar = "அறிவிப்பு_பட்டை(செய்தி: \"வணக்கம்\", பின்னணி: \"#0080FF\")";
    for (const std::string widget : {"பொத்தான்(உரை: \"அ\", ", "பெட்டி(", "பட்டியல்_உருப்படி("}) {
        std::vector<std::string> pieces = {"std::any callback = "};
        pieces.insert(pieces.end(), function.begin(), function.end());
        pieces.insert(pieces.end(), {"if (callback.type() == typeid(std::function<std::any()>)) {"});
        expectInOrder(frameOf(widget + "அழுத்தினால்: " + bar + ")"), pieces);
    }
    expectInOrder(logicOf("        பட்டை = " + bar + "\n"), function);
}

TEST(SnackBar, AsAValueHasNeitherPositionNorVisibility) {
    const std::string text = logicOf("        பட்டை = அறிவிப்பு_பட்டை(செய்தி: \"அ\", அடையாளம்: \"ஆ\", காட்சி_பெயர்: \"இ\")\n");
    EXPECT_THAT(text, HasSubstr("std::any(true)"));
    EXPECT_THAT(text, Not(HasSubstr("g_alert_names.insert")));
    EXPECT_THAT(text, Not(HasSubstr("_wid")));
}

TEST(SnackBar, FindsItsMessage) {
    const auto message = [](const std::string& properties) {
        const std::string text = logicOf("        பட்டை = அறிவிப்பு_பட்டை(" + properties + ")\n");
        const std::string begin = "fn_any_to_string(std::string(u8\"";
        const std::size_t start = text.rfind(begin) + begin.size();
        return text.substr(start, text.find('"', start) - start);
    };
    EXPECT_EQ(message("செய்தி: \"அ\""), "அ");
    EXPECT_EQ(message("செய்தி: உரை(\"ஆ\")"), "ஆ");
    EXPECT_EQ(message("செய்தி: படம்()"), "தகவல்");
    EXPECT_EQ(message(""), "இப்போது இல்லை நீ பிறகு சேர்த்துக்கலாம் ");
}

TEST(SnackBar, TakesItsMessageFromAWidgetFirst) {
    const auto widget = [](const char* kind, PropertyMap properties = {}) {
        return make<WidgetNode>(kind, std::move(properties), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    };
    const auto frameWith = [&widget](ExpressionPtr message) {
        auto bar = make<SnackBarNode>(listOf(widget("படம்")));
        bar->properties["செய்தி"] = std::move(message);
        auto button = widget("பொத்தான்");
        button->properties["அழுத்தினால்"] = make<WidgetExpression>(std::move(bar));
        return frameOf(std::move(button));
    };
    PropertyMap content;
    content["உரை"] = text("அ");
    EXPECT_THAT(frameWith(make<WidgetExpression>(widget("உரை", std::move(content)))),
                HasSubstr("fn_any_to_string(std::string(u8\"அ\"))"));
    EXPECT_THAT(frameWith(make<WidgetExpression>(widget("உரை"))),
                HasSubstr("fn_any_to_string(std::string(u8\"[விட்ஜெட்]\"))"));
    EXPECT_THAT(frameWith(variable("சொல்")), HasSubstr("std::any(fn_any_to_string(global_vars[\"சொல்\"]))"));
}

TEST(SnackBar, HasTheColourOfAWord) {
    expectInOrder(logicOf("        பட்டை = அறிவிப்பு_பட்டை(செய்தி: \"அ\", பின்னணி: நிறம்.வெள்ளி)\n"),
                  {"std::any((int)191)", "std::any((int)191)", "std::any((int)191)"});
}

TEST(SnackBar, IsDarkWithoutAColour) {
    expectInOrder(logicOf("        பட்டை = அறிவிப்பு_பட்டை(செய்தி: \"அ\")\n"),
                  {"std::any((int)50)", "std::any((int)50)", "std::any((int)50)"});
}

TEST(SnackBar, SlidesInAndOutAboveEverything) {
    expectInOrder(
        webText(app("")),
        {"g_overlays.clear();",
         "g_inside_overlay = false;",
         "double elapsed = emscripten_get_now() - ",
         "nvgSave(vg);",
         "nvgResetScissor(vg);",
         ": -100.0f;",
         "float targetY = 40.0f;",
         "if (elapsed > 2500.0) targetY = -100.0f;",
         "currentY += (targetY - currentY) * 0.25f;",
         "global_vars[\"sb_y_pos\"] = std::any(currentY);",
         "if (elapsed > 2500.0 && currentY < -90.0f) {",
         "global_vars[\"active_sb\"] = std::any(false);",
         "} else {",
         "\"தகவல்\"",
         ": 400;",
         "float barW = txtW + 80.0f;",
         "if (barW < 300.0f) barW = 300.0f;",
         "if (barW > winWidth - 40.0f) barW = winWidth - 40.0f;",
         "float barH = 55.0f;",
         "float barX = (winWidth - barW) / 2.0f;",
         ": 50;",
         ": 50;",
         ": 50;",
         "nvgRect(vg, barX - 20, currentY - 20, barW + 40, barH + 40);",
         "nvgBoxGradient(vg, barX, currentY + 5, barW, barH, 12, 15, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0))",
         "nvgRoundedRect(vg, barX, currentY, barW, barH, 12);",
         "nvgRGBA(sb_r, sb_g, sb_b, 255)",
         "clearRect($0 - 10, $1 - 10, $2 + 20, $3 + 20)",
         "drawFixedText(barX + (barW / 2.0f), currentY + 18.0f, msgTxt.c_str(), \"#FFFFFF\", 16.0f, \"center\");",
         "nvgRestore(vg);"});
}

} // namespace

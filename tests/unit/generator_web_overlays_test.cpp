// Dialogs and snack bars: the text that they become, as widgets and as values.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
                   "nvgRGBA(0, 0, 0, 80), nvgRGBA(0, 0, 0, 0))",
                   "nvgRect(vg, alertX - shadow * 5 - 10, alertY - shadow * 5 - 10, alertW + shadow * 10 + 20, "
                   "alertH + shadow * 12 + 20);",
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

TEST(SnackBar, IsDarkWithoutAColour) {
    expectInOrder(logicOf("        பட்டை = அறிவிப்பு_பட்டை(செய்தி: \"அ\")\n"),
                  {"std::any((int)50)", "std::any((int)50)", "std::any((int)50)"});
}

} // namespace

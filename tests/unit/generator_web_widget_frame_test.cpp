// What every widget gets around its own block: its position, its visibility, its place in the table of kinds, and how a
// click reaches its handler.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string initGlobals(const std::string& logic) {
    const std::string text = webText(app("", "", logic));
    const std::string begin = "void init_globals() {\n";
    const std::size_t start = text.find(begin) + begin.size();
    return text.substr(start, text.find("\n}\n", start) - start);
}

/// What a page draws whose root is \p widget.
std::string drawingOf(std::unique_ptr<WidgetNode> widget) {
    const std::string text =
        ownPart(generatedText("", listOf(make<WebAppNode>("கடை", nullptr, nullptr, std::move(widget), nullptr))));
    const std::size_t begin = text.find("bool bgSet = false;");
    return text.substr(begin, text.find("window.savedMouseX", begin) - begin);
}

std::unique_ptr<WidgetNode> plainWidget(const std::string& kind) {
    return make<WidgetNode>(kind, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
}

TEST(WidgetKinds, AreDrawnEachByItsOwnBlock) {
    for (const char* kind :
         {"உரை",        "விரிவாக்கம்",    "நெகிழ்வு",    "வெற்றிடம்",   "பொத்தான்",    "தேர்வுபெட்டி", "வட்டத்தேர்வு",
          "மாற்றி",      "அளவி",         "கீழ்வரி",      "படம்",       "வட்டபடம்",    "பிரிப்பான்",   "அட்டை",
          "சுழல்_காட்டி", "முன்னேற்றவரி",   "தகவல்பட்டை",   "எச்சரிக்கை",  "அடிப்பகுதி", "தத்தல்",       "பக்கம்",
          "இவெ",        "அடுக்கி",       "நெடுவரிசை",  "கிடைவரிசை", "தேடல்_பட்டை", "தேடுபொறி",   "மடிப்பு",
          "பெட்டி",      "பட்டியல்_காட்சி", "கட்டம்_காட்சி", "உள்_இவெ",    "உரைபொத்தான்", "உரைபெட்டி",   "பட்டியல்_உருப்படி",
          "கடவுமறை",    "அறிவிப்பு_பட்டை"}) {
        EXPECT_THAT(drawingOf(plainWidget(kind)), HasSubstr("pozhil_draw([&] { // " + std::string(kind) + "\n"))
            << kind;
    }
}

TEST(WidgetKinds, ThatNobodyKnowsGetOnlyWhatEveryWidgetGets) {
    for (const char* kind : {"உள்_இவே", "விளக்கு", ""}) {
        auto widget = plainWidget(kind);
        widget->properties["id"] = text("இடம்");
        widget->properties["காட்சி_பெயர்"] = text("படி");
        const std::string drawing = drawingOf(std::move(widget));
        expectInOrder(drawing, {"_wid", "// --- Visibility Check for: படி ---\n", "g_alert_names.insert(\"படி\");\n",
                                "== true)) {\n", "} // End Visibility Check for படி\n"});
        EXPECT_THAT(drawing, Not(HasSubstr("[&]"))) << kind;
    }
}

TEST(WidgetPosition, IsKeptUnderTheId) {
    for (const std::string name : {"அடையாளம்", "ID", "id"}) {
        expectInOrder(webText(app("", "உரை(\"அ\", " + name + ": \"மேல்\")")),
                      {"std::string _wid = fn_any_to_string(std::string(u8\"மேல்\"));",
                       "if (!_wid.empty()) { g_widgetPositions[_wid] = {(float)(0.0f), (float)(0.0f)}; }",
                       "textContent"});
    }
    EXPECT_THAT(frameOf("நெடுவரிசை(உரை(\"அ\", id: மாறி))"),
                HasSubstr("{ g_widgetPositions[_wid] = {(float)(childX), (float)(currentY)}; }"));
    EXPECT_THAT(frameOf("உரை(\"அ\")"), Not(HasSubstr("_wid")));
}

TEST(WidgetPosition, GoesByTheFirstIdInTheOrderOfTheKeys) {
    const auto idOf = [](std::initializer_list<const char*> names) {
        auto widget = plainWidget("உரை");
        for (const char* name : names) {
            widget->properties[name] = text(name);
        }
        const std::string drawing = drawingOf(std::move(widget));
        const std::string begin = "_wid = fn_any_to_string(std::string(u8\"";
        const std::size_t start = drawing.find(begin) + begin.size();
        EXPECT_EQ(drawing.find(begin, start), std::string::npos) << "told once";
        return drawing.substr(start, drawing.find('"', start) - start);
    };
    EXPECT_EQ(idOf({"அடையாளம்", "ID", "id"}), "ID");
    EXPECT_EQ(idOf({"அடையாளம்", "id"}), "id");
}

TEST(Visibility, LeavesAWidgetThereUntilItsVariableSaysNo) {
    expectInOrder(
        frameOf("உரை(\"அ\", அடையாளம்: \"இ\", காட்சி_பெயர்: \"படி\")"),
        {"_wid", "    // --- Visibility Check for: படி ---\n", "g_alert_names.insert(\"படி\");\n",
         "if (global_vars.find(\"படி\") == global_vars.end() || (global_vars[\"படி\"].type() == typeid(bool) && "
         "std::any_cast<bool>(global_vars[\"படி\"]) == true)) {\n",
         "drawFixedText(", "    } // End Visibility Check for படி\n"});
}

TEST(Visibility, LetsADialogWaitForItsVariable) {
    expectInOrder(frameOf("எச்சரிக்கை(காட்சி_பெயர்: \"உறுதி\")(உரை(\"அ\"))"),
                  {"    // --- Visibility Check for: உறுதி ---\n", "g_alert_names.insert(\"உறுதி\");\n",
                   "if (global_vars.count(\"உறுதி\") && global_vars[\"உறுதி\"].type() == typeid(bool) && "
                   "std::any_cast<bool>(global_vars[\"உறுதி\"]) == true) {\n",
                   "g_overlays.push_back(", "    } // End Visibility Check for உறுதி\n"});
}

TEST(Visibility, IsOnlyCheckedUnderANameThatIsAText) {
    for (const std::string value : {"\"\"", "மாறி", "5"}) {
        const std::string drawing = frameOf("உரை(\"அ\", காட்சி_பெயர்: " + value + ")");
        EXPECT_THAT(drawing, Not(HasSubstr("Visibility Check"))) << value;
        EXPECT_THAT(drawing, Not(HasSubstr("g_alert_names"))) << value;
        EXPECT_THAT(drawing, HasSubstr("drawFixedText(")) << value;
    }
}

TEST(PressHandler, IsCalledIfItIsAFunctionAndMayFail) {
    const std::vector<std::string> call = {"if (isHover) {",
                                           "if (g_mouseClicked) {",
                                           "try {\n",
                                           "std::any callback = ",
                                           "try {\n",
                                           "if (callback.type() == typeid(std::function<std::any()>)) {\n",
                                           "std::any_cast<std::function<std::any()>>(callback)();\n",
                                           "} catch (...) {\n",
                                           "} catch (...) {\n"};
    expectInOrder(frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => செல்க(\"ஆ\"))"), call);
    expectInOrder(frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்: செல்க(\"ஆ\"))"), call);
}

TEST(PressHandler, MayBeStatementsWhichMayFail) {
    const std::string drawing = frameOf("பட்டியல்_உருப்படி(தலைப்பு: உரை(\"அ\"), அழுத்தினால்(அச்சிடு(1)\n    அச்சிடு(2)))");
    expectInOrder(drawing, {"if (g_mouseClicked) {", "try {\n", "std::cout << fn_any_to_string(1LL) << std::endl;\n",
                            "std::cout << fn_any_to_string(2LL) << std::endl;\n", "} catch (...) {\n"});
    EXPECT_THAT(drawing, Not(HasSubstr("std::any callback")));
}

TEST(PressHandler, MayBeAWidgetThatIsDrawnForThatFrame) {
    const std::string drawing = frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்: படம்(பாதை: \"அ.png\"))");
    expectInOrder(drawing, {"if (g_mouseClicked) {", "pozhil_draw([&] { // படம்\n"});
    EXPECT_THAT(drawing, Not(HasSubstr("std::any callback")));
}

TEST(PressHandler, MayBeASnackBarWhichIsAFunction) {
    expectInOrder(frameOf("பொத்தான்(உரை: \"அ\", அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: \"ஆ\"))"),
                  {"if (g_mouseClicked) {", "std::any callback = ", "std::function<std::any()>(",
                   "std::any_cast<std::function<std::any()>>(callback)();"});
}

TEST(PressHandler, IsAskedOnlyOutsideAModalDialog) {
    const std::string clause = "&& (!g_block_background_clicks || g_inside_overlay)";
    for (const std::string widget : {"பொத்தான்(உரை: \"அ\")", "பெட்டி(அகலம்: 50, அழுத்தினால்: () => செல்க(\"ஆ\"))",
                                     "பட்டியல்_உருப்படி(தலைப்பு: உரை(\"அ\"))"}) {
        EXPECT_THAT(frameOf(widget), HasSubstr(clause)) << widget;
    }
    for (const std::string widget : {"உரைபொத்தான்(உரை: \"அ\")", "தேர்வுபெட்டி()", "மாற்றி()"}) {
        EXPECT_THAT(frameOf(widget), Not(HasSubstr(clause))) << widget;
    }
}

TEST(WidgetStatements, DrawOnlyTexts) {
    const std::string drawn =
        initGlobals("        நெடுவரிசை(உரை(\"அ\"), உரை(), பொத்தான்(உரை(\"ஆ\")), படம்(உரை(\"இ\")))\n");
    expectInOrder(drawn, {"#ifdef __EMSCRIPTEN__\n",
                          "drawFixedText(50, 50, fn_any_to_string(std::string(u8\"அ\")), \"black\", 20.0, \"left\");\n",
                          "#endif\n", "#ifdef __EMSCRIPTEN__\n", "drawFixedText(50, 50, fn_any_to_string(std::string(",
                          "), \"black\", 20.0, \"left\");\n", "#endif"});
    EXPECT_THAT(drawn, Not(HasSubstr("ஆ")));
    EXPECT_THAT(drawn, Not(HasSubstr("இ")));
}

TEST(WidgetExpressions, AreDrawnAtTheCornerOfThePage) {
    const std::string logic = initGlobals("        அ = அறிவிப்பு_பட்டை(செய்தி: \"ஆ\")\n");
    EXPECT_THAT(logic, HasSubstr("std::function<std::any()>("));
}

TEST(DeepPages, GrowNoFasterThanTheirWidgets) {
    const auto sizeOf = [](int depth) {
        std::string page = "உரை(\"அ\")";
        for (int level = 0; level < depth; ++level) {
            page = "நெடுவரிசை(உரை(\"ஆ\"), " + page + ")";
        }
        return frameOf(page).size();
    };
    const std::size_t perLevel = (sizeOf(60) - sizeOf(30)) / 30;
    EXPECT_NEAR(static_cast<double>(sizeOf(300) - sizeOf(60)) / 240.0, static_cast<double>(perLevel),
                0.02 * static_cast<double>(perLevel));
}

} // namespace

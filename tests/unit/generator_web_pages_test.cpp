// Web programs: pages, and what they set up before the first frame.

#include "support/diagnosis.h"
#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string initGlobals(const std::string& text) {
    const std::string begin = "void init_globals() {\n";
    const std::size_t start = text.find(begin) + begin.size();
    return text.substr(start, text.find("\n}\n", start) - start);
}

TEST(Page, FillsTheWindowWhileItIsShown) {
    expectInOrder(webText(app("பக்கம்: \"முகப்பு\"")),
                  {"void render_frame() {", "nvgBeginFrame(vg, winWidth, winHeight, pxRatio);\n    nvgSave(vg);\n",
                   "float forcedW = -1.0f; float forcedH = -1.0f; float maxW = -1.0f; float maxH = -1.0f;\n",
                   "if (g_currentPage == \"முகப்பு\") {", "nvgBeginPath(vg);", "nvgRect(vg, 0, 0, winWidth, winHeight);",
                   "bool bgSet = false;", "if (!bgSet) {", "nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));",
                   "nvgFill(vg);", "g_overlays.clear();", "nvgEndFrame(vg);", "g_mouseClicked = false;\n}"});
}

TEST(Page, IsCalledHomeWithoutAName) {
    EXPECT_THAT(webText(app("")), HasSubstr("if (g_currentPage == \"home\") {"));
    EXPECT_THAT(webText(app("பக்கம்: 5")), HasSubstr("if (g_currentPage == \"home\") {"));
}

TEST(Page, TakesItsColourFromTheHeader) {
    const std::string fill = "nvgFillColor(vg, nvgRGBAf(1.0f, 0.5019608f, 0.0f, 1.0f));\n";
    expectInOrder(webText(app("பின்னணி: \"#FF8000\"")), {"bool bgSet = false;", fill, "bgSet = true;", "if (!bgSet) {"});
    EXPECT_THAT(webText(app("பின்னணி: நிறம்.நீலம்")), HasSubstr("nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f)"));
}

TEST(Page, StretchesItsPictureOverTheWindow) {
    expectInOrder(webText(app("பின்னணிபடம்: \"வான்.png\"")),
                  {"static int bgImgHandle = -1;",
                   "nvgCreateImage(vg, fn_any_to_string(std::string(u8\"வான்.png\")).c_str(), 0)",
                   "if (bgImgHandle > 0) {", "nvgImagePattern(vg, 0, 0, winWidth, winHeight, 0.0f, bgImgHandle, 1.0f)",
                   "bgSet = true;"});
}

TEST(Page, PlaysItsVideoBehindATransparentFill) {
    expectInOrder(
        webText(app("பின்னணிகாணொளி: \"கடல்.mp4\"")),
        {"'video/mp4'", "'pozhilVideo'", "\"கடல்.mp4\"", "nvgFillColor(vg, nvgRGBA(0, 0, 0, 0));", "bgSet = true;"});
}

TEST(Page, PaintsColourPictureAndVideoInThisOrder) {
    expectInOrder(webText(app("இணைய_தலைப்பு: \"த\", பின்னணிகாணொளி: \"க.mp4\", பின்னணிபடம்: \"ப.png\", பின்னணி: \"#FF0000\"",
                              "உரை(\"உள்ளே\")")),
                  {"if (g_currentPage == \"home\") {\n", "bool bgSet = false;\n",
                   "nvgFillColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));\n", "nvgFill(vg);\n", "bgSet = true;\n",
                   "static int bgImgHandle = -1;\n", "bgSet = true;\n", "static bool videoInit_", "bgSet = true;\n",
                   "if (!bgSet) {\n", "nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));\n", "}\n", "nvgFill(vg);\n",
                   "#ifdef __EMSCRIPTEN__\n", ".set(\"title\", ", "#endif\n", "உள்ளே"});
}

TEST(Page, RefusesAVideoThatIsNoText) {
    PropertyMap properties;
    properties["பின்னணிகாணொளி"] = number("5");
    auto header = make<HeaderNode>("தலைமை", std::move(properties), StatementList(), ScreenConfig());
    const std::string fault =
        generatorFault("", listOf(make<WebAppNode>("கடை", nullptr, std::move(header), nullptr, nullptr)));
    EXPECT_THAT(fault, HasSubstr("பொழி-254"));
    EXPECT_THAT(fault, HasSubstr("ஊடகப் பிழை: காணொளியின் முகவரி சரியாக இல்லை (5"));
}

TEST(Page, IsItsBackgroundWithoutAWidget) {
    const std::string page = "        nvgFill(vg);\n    }\n    });\n    EM_ASM({\n";
    EXPECT_THAT(webText(app("", "")), HasSubstr(page));
    const std::string withoutHeader =
        ownPart(generatedText("", listOf(make<WebAppNode>("கடை", nullptr, nullptr, nullptr, nullptr))));
    expectInOrder(withoutHeader, {"if (g_currentPage == \"home\") {\n", page});
}

TEST(Page, SetsTheTitleInEachFrame) {
    EXPECT_THAT(webText(app("இணைய_தலைப்பு: \"என் கடை\"")),
                HasSubstr("emscripten::val::global(\"document\").set(\"title\", "
                          "emscripten::val(fn_any_to_string(std::string(u8\"என் கடை\"))));"));
    EXPECT_THAT(webText(app("")), Not(HasSubstr(".set(\"title\"")));
}

TEST(Pages, StandOneBehindTheOtherInOneFrame) {
    const std::string text = webText(app("பக்கம்: \"அ\"") + app("பக்கம்: \"ஆ\""));
    expectInOrder(text, {"if (g_currentPage == \"அ\") {", "if (g_currentPage == \"ஆ\") {", "g_overlays.clear();"});
    EXPECT_EQ(text.find("render_frame() {"), text.rfind("render_frame() {"));
}

TEST(StartPage, IsTheFirstNameOrTheLastThatAsks) {
    const auto start = [](const std::string& source) {
        const std::string text = generatedText(source);
        const std::string begin = "std::string g_currentPage = \"";
        const std::size_t position = text.find(begin) + begin.size();
        return text.substr(position, text.find('"', position) - position);
    };
    EXPECT_EQ(start(app("") + app("பக்கம்: \"ஆ\"") + app("பக்கம்: \"இ\"")), "ஆ");
    EXPECT_EQ(start(app("பக்கம்: \"அ\"") + app("பக்கம்: \"ஆ\", ஆரம்ப_பக்கம்: மெய்")), "ஆ");
    EXPECT_EQ(start(app("பக்கம்: \"அ\", ஆரம்ப_பக்கம்: மெய்") + app("பக்கம்: \"ஆ\", ஆரம்ப_பக்கம்: மெய்")), "ஆ");
    EXPECT_EQ(start(app("பக்கம்: \"அ\"") + app("பக்கம்: \"ஆ\", ஆரம்ப_பக்கம்: பொய்")), "அ");
    EXPECT_EQ(start(app("ஆரம்ப_பக்கம்: மெய்")), "home");
    EXPECT_EQ(start(app("பக்கம்: \"\"") + app("பக்கம்: \"ஆ\"")), "") << "an empty name is one";
}

TEST(Window, HasTheApplicationsName) {
    EXPECT_THAT(webText(app("") + "வலைதளம் (\n தலைமை () குமரி () வரையறை ()\n)\n"),
                HasSubstr("glfwCreateWindow((int)1280.0f, (int)720.0f, \"கடை\", NULL, NULL)"));
    EXPECT_THAT(webText("வலைதளம் (\n தலைமை () குமரி () வரையறை ()\n)\n"), HasSubstr("\"MyApp\", NULL, NULL)"));
}

TEST(Window, HasTheSizeThatTheFirstHeaderAsksFor) {
    const auto page = [](bool usesDefault) {
        ScreenConfig screen;
        screen.useDefault = usesDefault;
        screen.width = 800.0F;
        screen.height = 600.5F;
        auto header = make<HeaderNode>("தலைமை", PropertyMap(), StatementList(), screen);
        return make<WebAppNode>("கடை", nullptr, std::move(header), nullptr, nullptr);
    };
    EXPECT_THAT(generatedText("", listOf(page(false), page(true))),
                HasSubstr("glfwCreateWindow((int)800.0f, (int)600.5f, \"கடை\", NULL, NULL)"));
    EXPECT_THAT(generatedText("", listOf(page(true), page(false))),
                HasSubstr("glfwCreateWindow((int)1280.0f, (int)720.0f, \"கடை\", NULL, NULL)"));
}

TEST(Logic, RunsBeforeTheFirstFrame) {
    EXPECT_EQ(initGlobals(webText(app("", "", "        அ = 5\n        அச்சிடு(அ)\n"))),
              "    (global_vars[\"அ\"] = std::any(5LL), global_vars[\"அ\"]);\n"
              "    std::cout << fn_any_to_string(global_vars[\"அ\"]) << std::endl;");
    expectInOrder(webText(app("")),
                  {"void init_globals() {", "void render_frame() {", "int main() {\n    init_globals();"});
}

TEST(Logic, DefinesItsFunctionsAndStructuresOutside) {
    const std::string text = webText(app("", "",
                                         "        செயல் கூட்டு_செய்(அ):\n            திரும்பு அ கூட்டு 1\n"
                                         "        கட்டமைப்பு பை:\n            எடை = 1\n"
                                         "        ப = பை()\n        வ = கூட்டு_செய்(2)\n"));
    expectInOrder(text, {"struct பை : public _StructBase", "std::any fn_கூட்டு_செய்(std::any அ) {",
                         "void init_globals() {", "fn_கூட்டு_செய்(std::any(2LL))"});
    EXPECT_EQ(text.find("fn_கூட்டு_செய்(std::any அ)"), text.rfind("fn_கூட்டு_செய்(std::any அ)"));
}

TEST(Logic, StandsBehindTheDefinitionsOutsideTheApplication) {
    expectInOrder(
        webText("செயல் வெளி():\n    திரும்பு 1\n" + app("", "", "        செயல் உள்():\n            திரும்பு வெளி()\n")),
        {"std::any fn_வெளி() {", "std::any fn_உள்() {"});
    expectInOrder(webText(app("", "", "        செயல் உள்():\n            திரும்பு 2\n") + "செயல் வெளி():\n    திரும்பு 1\n"),
                  {"std::any fn_வெளி() {", "std::any fn_உள்() {"});
}

TEST(Logic, IsCutIntoFunctionsWhereItIsLong) {
    const auto logicOf = [](int count) {
        std::string statements;
        for (int number = 0; number < count; ++number) {
            statements += "\n        அ = " + std::to_string(number);
        }
        return initGlobals(webText(app("", "", statements)));
    };
    EXPECT_THAT(logicOf(100), Not(HasSubstr("[] {")));
    const std::string longer = logicOf(201);
    expectInOrder(longer, {"    [] {\n    (global_vars[\"அ\"] = std::any(0LL)", "std::any(99LL)",
                           "    }();\n    [] {\n", "std::any(100LL)", "    }();\n    [] {\n", "std::any(200LL)"});
    EXPECT_THAT(longer, testing::EndsWith("\n    }();"));
}

TEST(Logic, PassesOverEnumerations) {
    EXPECT_EQ(initGlobals(webText(app("", "", "        வகை நாள்கள்:\n            திங்கள்\n        அ = 1\n"))),
              "    (global_vars[\"அ\"] = std::any(1LL), global_vars[\"அ\"]);");
}

TEST(StatementsOutsideTheApplication, AreNotPartOfAPage) {
    const std::string text = webText("அச்சிடு(\"காணாமல்\")\n" + app(""));
    EXPECT_THAT(text, Not(HasSubstr("காணாமல்")));
}

TEST(NestedPage, DrawsItsChildrenWhileItIsShown) {
    expectInOrder(frameOf("நெடுவரிசை(பக்கம்(பக்கம்: \"உள்ளே\", உரை(\"அ\"), உரை(\"ஆ\")))"),
                  {"// --- Page: உள்ளே ---\n", "if (g_currentPage == \"உள்ளே\") {\n", "nvgBeginPath(vg);\n",
                   "nvgRect(vg, 0, 0, winWidth, winHeight);\n", "nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));\n",
                   "nvgFill(vg);\n", "std::string(u8\"அ\")", "float textX = 0.0f; float textY = 0.0f;",
                   "std::string(u8\"ஆ\")", "float textX = 0.0f; float textY = 0.0f;"});
}

TEST(NestedPage, IsCalledHomeWithoutAName) {
    for (const std::string page : {"பக்கம்(உரை(\"அ\"))", "பக்கம்(பக்கம்: பெயர், உரை(\"அ\"))"}) {
        expectInOrder(frameOf("நெடுவரிசை(" + page + ")"),
                      {"// --- Page: home ---\n", "if (g_currentPage == \"home\") {\n"});
    }
}

TEST(WebText, IsTheSameEveryTime) {
    const std::string source = app("பக்கம்: \"அ\"", "நெடுவரிசை(உருளும்பட்டை: மெய்)(பொத்தான்(உரை(\"ஆ\")))", "        அ = 1\n");
    EXPECT_EQ(generatedText(source), generatedText(source));
}

} // namespace

// The frame function around the pages, the start of a web program, and what both share, step by step.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(Frame, BeginsWithWindowDialogMouseAndClearing) {
    expectInOrder(webText(app("")),
                  {"float responsiveW(float w, float winW, float margin = 40.0f) {",
                   "float responsiveTextSize(float baseSize, float winWidth) {",
                   "std::set<std::string> pozhil_open_alerts() {\n",
                   "g_alert_names",
                   "typeid(bool)",
                   "template <class Draw> void pozhil_draw(Draw draw) {\n",
                   "} catch (const std::exception& fault) {\n",
                   "void render_frame() {\n",
                   "float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });\n",
                   "float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });\n",
                   "int fbWidth = 0, fbHeight = 0;\n",
                   "float pxRatio = 1.0f;\n",
                   "masking_alerts = pozhil_open_alerts();\n",
                   "g_block_background_clicks = !masking_alerts.empty();\n",
                   "window.modalActive = ",
                   "window.savedMouseX = window.mouseX;\n",
                   "window.savedMouseY = window.mouseY;\n",
                   "window.savedMouseClicked = window.mouseClicked;\n",
                   "window.mouseX = -9999;\n",
                   "window.mouseY = -9999;\n",
                   "window.mouseClicked = 0;\n",
                   "g_mouseClicked = EM_ASM_INT({ var clicked = window.mouseClicked || 0; window.mouseClicked = 0;",
                   "float mx = ",
                   "float my_raw = ",
                   "bool g_mouseDown = EM_ASM_INT({ return window.mouseDownState || 0; })",
                   "g_isHoveringH = g_nextHoveringH;\n",
                   "g_nextHoveringH = false;\n",
                   "EM_ASM(document.body.style.cursor = 'default');\n",
                   "setupAndClearTextLayer();\n",
                   "global_vars[\"திரை_அகலம்\"] = (long double)winWidth;\n",
                   "global_vars[\"திரை_உயரம்\"] = (long double)winHeight;\n",
                   "glfwSetWindowSize(window, (int)winWidth, (int)winHeight);\n",
                   "glfwGetFramebufferSize(window, &fbWidth, &fbHeight);\n",
                   "pxRatio = (float)fbWidth / (float)winWidth;\n",
                   "glViewport(0, 0, fbWidth, fbHeight);\n",
                   "glClearColor(0.0f, 0.0f, 0.0f, 0.0f);\n",
                   "glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);\n",
                   "float my = my_raw;\n",
                   "nvgBeginFrame(vg, winWidth, winHeight, pxRatio);\n    nvgSave(vg);\n",
                   "float forcedW = -1.0f; float forcedH = -1.0f; float maxW = -1.0f; float maxH = -1.0f;\n",
                   "if (g_currentPage == \"home\") {\n"});
}

TEST(Frame, EndsWithTheMouseOverlaysMessageBarAndUnusedFields) {
    const std::string text = webText(app("", "உரை(\"கடைசி\")"));
    expectInOrder(text.substr(text.find("கடைசி")),
                  {"if (window.modalActive) {\n", "window.mouseX = window.savedMouseX;\n",
                   "window.mouseY = window.savedMouseY;\n", "window.mouseClicked = window.savedMouseClicked;\n",
                   "window.savedMouseClicked = 0;\n", "if (g_block_background_clicks) {\n",
                   "g_mouseClicked = EM_ASM_INT({ var clicked = window.mouseClicked || 0; window.mouseClicked = 0;",
                   "g_inside_overlay = true;\n", "g_overlays.size()", "g_overlays.clear();\n",
                   "g_inside_overlay = false;\n", "global_vars.count(\"active_sb\")",
                   "    nvgRestore(vg);\n    nvgEndFrame(vg);\n", "document.querySelectorAll('.pozhil-input')",
                   "dataset.touched === '0'", "style.display = 'none';\n", "dataset.touched = '0';\n",
                   "    g_mouseClicked = false;\n}\n", "int main() {\n"});
}

TEST(Start, SetsUpWindowKeyboardFontsStyleTextLayerMouseAndLoop) {
    const std::string text = webText(app(""));
    expectInOrder(text.substr(text.find("int main() {\n")),
                  {"    init_globals();\n#ifdef __EMSCRIPTEN__\n",
                   "if (!glfwInit()) return -1;\n",
                   "window = glfwCreateWindow((int)1280.0f, (int)720.0f, \"கடை\", NULL, NULL);\n",
                   "glfwTerminate();\n        return -1;\n",
                   "glfwMakeContextCurrent(window);\n    glewInit();\n",
                   "GLFW.onKeydown",
                   "window.removeEventListener('keydown', ",
                   "document.activeElement",
                   "'INPUT'",
                   "'TEXTAREA'",
                   "window.addEventListener('keydown', GLFW.onKeydown, true);\n",
                   "vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);\n",
                   "nvgCreateFont(vg, \"tamil_font\", \"assets/font/Coiny-Regular.ttf\") == -1",
                   "\"எச்சரிக்கை: 'tamil_font' எழுத்துருவை இணைக்க முடியவில்லை.\"",
                   "nvgCreateFont(vg, \"sans\", \"assets/font/Tamil-Regular.ttf\") == -1",
                   "\"எச்சரிக்கை: 'sans' எழுத்துருவை இணைக்க முடியவில்லை.\"",
                   "nvgFontFace(vg, \"tamil-font\");\n",
                   "nvgFontSize(vg, 32.0f);\n",
                   "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));\n",
                   "emscripten_run_script(",
                   "createElement('style')",
                   "@import url('https://",
                   "family=Noto+Sans+Tamil:wght@400;700&display=swap');",
                   "canvas {",
                   "font-variant-ligatures: common-ligatures;",
                   "font-feature-settings: 'liga' 1, 'clig' 1, 'kern' 1;",
                   "text-rendering: optimizeLegibility;",
                   "-webkit-font-smoothing: antialiased;",
                   "body.style.margin = '0';",
                   "body.style.padding = '0';",
                   "body.style.overflow = 'hidden';",
                   "style.display = 'block';",
                   "window.dispatchEvent(new Event('resize'));",
                   "'textCanvas'",
                   "window.mouseX = 0;\n",
                   "window.mouseY = 0;\n",
                   "window.mouseClicked = 0;\n",
                   "window.wheelDelta = 0;\n",
                   "window.wheelDeltaX = 0;\n",
                   "addEventListener('mousemove'",
                   "getElementById('canvas').getBoundingClientRect();\n",
                   "window.mouseX = e.clientX - rect.left;\n",
                   "window.mouseY = e.clientY - rect.top;\n",
                   "addEventListener('mousedown'",
                   "window.mouseClicked = 1;\n",
                   "window.mouseDownState = 1;\n",
                   "addEventListener('mouseup'",
                   "window.mouseDownState = 0;\n",
                   "addEventListener('wheel'",
                   "window.wheelDelta += e.deltaY;\n",
                   "window.wheelDeltaX += e.deltaX;\n",
                   "e.preventDefault();\n",
                   "{passive: false}",
                   "setupClipboardListener();\n",
                   "emscripten_set_keydown_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, 0, 1, key_callback);\n",
                   "emscripten_set_keypress_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, 0, 1, key_callback);\n",
                   "emscripten_set_main_loop(render_frame, 0, 1);\n",
                   "#else\n",
                   "🚨 பிழை: இந்த பொழில் வலைத்தள (WebAssembly) தொகுப்புக்கு மட்டுமே அனுமதிக்கப்படும்!",
                   "#endif\n    return 0;\n}\n"});
}

TEST(Start, FillsAllHolesOfItsText) {
    const std::string text = webText(app(""));
    for (const char* hole : {"$fontHost", "$width", "$height", "$title"}) {
        EXPECT_THAT(text, Not(HasSubstr(hole)));
    }
}

TEST(SharedState, StandsAtItsStartValues) {
    const std::string text = generatedText(app(""));
    expectInOrder(text, {"std::set<std::string> g_alert_names;\n",
                         "bool g_block_background_clicks = false;\n",
                         "bool g_inside_overlay = false;\n",
                         "std::vector<std::function<void()>> g_overlays;\n",
                         "float திரை_அகலம் = 1280.0f;\n",
                         "float திரை_உயரம் = 720.0f;\n",
                         "// --- NAVIGATION STATE ---\n",
                         "std::string g_currentPage = \"home\"; // தானாகக் கண்டுபிடிக்கப்பட்ட பக்கம்\n\n",
                         "void செல்க(std::string pageName) {\n    g_currentPage = pageName;\n",
                         "EMSCRIPTEN_BINDINGS(scroll_logic)",
                         "\"நகர்த்து\"",
                         "std::map<std::string, WidgetPos> g_widgetPositions;\n",
                         "std::string g_scrollToId = \"\";\n",
                         "void நகர்த்து(std::string id) {\n    g_scrollToId = id;\n}\n",
                         "void updateUI() {}\n",
                         "// --- Web Boilerplate ---\n#ifdef __EMSCRIPTEN__\n",
                         "NVGcontext* vg = NULL;\n",
                         "GLFWwindow* window = NULL;\n",
                         "float g_currentClipX = -1.0f;\n",
                         "float g_currentClipY = -1.0f;\n",
                         "float g_currentClipW = -1.0f;\n",
                         "float g_currentClipH = -1.0f;\n",
                         "bool g_isHoveringH = false;\n",
                         "bool g_nextHoveringH = false;\n",
                         "bool g_mouseClicked = false;\n",
                         "void init_globals() {\n"});
}

} // namespace

#include "generator/web/page/frame_text.h"

namespace pozhil {

const std::string_view frame_text::HEAD = R"(
#ifdef __EMSCRIPTEN__
float responsiveW(float w, float winW, float margin = 40.0f) {
    return (w > winW - margin) ? (winW - margin) : w;
}

float responsiveTextSize(float baseSize, float winWidth) {
    float scale = winWidth / 1280.0f;
    if (scale < 0.65f) scale = 0.65f;
    if (scale > 1.3f) scale = 1.3f;
    return baseSize * scale;
}

// இப்போது மெய்யாக உள்ள காட்சிப்பெயர்கள்
std::set<std::string> pozhil_open_alerts() {
    std::set<std::string> open;
    for (const std::string& alert_name : g_alert_names) {
        const auto shown = global_vars.find(alert_name);
        if (shown != global_vars.end() && shown->second.type() == typeid(bool) && std::any_cast<bool>(shown->second)) {
            open.insert(alert_name);
        }
    }
    return open;
}

// வரையும்போது பிழை எழுந்தால் அந்த விட்ஜெட் மட்டும் அச்சட்டத்தில் விடுபடும்; ஒவ்வொரு பிழையும் ஒருமுறையே பணியகத்துக்குச் செல்லும்
void pozhil_report_drawing_fault(const std::string& fault) {
    static std::set<std::string> reported;
    if (reported.insert(fault).second) {
        EM_ASM({ console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', UTF8ToString($0)); }, fault.c_str());
    }
}

template <class Draw> void pozhil_draw(Draw draw) {
    try {
        draw();
    } catch (const std::exception& fault) {
        pozhil_report_drawing_fault(fault.what());
    }
}

void render_frame() {
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });
    int fbWidth = 0, fbHeight = 0;
    float pxRatio = 1.0f;

    const std::set<std::string> masking_alerts = pozhil_open_alerts();
    g_block_background_clicks = !masking_alerts.empty();
    EM_ASM({
        window.modalActive = $0 !== 0;
        if (window.modalActive) {
            window.savedMouseX = window.mouseX;
            window.savedMouseY = window.mouseY;
            window.savedMouseClicked = window.mouseClicked;
            window.mouseX = -9999;
            window.mouseY = -9999;
            window.mouseClicked = 0;
        }
    }, g_block_background_clicks ? 1 : 0);
    g_mouseClicked = EM_ASM_INT({ var clicked = window.mouseClicked || 0; window.mouseClicked = 0; return clicked; }) != 0;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my_raw = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool g_mouseDown = EM_ASM_INT({ return window.mouseDownState || 0; }) != 0;
    g_isHoveringH = g_nextHoveringH;
    g_nextHoveringH = false;
    EM_ASM(document.body.style.cursor = 'default');
    setupAndClearTextLayer();
    global_vars["திரை_அகலம்"] = (long double)winWidth;
    global_vars["திரை_உயரம்"] = (long double)winHeight;
    glfwSetWindowSize(window, (int)winWidth, (int)winHeight);
    glfwGetFramebufferSize(window, &fbWidth, &fbHeight);
    pxRatio = (float)fbWidth / (float)winWidth;
    glViewport(0, 0, fbWidth, fbHeight);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    float my = my_raw;
    nvgBeginFrame(vg, winWidth, winHeight, pxRatio);
    nvgSave(vg);
)";

const std::string_view frame_text::TAIL = R"(
    });
    EM_ASM({
        if (window.modalActive) {
            window.mouseX = window.savedMouseX;
            window.mouseY = window.savedMouseY;
            window.mouseClicked = window.savedMouseClicked;
            window.savedMouseClicked = 0;
        }
    });
    if (g_block_background_clicks) {
        g_mouseClicked = EM_ASM_INT({ var clicked = window.mouseClicked || 0; window.mouseClicked = 0; return clicked; }) != 0;
    }
    g_inside_overlay = true;
    for (std::size_t next = 0; next < g_overlays.size(); ++next) {
        // எச்சரிக்கையைத் திறந்த சொடுக்கு அதற்குள்ளும் செயல்படக் கூடாது
        for (const std::string& alert_name : pozhil_open_alerts()) {
            if (masking_alerts.count(alert_name) == 0) {
                g_mouseClicked = false;
            }
        }
        std::function<void()> draw_overlay = g_overlays[next]; // வரையும்போதே இன்னொன்று சேரலாம்
        pozhil_draw(draw_overlay);
    }
    g_overlays.clear();
    g_inside_overlay = false;

    if (global_vars.count("active_sb") && std::any_cast<bool>(global_vars["active_sb"])) {
        double elapsed = emscripten_get_now() - std::any_cast<double>(global_vars["sb_start_time"]);
        nvgSave(vg);
        nvgResetScissor(vg);
        float currentY = global_vars.count("sb_y_pos") ? std::any_cast<float>(global_vars["sb_y_pos"]) : -100.0f;
        float targetY = 40.0f;
        if (elapsed > 2500.0) targetY = -100.0f;
        currentY += (targetY - currentY) * 0.25f;
        global_vars["sb_y_pos"] = std::any(currentY);
        if (elapsed > 2500.0 && currentY < -90.0f) {
            global_vars["active_sb"] = std::any(false);
        } else {
            std::string msgTxt = global_vars.count("sb_msg") ? std::any_cast<std::string>(global_vars["sb_msg"]) : "தகவல்";
            float txtW = (float)EM_ASM_DOUBLE({
                var canvas = document.getElementById('textCanvas');
                return canvas ? canvas.getContext('2d').measureText(UTF8ToString($0)).width : 400;
            }, msgTxt.c_str());
            float barW = txtW + 80.0f;
            if (barW < 300.0f) barW = 300.0f;
            if (barW > winWidth - 40.0f) barW = winWidth - 40.0f;
            float barH = 55.0f;
            float barX = (winWidth - barW) / 2.0f;
            int sb_r = global_vars.count("sb_bg_r") ? std::any_cast<int>(global_vars["sb_bg_r"]) : 50;
            int sb_g = global_vars.count("sb_bg_g") ? std::any_cast<int>(global_vars["sb_bg_g"]) : 50;
            int sb_b = global_vars.count("sb_bg_b") ? std::any_cast<int>(global_vars["sb_bg_b"]) : 50;
            nvgBeginPath(vg);
            nvgRect(vg, barX - 20, currentY - 20, barW + 40, barH + 40);
            nvgFillPaint(vg, nvgBoxGradient(vg, barX, currentY + 5, barW, barH, 12, 15, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0)));
            nvgFill(vg);
            nvgBeginPath(vg);
            nvgRoundedRect(vg, barX, currentY, barW, barH, 12);
            nvgFillColor(vg, nvgRGBA(sb_r, sb_g, sb_b, 255));
            nvgFill(vg);
            EM_ASM({
                var canvas = document.getElementById('textCanvas');
                if (canvas) {
                    canvas.getContext('2d').clearRect($0 - 10, $1 - 10, $2 + 20, $3 + 20);
                }
            }, barX, currentY, barW, barH);
            drawFixedText(barX + (barW / 2.0f), currentY + 18.0f, msgTxt.c_str(), "#FFFFFF", 16.0f, "center");
        }
        nvgRestore(vg);
    }

    nvgRestore(vg);
    nvgEndFrame(vg);
    EM_ASM({
        document.querySelectorAll('.pozhil-input').forEach(function(element) {
            if (element.dataset.touched === '0') {
                element.style.display = 'none';
            } else {
                element.dataset.touched = '0';
            }
        });
    });
    g_mouseClicked = false;
}
#endif

)";

const std::string_view frame_text::MAIN = R"(
int main() {
    init_globals();
#ifdef __EMSCRIPTEN__
    if (!glfwInit()) return -1;
    window = glfwCreateWindow((int)$width, (int)$height, "$title", NULL, NULL);
    if (!window) {
        glfwTerminate();
        return -1;
    }
    glfwMakeContextCurrent(window);
    glewInit();
    EM_ASM({
        if (typeof GLFW !== 'undefined' && GLFW.onKeydown) {
            var original = GLFW.onKeydown;
            window.removeEventListener('keydown', original, true);
            GLFW.onKeydown = function(event) {
                var active = document.activeElement;
                if (active && (active.tagName === 'INPUT' || active.tagName === 'TEXTAREA')) {
                    return;
                }
                original(event);
            };
            window.addEventListener('keydown', GLFW.onKeydown, true);
        }
    });
    vg = nvgCreateGLES2(NVG_ANTIALIAS | NVG_STENCIL_STROKES | NVG_DEBUG);
    if (nvgCreateFont(vg, "tamil_font", "assets/font/Coiny-Regular.ttf") == -1) {
        std::cout << "எச்சரிக்கை: 'tamil_font' எழுத்துருவை இணைக்க முடியவில்லை." << std::endl;
    }
    if (nvgCreateFont(vg, "sans", "assets/font/Tamil-Regular.ttf") == -1) {
        std::cout << "எச்சரிக்கை: 'sans' எழுத்துருவை இணைக்க முடியவில்லை." << std::endl;
    }
    nvgFontFace(vg, "tamil-font");
    nvgFontSize(vg, 32.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    emscripten_run_script(
        "var style = document.createElement('style');"
        "style.textContent = \"@import url('https://$fontHost/css2?family=Noto+Sans+Tamil:wght@400;700&display=swap');"
        " canvas { font-variant-ligatures: common-ligatures; font-feature-settings: 'liga' 1, 'clig' 1, 'kern' 1;"
        " text-rendering: optimizeLegibility; -webkit-font-smoothing: antialiased; }\";"
        "document.head.appendChild(style);"
        "document.body.style.margin = '0';"
        "document.body.style.padding = '0';"
        "document.body.style.overflow = 'hidden';"
        "var firstCanvas = document.querySelector('canvas');"
        "if (firstCanvas) { firstCanvas.style.display = 'block'; }"
        "window.dispatchEvent(new Event('resize'));");
    EM_ASM({
        if (!document.getElementById('textCanvas')) {
            var textCanvas = document.createElement('canvas');
            textCanvas.id = 'textCanvas';
            textCanvas.style.position = 'absolute';
            textCanvas.style.left = '0';
            textCanvas.style.top = '0';
            textCanvas.style.width = '100%';
            textCanvas.style.height = '100%';
            textCanvas.style.pointerEvents = 'none';
            document.body.appendChild(textCanvas);
            var fit = function() {
                textCanvas.width = window.innerWidth;
                textCanvas.height = window.innerHeight;
            };
            window.addEventListener('resize', fit);
            fit();
        }
    });
    EM_ASM({
        window.mouseX = 0;
        window.mouseY = 0;
        window.mouseClicked = 0;
        window.wheelDelta = 0;
        window.wheelDeltaX = 0;
        window.addEventListener('mousemove', function(e) {
            var rect = document.getElementById('canvas').getBoundingClientRect();
            window.mouseX = e.clientX - rect.left;
            window.mouseY = e.clientY - rect.top;
        });
        window.addEventListener('mousedown', function(e) {
            window.mouseClicked = 1;
            window.mouseDownState = 1;
        });
        window.addEventListener('mouseup', function(e) {
            window.mouseDownState = 0;
        });
        window.addEventListener('wheel', function(e) {
            window.wheelDelta += e.deltaY;
            window.wheelDeltaX += e.deltaX;
            e.preventDefault();
        }, ({passive: false}));
    });
    setupClipboardListener();
    emscripten_set_keydown_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, 0, 1, key_callback);
    emscripten_set_keypress_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, 0, 1, key_callback);
    emscripten_set_main_loop(render_frame, 0, 1);
#else
    std::cout << "\033[1;31m🚨 பிழை: இந்த பொழில் வலைத்தள (WebAssembly) தொகுப்புக்கு மட்டுமே அனுமதிக்கப்படும்!\033[0m" << std::endl;
#endif
    return 0;
}
)";

} // namespace pozhil

#pragma once

/// The drawing context of a page and what its frames share. The native compiler skips it all.

#include "web_text_layer.h"

// clang-format off
// --- emitted from here ---

// --- Web Boilerplate ---
#ifdef __EMSCRIPTEN__
#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <GLES2/gl2.h>
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"

NVGcontext* vg = NULL;
GLFWwindow* window = NULL;

// உள்ளடக்கத்தை வெட்டும் பெட்டி
float g_currentClipX = -1.0f;
float g_currentClipY = -1.0f;
float g_currentClipW = -1.0f;
float g_currentClipH = -1.0f;

// சுட்டியின் நிலை
bool g_isHoveringH = false;
bool g_nextHoveringH = false;
bool g_mouseClicked = false;

inline float pozhil_mouse_x() {
    return (float)EM_ASM_DOUBLE({ return window.mouseX; });
}

inline float pozhil_mouse_y() {
    return (float)EM_ASM_DOUBLE({ return window.mouseY; });
}

// சுருள் சக்கரத்தின் நகர்வு; எடுத்துக்கொண்ட விட்ஜெட்டுக்கே சேரும்
inline float pozhil_take_wheel() {
    return (float)EM_ASM_DOUBLE({ var delta = window.wheelDelta || 0; window.wheelDelta = 0; return delta; });
}

inline float pozhil_take_both_wheels() {
    return (float)EM_ASM_DOUBLE({
        var dx = window.wheelDeltaX || 0;
        var dy = window.wheelDelta || 0;
        window.wheelDeltaX = 0;
        window.wheelDelta = 0;
        return dx !== 0 ? dx : dy;
    });
}

inline void pozhil_pointer_cursor() {
    EM_ASM(document.body.style.cursor = 'pointer');
}

inline NVGcolor lerpColor(NVGcolor a, NVGcolor b, float t) {
    return nvgRGBAf(lerp(a.r, b.r, t), lerp(a.g, b.g, t), lerp(a.b, b.b, t), lerp(a.a, b.a, t));
}
#endif

#pragma once

/// Headers of the drawing context of a page. The native compiler skips it all.

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
#endif

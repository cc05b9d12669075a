#pragma once

/// Headers of the web build, and the text canvas that lies over the drawing canvas. The native compiler skips it all.

#include "standard_headers.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
#include <emscripten.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>
#include <emscripten/bind.h>
#include <cstring>
#include "nanovg.h"
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"
#endif

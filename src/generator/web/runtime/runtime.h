#pragma once

/// The runtime of pages, section by section in the order in which it is emitted, as it stands without any edition's
/// values. For native tests; this file itself is not emitted. Include it in one translation unit of an executable only: it
/// defines its functions and globals in place.

// clang-format off
#include "page_headers.h"
#include "web_text_layer.h"
#include "page_state.h"
#include "overlays.h"
#include "navigation.h"
#include "input_state.h"
#include "canvas_keys.h"
#include "web_bridge.h"
#include "animation_engine.h"
#include "scrolling.h"
#include "web_boilerplate.h"
#include "input_fields.h"
#include "media_elements.h"
#include "frame_helpers.h"
#include "wrapping.h"
// clang-format on

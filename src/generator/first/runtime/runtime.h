#pragma once

/// The whole runtime of generated programs, section by section in the order in which it is emitted. For native tests;
/// this file itself is not emitted. Include it in one translation unit of an executable only: the runtime defines its
/// functions and globals in place.

// clang-format off
#include "standard_headers.h"
#include "web_text_layer.h"
#include "global_state.h"
#include "navigation.h"
#include "input_state.h"
#include "canvas_keys.h"
#include "web_bridge.h"
#include "value_types.h"
#include "error_box.h"
#include "value_texts.h"
#include "value_functions.h"
#include "animation_engine.h"
#include "library.h"
#include "scrolling.h"
#include "web_boilerplate.h"
#include "input_fields.h"
#include "media_elements.h"
#include "frame_helpers.h"
// clang-format on

#pragma once

/// The whole runtime of generated programs, section by section in the order in which it is emitted. For native tests;
/// this file itself is not emitted. Include it in one translation unit of an executable only: the runtime defines its
/// functions and globals in place.

// clang-format off
#include "standard_headers.h"
#include "generator/web/runtime/web_text_layer.h"
#include "global_variables.h"
#include "generator/web/runtime/page_state.h"
#include "return_value.h"
#include "generator/web/runtime/overlays.h"
#include "call_guard.h"
#include "generator/web/runtime/navigation.h"
#include "generator/web/runtime/input_state.h"
#include "generator/web/runtime/canvas_keys.h"
#include "generator/web/runtime/web_bridge.h"
#include "database_entries.h"
#include "value_types.h"
#include "error_box.h"
#include "value_texts.h"
#include "value_functions.h"
#include "generator/web/runtime/animation_engine.h"
#include "library.h"
#include "generator/web/runtime/scrolling.h"
#include "scroll_function.h"
#include "generator/web/runtime/web_boilerplate.h"
#include "generator/web/runtime/input_fields.h"
#include "generator/web/runtime/media_elements.h"
#include "generator/web/runtime/frame_helpers.h"
// clang-format on

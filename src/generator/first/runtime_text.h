#pragma once

#include <string_view>

/// The emitted runtime: C++ text that stands in every generated program, whatever the source says. Each constant is
/// what stands behind the marker line of the file of the same name in `generator/first/runtime/`; the build embeds it.
/// They are listed in the order in which they are emitted.
namespace pozhil::runtime {

extern const std::string_view standard_headers;
extern const std::string_view web_text_layer;
extern const std::string_view global_state;
extern const std::string_view navigation;
extern const std::string_view input_state;
extern const std::string_view canvas_keys;
extern const std::string_view web_bridge;
extern const std::string_view value_types;
extern const std::string_view error_box;
extern const std::string_view value_texts;
extern const std::string_view value_functions;
extern const std::string_view animation_engine;
extern const std::string_view library;
extern const std::string_view scrolling;
extern const std::string_view web_boilerplate;
extern const std::string_view input_fields;
extern const std::string_view media_elements;
extern const std::string_view frame_helpers;

} // namespace pozhil::runtime

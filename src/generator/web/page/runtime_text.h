#pragma once

#include <string>
#include <string_view>

/// The runtime of pages: C++ text that knows no edition's values. Each constant is what stands after the marker line of the
/// file of the same name in `generator/web/runtime/`; the build embeds it. They are listed in the order in which they are
/// emitted; what an edition emits besides may stand in between.
namespace pozhil::page_runtime {

extern const std::string_view page_headers;
extern const std::string_view web_text_layer;
extern const std::string_view page_state;
extern const std::string_view overlays;
/// To be filled (navigationFrom).
extern const std::string_view navigation;
extern const std::string_view input_state;
/// To be fenced off from native compilers, which have nothing that calls it.
extern const std::string_view canvas_keys;
/// To be filled (bridgeWith).
extern const std::string_view web_bridge;
extern const std::string_view animation_engine;
extern const std::string_view scrolling;
extern const std::string_view web_boilerplate;
extern const std::string_view input_fields;
extern const std::string_view media_elements;
/// To be fenced off like canvas_keys.
extern const std::string_view frame_helpers;
/// For editions whose texts wrap.
extern const std::string_view wrapping;

/// navigation, with the page that is shown first.
/// \param page its name as a literal of C++
std::string navigationFrom(std::string_view page);

/// web_bridge, with what the program does with an answer of the database.
/// \param entries the functions rtdb_clear_temp, rtdb_add_temp_str, rtdb_add_temp_num and rtdb_add_temp_bool, which a read
///        calls (page_text::database_read)
/// \param answer lines that carry out when the answer is complete, before the body of the read
std::string bridgeWith(std::string_view entries, std::string_view answer);

} // namespace pozhil::page_runtime

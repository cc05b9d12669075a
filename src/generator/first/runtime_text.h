#pragma once

#include <string_view>

/// The emitted runtime: C++ text that stands in every generated program, whatever the source says. Each constant is
/// what stands after the marker line of the file of the same name in `generator/first/runtime/`; the build embeds it.
/// They are listed in the order in which they are emitted, with the runtime of pages (generator/web/page/runtime_text.h) in
/// between.
namespace pozhil::runtime {

extern const std::string_view standard_headers;
extern const std::string_view global_variables;
extern const std::string_view return_value;
extern const std::string_view call_guard;
/// Stands in the bridge of the page.
extern const std::string_view database_entries;
extern const std::string_view value_types;
extern const std::string_view error_box;
extern const std::string_view value_texts;
extern const std::string_view value_functions;
extern const std::string_view library;
extern const std::string_view scroll_function;

} // namespace pozhil::runtime

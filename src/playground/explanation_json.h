#pragma once

#include <string>
#include <string_view>

namespace pozhil::playground {

/// What is known of a fault, for pages: code, message, cause in both languages, remedy, a wrong program and a right one.
/// What isn't known of it is null.
/// \param code such as "பொழி-304" or "304"
/// \return "null" if no fault has it
std::string explanationJson(std::string_view code);

} // namespace pozhil::playground

#pragma once

/// Colours of the driver's texts, as escape sequences.
namespace pozhil::style {

constexpr const char* RED = "\033[1;31m";
constexpr const char* GREEN = "\033[1;32m";
constexpr const char* YELLOW = "\033[1;33m";
constexpr const char* GOLD = "\033[1;93m";
constexpr const char* BLUE = "\033[1;34m";
constexpr const char* CYAN = "\033[1;36m";
constexpr const char* WHITE = "\033[1;37m";
constexpr const char* RESET = "\033[0m";

} // namespace pozhil::style

#pragma once

#include <string>
#include <string_view>

namespace pozhil::engine {

/// The text without the blanks of Unicode at its ends.
std::string_view trimmed(std::string_view text);

/// A text as a fault tells it: of a long one the first letters.
std::string shortened(std::string_view text);

} // namespace pozhil::engine

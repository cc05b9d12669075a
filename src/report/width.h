#pragma once

#include "report/letters.h"

#include <cstddef>
#include <string_view>

/// How texts look on a terminal.

namespace pozhil::report {

/// How many columns of a terminal a text takes that holds no control characters.
std::size_t width(std::string_view text);

} // namespace pozhil::report

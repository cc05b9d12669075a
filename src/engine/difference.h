#pragma once

#include "engine/value.h"

#include <string>

namespace pozhil::engine {

/// Where two values differ that aren't equal, a line or two for each place, ten places at most: which element of a list,
/// which key of a map, which line of a text.
std::string differenceOf(const Value& got, const Value& wanted);

} // namespace pozhil::engine

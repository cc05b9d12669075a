#pragma once

#include "engine/value.h"

#include <string>

namespace pozhil::engine {

/// Where two values differ, two or three lines for each place, ten places at most: which element of a list, which key of a
/// map, which line or letter of a text. Nothing of equal values.
std::string differenceOf(const Value& got, const Value& wanted);

} // namespace pozhil::engine

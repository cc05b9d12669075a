#pragma once

#include "engine/value.h"

#include <string>

namespace pozhil::engine {

/// A value as a fault tells it: a text in quotes, of a long value the beginning.
std::string toldValue(const Value& value);

} // namespace pozhil::engine

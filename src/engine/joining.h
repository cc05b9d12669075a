#pragma once

#include "engine/value.h"

namespace pozhil::engine {

/// A list of the elements of both lists.
Value joinLists(const Value& left, const Value& right, Place place);

} // namespace pozhil::engine

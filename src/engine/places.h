#pragma once

#include "engine/faults.h"
#include "report/box.h"

/// Places of the emitted text, and what stands there in the sources of the running program.

namespace pozhil::engine {

/// The line and the piece of it. Without a known place it has no line; its file is then that of the program.
report::Excerpt excerptOf(Place place);

/// The call of a frame, as the way to a fault tells it.
report::Call callOf(const Frame& frame);

} // namespace pozhil::engine

#pragma once

#include "analysis/second/model.h"
#include "diagnostics/second_hint.h"

namespace pozhil::second {

/// Looks for names that are given a value which nobody reads, and that differ by a slip from one that is read; and for
/// arguments that are given by name, as no function takes them. Whatever may be meant is passed over in silence.
/// \param model of a program without faults
SecondHints findHints(Model& model);

} // namespace pozhil::second

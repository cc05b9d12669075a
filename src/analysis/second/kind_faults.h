#pragma once

#include "analysis/second/kinds.h"

namespace pozhil::second {

/// Tells what certainly goes wrong when the program runs, by the kinds that are noted: conditions that are no truth
/// values, operands that don't go with their operator, members that aren't there. What முயற்சி guards is left to it.
/// \param kinds those of functions on their own, whatever calls give their parameters
void tellKindFaults(Model& model, const Kinds& kinds);

} // namespace pozhil::second

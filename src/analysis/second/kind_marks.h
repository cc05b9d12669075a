#pragma once

#include "analysis/second/kinds.h"

namespace pozhil::second {

/// Notes the kinds of all values, variables and results in the program.
void markKinds(Model& model, const Kinds& kinds);

/// Makes direct calls of those whose method is certain, by the kinds that are noted: of what comes with texts, lists, maps
/// and times, and of the methods of objects whose structure is known.
void makeCallsDirect(Model& model, const Kinds& kinds);

} // namespace pozhil::second

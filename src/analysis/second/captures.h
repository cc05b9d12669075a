#pragma once

#include "analysis/second/model.h"

namespace pozhil::second {

/// Finds out which functions are used as values, and which variables of the functions around them inner functions share.
///
/// An inner function that uses none of them is called as directly as one of the file. Any other one lives in a variable,
/// so that it goes with those it shares.
void findCaptures(Model& model);

} // namespace pozhil::second

#pragma once

#include "diagnostics/second_fault.h"

namespace pozhil {

/// Shows the boxes of faults of the second edition on standard output, MAX_TOLD_FAULTS at most, and that there are more if
/// there are.
void reportFaults(const SecondFaults& faults);

} // namespace pozhil

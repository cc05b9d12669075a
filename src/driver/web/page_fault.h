#pragma once

#include "diagnostics/fault.h"
#include "diagnostics/second_fault.h"
#include "driver/server/build_fault.h"

/// What open pages are told of a source that isn't built.
namespace pozhil {

BuildFault pageFault(const Fault& fault);

/// The first of the faults of a source of the second edition, and how many more there are.
/// \param faults at least one
BuildFault pageFault(const SecondFaults& faults);

/// A fault that only the console tells.
BuildFault untoldFault();

} // namespace pozhil

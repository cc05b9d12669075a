#pragma once

#include "diagnostics/fault.h"

namespace pozhil {

/// Shows the box of a fault on standard output and ends the process with status 1.
[[noreturn]] void reportFault(const Fault& fault);

} // namespace pozhil

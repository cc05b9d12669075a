#pragma once

#include "diagnostics/second_fault.h"

namespace pozhil::second {

/// Thrown where a statement can't be parsed any further. It is no std::exception: only the recovery catches it.
struct SyntaxFault {
    SecondFault fault;
};

} // namespace pozhil::second

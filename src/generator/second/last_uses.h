#pragma once

#include "analysis/second/resolved/program.h"

#include <unordered_set>

namespace pozhil::resolved::writer {

/// Reads of variables after which nobody asks for what they held: ப in "ப = f(ப)" and "திரும்பு f(ப)". What is called can
/// have the value itself, and writes to a list without copying it. Only variables of one call count, and only where no
/// பிடி of the function could find them empty after a fault.
std::unordered_set<const VariableRead*> lastUses(const Function& function);

} // namespace pozhil::resolved::writer

#pragma once

#include "analysis/second/resolved/expressions.h"

namespace pozhil::resolved::writer {

/// Whether evaluating \p expression may end in a fault, other than for want of memory.
bool mayFail(const Expression& expression);

} // namespace pozhil::resolved::writer

#pragma once

#include "parser/tree/node.h"

namespace pozhil {

/// An expression without the brackets around it; null for null.
const Expression* withoutBrackets(const Expression* expression);

/// Whether an expression compares two values. One in brackets is another expression.
bool isComparison(const Expression& expression);

} // namespace pozhil

#pragma once

#include "analysis/second/resolved/expressions.h"
#include "generator/second/operands.h"

#include <string>
#include <utility>
#include <vector>

/// Operators of the program as functions of the engine.

namespace pozhil::resolved::writer {

/// As what the operands of an operator are written, so that C++ finds the form of the function that is meant.
std::pair<Wanted, Wanted> wantedOperands(const Binary& binary);

/// The call for an operator: add(operands, place).
/// \param operands both, written, with a comma between
std::string operation(BinaryOperator op, const std::string& operands, const std::string& place);

/// The pieces of a text that one இணை after the other puts together.
std::vector<const Expression*> joinedPieces(const Binary& join);

} // namespace pozhil::resolved::writer

#pragma once

#include "analysis/second/resolved/expressions.h"

namespace pozhil::second {

/// A whole number or a decimal.
constexpr bool isNumber(resolved::Kind kind) {
    return kind == resolved::Kind::Whole || kind == resolved::Kind::Decimal;
}

/// What an operator gives for operands of these kinds. Where it is native, the engine's function for these operands gives
/// just that type.
resolved::Kind resultOf(resolved::BinaryOperator op, resolved::Kind left, resolved::Kind right);
resolved::Kind resultOf(resolved::UnaryOperator op, resolved::Kind operand);

/// Whether operands of these kinds may go with an operator; nothing is known against Kind::Any.
bool mayApply(resolved::BinaryOperator op, resolved::Kind left, resolved::Kind right);
bool mayApply(resolved::UnaryOperator op, resolved::Kind operand);

/// Whether values of a kind may be asked for an element by an index of that kind.
bool mayHaveElements(resolved::Kind container);
bool mayBeIndex(resolved::Kind container, resolved::Kind index);

/// The word of an operator, as it is written.
const char* wordOf(resolved::BinaryOperator op);
const char* wordOf(resolved::UnaryOperator op);

/// The name of a kind in words, as a running program tells it: "தசம எண்".
const char* wordOf(resolved::Kind kind);

} // namespace pozhil::second

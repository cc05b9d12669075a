#pragma once

#include "analysis/second/resolved/program.h"

#include <cstdint>
#include <string>

namespace pozhil::resolved::writer {

/// Types of C++ that values of the program have in the emitted text.
enum class Type : std::uint8_t { Value, Whole, Decimal, Truth };

constexpr bool isNumber(Type type) {
    return type == Type::Whole || type == Type::Decimal;
}

/// As it is written in C++.
const char* nameOf(Type type);

/// The type of what is certain to be of a kind: a native one, or Value.
Type typeOf(Kind kind);

/// The type that the emitted text of an expression has.
Type typeOf(const Expression& expression);

/// The type of a function's result or a variable.
Type typeOf(const Function& function);
Type typeOf(const Variable& variable);

/// The type of what an operator makes of operands of these types.
Type typeOfOperation(BinaryOperator op, Type left, Type right);

/// \p text of type \p from as one of type \p to. A Value becomes native only where its kind is certain; a native one becomes
/// a Value where C++ wouldn't find the way by itself.
std::string converted(const std::string& text, Type from, Type to);

} // namespace pozhil::resolved::writer

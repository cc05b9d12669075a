#pragma once

#include "language/rows.h"
#include "language/token_type.h"

#include <string_view>

namespace pozhil::language {

/// What an operator does with its operands.
enum class OperatorKind {
    Logical,    ///< joins two truth values; the right one is asked only when it matters
    Bitwise,    ///< works on the bits of whole numbers
    Comparison, ///< tells how two values stand to each other
    Arithmetic, ///< calculates
    Join,       ///< makes one text of two values
    Unary,      ///< stands before its only operand
    Compound,   ///< calculates with a variable and a value and keeps the result in the variable
    Step        ///< a compound assignment that is named after counting by one
};

/// Level of an operator that doesn't stand between two operands of an expression.
constexpr int NO_LEVEL = -1;

/// One operator word.
struct Operator {
    std::string_view word;
    OperatorKind kind;
    TokenType token;
    /// How tightly a binary operator binds: the higher, the tighter. Equal levels group to the left.
    int level;
    /// What C++ calls it; empty for an operator that is always a call of the runtime.
    std::string_view symbol;
    /// The symbol of the calculation in a compound assignment or a step, empty for all others.
    std::string_view arithmetic;
};

/// All operators, the loosest binary ones first.
Rows<Operator> operators();

/// The operator of this word, null if there is none.
const Operator* findOperator(std::string_view word);

/// The operator of this word if it is of this kind, null otherwise.
const Operator* findOperator(std::string_view word, OperatorKind kind);

/// The symbol of the calculation in the compound assignment or step \p word, which may also be the symbol of a compound
/// assignment ("+="). Empty for anything else.
std::string_view compoundArithmetic(std::string_view word);

} // namespace pozhil::language

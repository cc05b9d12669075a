#pragma once

#include "analysis/second/resolved/program.h"
#include "parser/tree/visit.h"

namespace pozhil::resolved {

/// All expressions, those that programs use most first.
using ExpressionClasses =
    NodeClasses<VariableRead, WholeLiteral, TextLiteral, Binary, FunctionCall, MemberRead, MethodCall, BuiltinCall,
                ElementRead, TruthLiteral, DecimalLiteral, Logical, Unary, Construction, ValueCall, ListLiteral,
                MapLiteral, FunctionValue, BuiltinValue, Conditional, AssignmentValue, NothingLiteral>;

/// All statements, those that programs use most first.
using StatementClasses = NodeClasses<Evaluation, Assignment, Print, If, Return, CountingLoop, EachLoop, While, Block,
                                     FunctionDefinition, Break, Continue, Pass, Switch, Try, Wait>;

/// Hands an expression to the overload of \p visitor.visit for its class.
/// \return false for null
template <class Visitor> bool visitExpression(Visitor& visitor, const Expression* expression) {
    return visitNode(visitor, expression, ExpressionClasses());
}

/// Hands a statement to the overload of \p visitor.visit for its class.
/// \return false for null
template <class Visitor> bool visitStatement(Visitor& visitor, const Statement* statement) {
    return visitNode(visitor, statement, StatementClasses());
}

} // namespace pozhil::resolved

#pragma once

#include "parser/tree/application.h"
#include "parser/tree/database.h"
#include "parser/tree/definitions.h"
#include "parser/tree/expressions.h"
#include "parser/tree/statements.h"
#include "parser/tree/widgets.h"

namespace pozhil {

/// Classes of nodes that a dispatch tells apart.
template <class... Nodes> struct NodeClasses {};

/// All expressions, those that programs use most first.
using ExpressionClasses =
    NodeClasses<VariableAccess, NumberLiteral, StringLiteral, CallExpression, BinaryExpression, AssignmentExpression,
                GetExpression, IndexExpression, BooleanLiteral, DoubleLiteral, GroupingExpression, LogicalExpression,
                UnaryExpression, ListLiteral, MapLiteral, SetMemberExpression, LambdaExpression, TernaryExpression,
                CharLiteral, ColorExpression, RTDBInsertExpression, RTDBUpdateExpression, RTDBDeleteExpression,
                WidgetExpression>;

/// All statements, those that programs use most first. A widget has subclasses and is told apart by a cast.
using StatementClasses =
    NodeClasses<ExpressionStatement, PrintStatement, IfStatement, ReturnStatement, ForStatement, WhileStatement,
                FunctionDefinitionStatement, VarDeclaration, CompoundAssignmentStatement, IncrementStatement,
                SetStatement, BlockStatement, BreakStatement, ContinueStatement, PassStatement, TryCatchStatement,
                SwitchStatement, WaitStatement, SetStateStatement, StructDefinitionStatement,
                AbstractStructDefinitionStatement, RTDBReadStatement, WebAppNode, LogicBlockNode>;

/// Calls \p visitor.visit with \p node as the one of \p Nodes that it is.
/// \return false if it is none of them
template <class Visitor, class Root, class... Nodes>
bool visitNode(Visitor& visitor, const Root* node, NodeClasses<Nodes...>) {
    const auto visitAs = [&](const auto* one) {
        if (one != nullptr) {
            visitor.visit(*one);
        }
        return one != nullptr;
    };
    return (visitAs(nodeCast<Nodes>(node)) || ...);
}

/// Hands an expression to the overload of \p visitor.visit for its class.
/// \return false for null and for an expression that only widgets read, such as a percentage
template <class Visitor> bool visitExpression(Visitor& visitor, const Expression* expression) {
    return visitNode(visitor, expression, ExpressionClasses());
}

/// Hands a statement to the overload of \p visitor.visit for its class.
/// \return false for null and for a statement that stands in one place of an application only, such as its header
template <class Visitor> bool visitStatement(Visitor& visitor, const Statement* statement) {
    if (visitNode(visitor, statement, StatementClasses())) {
        return true;
    }
    const auto* widget = dynamic_cast<const WidgetNode*>(statement);
    if (widget != nullptr) {
        visitor.visit(*widget);
    }
    return widget != nullptr;
}

} // namespace pozhil

#pragma once

#include "parser/tree/application.h"
#include "parser/tree/database.h"
#include "parser/tree/definitions.h"
#include "parser/tree/expressions.h"
#include "parser/tree/statements.h"
#include "parser/tree/visit.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// What only the second edition of the language has. The rest of its tree is that of the first.

namespace pozhil {

/// A map whose keys are expressions.
struct KeyedMapLiteral : Expression {
    std::vector<std::pair<ExpressionPtr, ExpressionPtr>> entries;
};

/// A function value with a block: வினை ( names ) : and statements on lines of their own.
struct FunctionExpression : Expression {
    FunctionExpression(std::vector<Param> theParameters, std::unique_ptr<BlockStatement> theBody)
        : parameters(std::move(theParameters)), body(std::move(theBody)) {}

    std::vector<Param> parameters;
    std::unique_ptr<BlockStatement> body;
};

/// place = value, or with a compound word, for every kind of place, as a statement or inside of an expression.
struct PlaceAssignment : Expression {
    PlaceAssignment(ExpressionPtr theTarget, Token theOp, ExpressionPtr theValue)
        : target(std::move(theTarget)), op(std::move(theOp)), value(std::move(theValue)) {}

    ExpressionPtr target;
    /// "=" or the compound word.
    Token op;
    /// Null for ஒன்றுசேர் and ஒன்றுகழி without an amount.
    ExpressionPtr value;
};

/// பொது அ, ஆ in a function: these names are variables of the file.
struct FileVariablesStatement : Statement {
    explicit FileVariablesStatement(std::vector<Token> theNames) : names(std::move(theNames)) {}

    std::vector<Token> names;
};

/// நூஇறக்கி "path"
struct ImportStatement : Statement {
    explicit ImportStatement(std::string thePath) : path(std::move(thePath)) {}

    /// As it is written.
    std::string path;
};

/// வகை: names for the numbers from 0 on.
struct EnumerationStatement : Statement {
    EnumerationStatement(Token theName, std::vector<Token> theMembers)
        : name(std::move(theName)), members(std::move(theMembers)) {}

    Token name;
    std::vector<Token> members;
};

/// Expressions of the second edition, those that programs use most first.
using SecondExpressionClasses =
    NodeClasses<VariableAccess, NumberLiteral, StringLiteral, CallExpression, BinaryExpression, PlaceAssignment,
                GetExpression, IndexExpression, BooleanLiteral, DoubleLiteral, GroupingExpression, LogicalExpression,
                UnaryExpression, ListLiteral, KeyedMapLiteral, LambdaExpression, FunctionExpression, TernaryExpression,
                RTDBInsertExpression, RTDBUpdateExpression, RTDBDeleteExpression>;

/// Statements of the second edition, those that programs use most first.
using SecondStatementClasses =
    NodeClasses<ExpressionStatement, PrintStatement, IfStatement, ReturnStatement, ForStatement, WhileStatement,
                FunctionDefinitionStatement, BlockStatement, BreakStatement, ContinueStatement, PassStatement,
                TryCatchStatement, SwitchStatement, WaitStatement, StructDefinitionStatement,
                AbstractStructDefinitionStatement, FileVariablesStatement, ImportStatement, EnumerationStatement,
                WebAppNode, RTDBReadStatement>;

} // namespace pozhil

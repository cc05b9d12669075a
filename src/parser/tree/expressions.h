#pragma once

#include "parser/tree/node.h"
#include "scanner/token.h"

#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// A whole number as scanned, or the ordinal of an enumeration member.
struct NumberLiteral : Expression {
    explicit NumberLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// A number that holds a point.
struct DoubleLiteral : Expression {
    explicit DoubleLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// Text without its quotes.
struct StringLiteral : Expression {
    explicit StringLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// One letter, of as many code points as the source gives it.
struct CharLiteral : Expression {
    explicit CharLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// The word மெய் or பொய்.
struct BooleanLiteral : Expression {
    explicit BooleanLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// A number with its percent sign; only widgets read it.
struct PercentageLiteral : Expression {
    explicit PercentageLiteral(std::string theValue) : value(std::move(theValue)) {}

    std::string value;
};

/// A name that is read.
struct VariableAccess : Expression {
    explicit VariableAccess(std::string theName) : name(std::move(theName)) {}

    std::string name;
};

/// A colour: the text of a string that starts with "#", or a colour word.
struct ColorExpression : Expression {
    ColorExpression(std::string text, bool theIsHex) : isHex(theIsHex) {
        (isHex ? hexValue : colorName) = std::move(text);
    }

    std::string hexValue;
    std::string colorName;
    bool isHex;
};

/// An expression in parentheses.
struct GroupingExpression : Expression {
    explicit GroupingExpression(ExpressionPtr theInner) : inner(std::move(theInner)) {}

    ExpressionPtr inner;
};

/// A list: elements in source order.
struct ListLiteral : Expression {
    ExpressionList elements;
};

/// A map: entries in source order, repeated keys kept.
struct MapLiteral : Expression {
    std::vector<std::pair<std::string, ExpressionPtr>> entries;
};

/// An operator word before its operand.
struct UnaryExpression : Expression {
    UnaryExpression(Token theOp, ExpressionPtr theRight) : op(std::move(theOp)), right(std::move(theRight)) {}

    Token op;
    ExpressionPtr right;
};

/// An operator word between two operands.
struct BinaryExpression : Expression {
    BinaryExpression(ExpressionPtr theLeft, Token theOp, ExpressionPtr theRight)
        : left(std::move(theLeft)), op(std::move(theOp)), right(std::move(theRight)) {}

    ExpressionPtr left;
    Token op;
    ExpressionPtr right;
};

/// மற்றும் or அல்லது between two operands.
struct LogicalExpression : Expression {
    LogicalExpression(ExpressionPtr theLeft, Token theOp, ExpressionPtr theRight)
        : left(std::move(theLeft)), op(std::move(theOp)), right(std::move(theRight)) {}

    ExpressionPtr left;
    Token op;
    ExpressionPtr right;
};

/// A choice between two values.
struct TernaryExpression : Expression {
    TernaryExpression(ExpressionPtr theCondition, ExpressionPtr theThenBranch, ExpressionPtr theElseBranch)
        : condition(std::move(theCondition)), thenBranch(std::move(theThenBranch)),
          elseBranch(std::move(theElseBranch)) {}

    ExpressionPtr condition;
    ExpressionPtr thenBranch;
    ExpressionPtr elseBranch;
};

/// A call.
struct CallExpression : Expression {
    CallExpression(ExpressionPtr theCallee, ExpressionList theArguments)
        : callee(std::move(theCallee)), arguments(std::move(theArguments)) {}

    ExpressionPtr callee;
    ExpressionList arguments;
};

/// A member that is read.
struct GetExpression : Expression {
    GetExpression(ExpressionPtr theObject, Token theMember)
        : object(std::move(theObject)), member(std::move(theMember)) {}

    ExpressionPtr object;
    Token member;
};

/// A member that is written.
struct SetMemberExpression : Expression {
    SetMemberExpression(ExpressionPtr theObject, Token theMember, ExpressionPtr theValue)
        : object(std::move(theObject)), member(std::move(theMember)), value(std::move(theValue)) {}

    ExpressionPtr object;
    Token member;
    ExpressionPtr value;
};

/// An element of a list, map or text.
struct IndexExpression : Expression {
    IndexExpression(ExpressionPtr theObject, ExpressionPtr theIndex)
        : object(std::move(theObject)), index(std::move(theIndex)) {}

    ExpressionPtr object;
    ExpressionPtr index;
};

/// A variable that is written, by "=" or a compound assignment word.
struct AssignmentExpression : Expression {
    AssignmentExpression(std::string theName, Token theOp, ExpressionPtr theValue)
        : name(std::move(theName)), op(std::move(theOp)), value(std::move(theValue)) {}

    std::string name;
    Token op;
    ExpressionPtr value;
};

/// A function value whose body is one expression.
struct LambdaExpression : Expression {
    LambdaExpression(std::vector<Token> theParameters, ExpressionPtr theBody)
        : parameters(std::move(theParameters)), body(std::move(theBody)) {}

    std::vector<Token> parameters;
    ExpressionPtr body;
};

} // namespace pozhil

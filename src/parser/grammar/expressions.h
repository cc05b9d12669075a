#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Operators, calls and function values, from the loosest to the tightest.
class ExpressionGrammar : public Grammar {
public:
    using Grammar::Grammar;

    ExpressionPtr parseExpression();

    /// வினை [ ( ] names [ ) ] : expr
    ExpressionPtr parseLambdaExpression();

private:
    ExpressionPtr parseAssignment();
    ExpressionPtr parseAssignedValue(ExpressionPtr left);
    bool isArrowAt(std::size_t offset) const;
    bool isArrowFunctionAhead();
    ExpressionPtr parseArrowFunction();
    ExpressionPtr parseTernary();
    ExpressionPtr parseBinary(int loosestLevel);
    ExpressionPtr parseUnary();
    ExpressionPtr parseCall();
    ExpressionPtr parseMember(ExpressionPtr object);
    ExpressionList parseArguments(std::int32_t line);
    ExpressionPtr parseIndexExpression(ExpressionPtr object, std::int32_t line);
};

} // namespace pozhil

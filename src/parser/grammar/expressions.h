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
    ExpressionPtr parseAssignedValue(ExpressionPtr left, std::size_t first);
    bool isArrowAt(std::size_t offset) const;
    bool isArrowFunctionAhead();
    ExpressionPtr parseArrowFunction();
    ExpressionPtr parseTernary();
    ExpressionPtr parseBinary(int loosestLevel);
    ExpressionPtr parseUnary();
    ExpressionPtr parseCall();
    ExpressionPtr parseMember(ExpressionPtr object, std::size_t first);
    ExpressionList parseArguments(std::int32_t line);
    ExpressionPtr parseIndex(std::int32_t line);
};

} // namespace pozhil

#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Values: operators, assignments, calls, members, elements.
class ExpressionGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// A whole value, which may be an assignment.
    /// \throws SyntaxFault
    ExpressionPtr parseExpression();

    /// The value after a word such as எனில், in which "=" is most likely meant to be சமம்.
    /// \throws SyntaxFault
    ExpressionPtr parseCondition();

    /// A value in brackets of its own, where "=" assigns again.
    /// \throws SyntaxFault
    ExpressionPtr parseInner();

    /// Runs \p parse for what stands in a value but not in its condition, so that "=" assigns there.
    template <class Parse> auto outsideCondition(const Parse& parse) {
        const ScopedValue<bool> outside(isInCondition_, false);
        return parse();
    }

    /// The values of a call whose bracket at \p opening is taken, and the closing bracket.
    /// \throws SyntaxFault
    ExpressionList parseArguments(std::size_t opening);

private:
    ExpressionPtr parseAssignment();
    ExpressionPtr parseAssignedValue(ExpressionPtr target, std::size_t first);
    ExpressionPtr parseMistakenComparison(ExpressionPtr left, std::size_t first);
    bool isArrowFunctionAhead() const;
    ExpressionPtr parseTernary();
    ExpressionPtr parseBinary(int loosestLevel);
    void checkComparison(const Token& op, std::size_t opIndex, const Expression& left, const Expression& right);
    ExpressionPtr parseUnary();
    ExpressionPtr parsePostfix();
    bool isValueOver() const;
    ExpressionPtr parseMember(ExpressionPtr object, std::size_t first);

    bool isInCondition_ = false;
};

} // namespace pozhil::second

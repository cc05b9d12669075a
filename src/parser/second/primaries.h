#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// The innermost parts of values: literals, names, and what stands in brackets.
class PrimaryGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// \throws SyntaxFault
    ExpressionPtr parsePrimary();

private:
    ExpressionPtr parseNumber();
    ExpressionPtr parsePercentage();
    ExpressionPtr parseGrouping();
    ExpressionPtr parseList();
    ExpressionPtr parseMap();
    ExpressionPtr parseKey();
    bool isNameHere() const;
    template <class Node> ExpressionPtr parseLeaf();
};

} // namespace pozhil::second

#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// The innermost parts of expressions: literals, names, and what stands in brackets.
class PrimaryGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// Whether a line may end between a key of a map and its colon.
    enum class KeyLayout { Kept, Skipped };

    ExpressionPtr parsePrimary();

    /// key : value { , key : value }, up to the closing brace.
    void parseMapEntries(MapLiteral& map, KeyLayout afterKey);

private:
    ExpressionPtr parseGrouping();
    ExpressionPtr parseLiteral();
    ExpressionPtr parseName();
    template <class Node> ExpressionPtr makeLeaf();
    ExpressionPtr parseText();
    ExpressionPtr parseListLiteral();
    ExpressionPtr parseMapLiteral();
};

} // namespace pozhil

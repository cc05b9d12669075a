#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Indented blocks and what opens and closes them.
class BlockGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// The statements after a colon, from the line's end to the closing DEDENT.
    std::unique_ptr<BlockStatement> parseBlockStatement(bool inStruct);

    /// A colon and the block after it.
    std::unique_ptr<BlockStatement> parseColonAndBlock();

    /// The colon, line end and indent that open a list of members. Faults are raised at \p line, -1 being the current.
    void parseIndentedHeader(std::int32_t line = -1);

    /// The line end that a statement needs, unless it is the last of its block or its own block has just been closed.
    /// \param isNull whether the statement left no node
    void endStatementInBlock(bool isNull);
};

} // namespace pozhil

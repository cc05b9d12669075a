#pragma once

#include "base/scoped_value.h"
#include "parser/second/grammar.h"

namespace pozhil::second {

/// Blocks of statements.
class BlockGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// The colon after a statement's head, and its block.
    /// \throws SyntaxFault
    BlockPtr parseColonAndBlock();

    /// The block after a colon: indented on the lines below, or simple statements on the same line.
    /// \throws SyntaxFault
    BlockPtr parseBlock();

    /// The same for the body of a function.
    /// \throws SyntaxFault
    BlockPtr parseFunctionBody();

    /// The statements in a bracket that has lines of its own, up to its end.
    /// \throws SyntaxFault
    StatementList parseBracketed(TokenType closing);

    /// The same where one value may stand instead.
    /// \param[out] value takes that value; null if there are statements
    /// \throws SyntaxFault
    StatementList parseBracketedOrValue(TokenType closing, ExpressionPtr& value);

    /// Runs \p parseOne for every line of a block of another kind, such as the members of a structure, after its colon.
    /// \throws SyntaxFault if there is no block
    template <class ParseOne> void parseLines(const ParseOne& parseOne) {
        consumeColon();
        beginBlock();
        const ScopedValue<int> noStrayIndents(strayIndents_, 0);
        Parts siblings(height_);
        while (!isBlockOver()) {
            siblings.next();
            recovery_.attempt([&] {
                if (!takeStrayIndent()) {
                    parseOne();
                }
            });
        }
        endBlock();
    }

    /// Takes an indentation that begins no block, and tells so.
    /// \return false if none comes next
    bool takeStrayIndent();

    /// Takes the end of such an indentation.
    /// \return false if none comes next
    bool takeStrayDedent();

private:
    void beginBlock();
    bool isBlockOver();
    void endBlock();
    void parseStatementInto(BlockStatement& block);
    BlockPtr parseOneLine();

    /// Indentations that began no block and are open still.
    int strayIndents_ = 0;
};

} // namespace pozhil::second

#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Statements that each begin with a word of their own: branches, loops, printing and leaving.
class ControlFlowGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// அச்சிடு expr { , expr }, in parentheses or without.
    StatementPtr parsePrintStatement();

    /// எனில் expr : block, then இல்லைஎனில் and இல்லை branches that stand directly after the block.
    StatementPtr parseIfStatement();

    /// சுற்று expr : block
    StatementPtr parseWhileStatement();

    /// ஒவ்வொன்றாக name இல் expr : block
    StatementPtr parseForStatement();

    /// தேர்வு expr : then நிலை expr : blocks and at most one மற்றவை : block, in any order.
    StatementPtr parseSwitchStatement();

    /// முயற்சி : block பிடி [ ( name ) ] : block
    StatementPtr parseTryCatchStatement();

    /// காத்திரு expr
    StatementPtr parseWaitStatement();

    /// திரும்பு [ expr ], in a function only.
    StatementPtr parseReturnStatement();
};

} // namespace pozhil

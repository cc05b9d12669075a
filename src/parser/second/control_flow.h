#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Conditions, loops, choices, and the handling of errors.
class ControlFlowGrammar : public Grammar {
public:
    using Grammar::Grammar;

    // Each begins at its own word and throws a SyntaxFault if it can't be parsed.
    StatementPtr parseIf();
    StatementPtr parseWhile();
    StatementPtr parseFor();
    StatementPtr parseSwitch();
    StatementPtr parseTry();

private:
    ExpressionPtr parseCondition();
    StatementPtr parseElse();
    void parseCase(SwitchStatement& statement);
    std::string parseErrorName(ByteRange& range);
};

} // namespace pozhil::second

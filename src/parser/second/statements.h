#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Which rule each statement goes by, and the simple statements.
class StatementGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// All statements of the file. What can't be parsed is told and left out.
    Program parseProgram();

    /// The statement that comes next, with its end.
    /// \throws SyntaxFault
    StatementPtr parseStatement();

    /// The same on the line of a colon, where nothing can have a block of its own.
    /// \throws SyntaxFault
    StatementPtr parseSimpleStatement();

    /// Whether the statement that comes next is a value.
    bool isValueAhead() const;

    /// Whether the words from here on define a function.
    bool isFunctionAhead() const;

private:
    using Rule = StatementPtr (*)(FileParse& parse);

    Rule chooseCompoundRule() const;
    Rule chooseSimpleRule() const;
    bool isDefinitionAhead() const;
    bool isHeadAhead() const;
    void checkReservedTarget() const;
    void checkStrayPart() const;

    template <class Node> StatementPtr parseWord() {
        const std::size_t first = tokens_.position();
        tokens_.advance();
        return make<Node>(first);
    }
    StatementPtr parsePrint();
    StatementPtr parseWait();
    StatementPtr parseReturn();
    StatementPtr parseImport();
    StatementPtr parseFileVariables();
    StatementPtr parseValueStatement();
};

} // namespace pozhil::second

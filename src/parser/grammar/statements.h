#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// A whole file, and which rule each statement goes by.
class StatementGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// The statements of the file, after those that it imports.
    /// \throws Fault
    Program parseProgram();

    /// Chooses the statement by its first token. Null without a fault means that there was none to parse, or that it
    /// leaves no node.
    /// \param inStruct whether it stands in the body of a structure
    StatementPtr parseStatement(bool inStruct);

private:
    void parseTopLevelStatement(Program& program);
    StatementPtr chooseStatement(bool inStruct);
    void checkStatementStart();
    StatementPtr parseStatementFromExpression(bool inStruct);
    StatementPtr parseExpressionStatement(ExpressionPtr expression);

    /// Where the searches of checkStatementStart along the line ended without a find.
    std::size_t functionSearchEnd_ = 0;
    std::size_t listSearchEnd_ = 0;
};

} // namespace pozhil

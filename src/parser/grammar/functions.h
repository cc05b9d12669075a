#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Functions and what else is defined by name outside structures.
class FunctionGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// செயல் name ( params ) : block
    StatementPtr parseFunctionDefinitionStatement(bool inStruct);

    /// செயல் name ( params ) : block, directly in the body of a structure.
    std::unique_ptr<FunctionDefinitionStatement> parseMethod();

    /// வகை name : one member a line. An enumeration leaves no node: its members are folded to numbers where they are
    /// used.
    StatementPtr parseVagaiStatement();

    /// வடிவமைப்பு name : the methods that a child must have, one a line.
    StatementPtr parseAbstractStructStatement();

    /// Whether the cursor is in the body of a function.
    bool isInsideFunction() const { return depth_ > 0; }

private:
    std::vector<Param> parseParameters(std::int32_t openingLine, std::int32_t closingLine, bool mutableMayBeName);
    std::unique_ptr<BlockStatement> parseFunctionBody();
    AbstractMethod parseAbstractMethod();

    int depth_ = 0;
};

} // namespace pozhil

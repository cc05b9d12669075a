#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Structures and their members.
class StructureGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// கட்டமைப்பு name [ ( parent ) ] : members
    /// \throws SyntaxFault
    StatementPtr parseStructure();

private:
    void parseMember(StructDefinitionStatement& structure);
    void parseGroup(StructDefinitionStatement& structure, bool isPrivate);
    void parseMethodOrField(StructDefinitionStatement& structure, bool isPrivate);
    std::unique_ptr<VarDeclaration> parseField();
};

} // namespace pozhil::second

#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Structures and their members.
class StructureGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// கட்டமைப்பு name [ ( parent ) ] : members
    StatementPtr parseStructDefinitionStatement();

    /// name = expr
    StatementPtr parseFieldDeclaration();

private:
    void parseStructMember(StructDefinitionStatement& structure);
    void parseVisibilityGroup(StructDefinitionStatement& structure, bool isPrivate);
    void parseSingleMember(StructDefinitionStatement& structure, bool isPrivate);
    void addMember(StructDefinitionStatement& structure, StatementPtr member, bool isPrivate);
    void checkParent(const StructDefinitionStatement& structure) const;
};

} // namespace pozhil

#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Functions, enumerations, abstract structures.
class DefinitionGrammar : public Grammar {
public:
    using Grammar::Grammar;

    // Each begins at its own word and throws a SyntaxFault if it can't be parsed.
    StatementPtr parseFunction();
    StatementPtr parseEnumeration();
    StatementPtr parseAbstractStructure();

    /// செயல் in a structure, whose first parameter is the object.
    std::unique_ptr<FunctionDefinitionStatement> parseMethod();

private:
    std::unique_ptr<FunctionDefinitionStatement> parseDefinition(const char* what, bool isMethod);
    void checkSelf(const std::vector<Param>& params, ByteRange nameRange, const Token& name);
    void parseMembers(std::vector<Token>& members, std::vector<ByteRange>& ranges);
    AbstractMethod parseAbstractMethod();
};

} // namespace pozhil::second

#pragma once

#include "parser/syntax_tree.h"

#include <map>
#include <string>
#include <vector>

namespace pozhil {

/// Parameters of every function that stands outside all others, by name.
using FunctionTable = std::map<std::string, std::vector<Param>>;
/// Structures by name. The nodes are owned by the program or by the declarations.
using StructTable = std::map<std::string, const StructDefinitionStatement*>;
/// Abstract structures by name. The nodes are owned by the program or by the declarations.
using AbstractStructTable = std::map<std::string, const AbstractStructDefinitionStatement*>;
/// Ordinals of the members of every enumeration.
using EnumTable = std::map<std::string, std::map<std::string, int>>;

/// What a file and its imports declare.
struct Declarations {
    /// Adds what \p imported declares; a name that is known already keeps its meaning.
    void merge(Declarations imported);

    FunctionTable functions;
    StructTable structs;
    AbstractStructTable abstractStructs;
    EnumTable enums;
    /// Members of structures that are neither field nor method: no part of the tree, but the tables may point into them.
    StatementList droppedStatements;
};

} // namespace pozhil

#pragma once

#include "language/var_type.h"
#include "parser/tree/statements.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// A parameter of a function; isMutable marks one that is passed by reference (மாற்று).
struct Param {
    Token name;
    bool isMutable = false;
};

/// A method that an abstract structure asks of its children.
struct AbstractMethod {
    Token name;
    std::vector<Param> params;
};

/// A field of a structure, or a declaration by the rare path of an assignment.
struct VarDeclaration : Statement {
    VarDeclaration(std::string theName, ExpressionPtr theInitializer, VarType theType)
        : name(std::move(theName)), initializer(std::move(theInitializer)), type(theType) {}

    std::string name;
    ExpressionPtr initializer;
    VarType type;
    bool isPrivate = false;
};

/// செயல்: a function, nested function or method.
struct FunctionDefinitionStatement : Statement {
    FunctionDefinitionStatement(Token theName, std::vector<Param> theParams, std::unique_ptr<BlockStatement> theBody)
        : name(std::move(theName)), params(std::move(theParams)), body(std::move(theBody)) {}

    Token name;
    std::vector<Param> params;
    std::unique_ptr<BlockStatement> body;
    bool isPrivate = false;
};

/// கட்டமைப்பு: a structure. Without a parent, parent is a copy of name.
struct StructDefinitionStatement : Statement {
    StructDefinitionStatement(Token theName, Token theParent, bool theHasParent)
        : name(std::move(theName)), parent(std::move(theParent)), hasParent(theHasParent) {}

    Token name;
    Token parent;
    bool hasParent;
    std::vector<std::unique_ptr<VarDeclaration>> fields;
    std::vector<std::unique_ptr<FunctionDefinitionStatement>> methods;
};

/// வடிவமைப்பு: an abstract structure.
struct AbstractStructDefinitionStatement : Statement {
    AbstractStructDefinitionStatement(Token theName, std::vector<AbstractMethod> theMethods)
        : name(std::move(theName)), methods(std::move(theMethods)) {}

    Token name;
    std::vector<AbstractMethod> methods;
};

} // namespace pozhil

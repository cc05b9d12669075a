#pragma once

#include "analysis/scope.h"
#include "analysis/structures.h"
#include "parser/syntax_tree.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace pozhil {

/// Whether it is a list, a map or an object.
bool isContainer(VarType kind);
bool isNumber(VarType kind);

/// The best guess at a value's kind before the program runs; Any is the usual answer.
class Kinds {
public:
    /// All of them outlive the object.
    Kinds(const Scope& scope, const Structures& structures, const FaultSite& faults)
        : scope_(scope), structures_(structures), faults_(faults) {}

    /// \throws Fault for தான் outside a structure
    VarType of(const Expression* expression);

    /// Whether what is visited belongs to a structure, where தான் is known.
    void setInStructure(bool isInStructure) { isInStructure_ = isInStructure; }
    bool isInStructure() const { return isInStructure_; }

private:
    /// What was found, and when: an assignment in between can change what a name holds.
    struct Remembered {
        std::uint64_t epoch;
        VarType kind;
    };

    VarType ofCall(const CallExpression& call);
    VarType ofName(const VariableAccess& name) const;
    VarType ofMember(const GetExpression& get) const;
    VarType ofBinary(const BinaryExpression& binary);

    const Scope& scope_;
    const Structures& structures_;
    const FaultSite& faults_;
    bool isInStructure_ = false;
    std::unordered_map<const Expression*, Remembered> remembered_;
};

} // namespace pozhil

#pragma once

#include "analysis/fault_site.h"
#include "parser/parser.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace pozhil {

/// A structure and its parents, itself first.
using Lineage = std::vector<const StructDefinitionStatement*>;

/// The name of the method that constructs an object.
constexpr const char* CONSTRUCTOR = "துவக்கம்";

/// Whether \p name is the object itself inside its methods: தான் or self.
bool isSelfName(std::string_view name);
bool ownsConstructor(const StructDefinitionStatement& structure);

/// The structures of a program and how they descend from each other.
class Structures {
public:
    Structures(const StructTable& structures, const AbstractStructTable& abstracts, const FaultSite& faults);

    /// From here on, in the order of the text, objects of the structure can be made.
    void define(const std::string& name) { defined_.insert(name); }
    bool isDefined(const std::string& name) const { return defined_.count(name) != 0; }

    /// All structures of the program, wherever they stand in it.
    const StructTable& all() const { return structures_; }

    /// Whether any structure keeps a field of this name private.
    bool isPrivateField(const std::string& name) const { return privateFields_.count(name) != 0; }

    /// The C++ base of a structure: its parent, or the base of all objects.
    /// \throws Fault for a parent that doesn't exist
    std::string baseOf(const StructDefinitionStatement& structure) const;

    /// A structure and its parents, itself first, up to one without a parent or with an abstract one.
    /// \throws Fault where a parent doesn't exist, and where the parents never end
    Lineage lineage(const std::string& name) const;

    /// The structure whose துவக்கம் constructs an object: itself or the nearest parent that has one, null for none.
    const StructDefinitionStatement* constructorOwner(const std::string& name) const;

    const StructDefinitionStatement& definition(const std::string& name) const { return *structures_.at(name); }

private:
    const StructTable& structures_;
    const AbstractStructTable& abstracts_;
    const FaultSite& faults_;
    std::set<std::string> defined_;
    std::set<std::string> privateFields_;
};

} // namespace pozhil

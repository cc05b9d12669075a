#include "analysis/structures.h"

#include <algorithm>

namespace pozhil {

bool isSelfName(std::string_view name) {
    return name == "தான்" || name == "self";
}

bool ownsConstructor(const StructDefinitionStatement& structure) {
    return std::any_of(structure.methods.begin(), structure.methods.end(),
                       [](const auto& method) { return method->name.value == CONSTRUCTOR; });
}

Structures::Structures(const StructTable& structures, const AbstractStructTable& abstracts, const FaultSite& faults)
    : structures_(structures), abstracts_(abstracts), faults_(faults) {
    for (const auto& entry : structures_) {
        for (const auto& field : entry.second->fields) {
            if (field->isPrivate) {
                privateFields_.insert(field->name);
            }
        }
    }
}

std::string Structures::baseOf(const StructDefinitionStatement& structure) const {
    if (!structure.hasParent || abstracts_.count(structure.parent.value) != 0) {
        return "_StructBase";
    }
    if (structures_.count(structure.parent.value) == 0) {
        faults_.raise("பொழி-323", structure.name.line, "'" + structure.parent.value + "'");
    }
    return structure.parent.value;
}

Lineage Structures::lineage(const std::string& name) const {
    Lineage line;
    std::string next = name;
    while (abstracts_.count(next) == 0 || structures_.count(next) != 0) {
        const auto found = structures_.find(next);
        // A structure that was defined anew with one of its children as parent never ends.
        if (found == structures_.end() || line.size() > structures_.size()) {
            faults_.raise("பொழி-323", 0, "'" + next + "'");
        }
        line.push_back(found->second);
        if (!found->second->hasParent) {
            break;
        }
        next = found->second->parent.value;
    }
    return line;
}

const StructDefinitionStatement* Structures::constructorOwner(const std::string& name) const {
    const Lineage line = lineage(name);
    const auto owner = std::find_if(line.begin(), line.end(), [](const auto* one) { return ownsConstructor(*one); });
    return owner == line.end() ? nullptr : *owner;
}

} // namespace pozhil

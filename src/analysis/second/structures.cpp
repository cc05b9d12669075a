#include "analysis/second/structures.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/suggestions.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace pozhil::second {
namespace {

class StructureResolver {
public:
    explicit StructureResolver(Model& model) : model_(model) {}

    void resolve() {
        for (const auto& structure : model_.program.structures) {
            findParent(*structure);
        }
        for (const auto& structure : model_.program.structures) {
            breakCircle(*structure);
        }
        orderByParents();
        for (const auto& structure : model_.program.structures) {
            addFields(*structure);
            checkDemands(*structure);
        }
    }

private:
    void findParent(resolved::Structure& structure) {
        const auto* const tree = model_.structures[&structure].tree;
        if (tree == nullptr || !tree->hasParent) {
            return;
        }
        const std::string& name = tree->parent.value;
        const auto& visible = model_.visible[structure.file];
        const auto found = visible.find(name);
        if (found != visible.end() && found->second.structure != nullptr) {
            structure.parent = found->second.structure;
            return;
        }
        std::vector<std::string_view> known;
        for (const auto& [one, definition] : visible) {
            if (definition.structure != nullptr && definition.structure != &structure) {
                known.push_back(one);
            }
        }
        std::sort(known.begin(), known.end());
        model_.faults.add(fault::UNKNOWN_PARENT, model_.locations.ofPart(structure.file, &tree->parent, tree, name),
                          {name}, nearestAsQuestion(name, known));
    }

    /// Steps that meet the structure again are a circle; they can't be more than there are structures.
    void breakCircle(resolved::Structure& structure) {
        std::string way = structure.name;
        std::size_t steps = 0;
        for (const auto* one = structure.parent; one != nullptr && steps <= model_.program.structures.size();
             one = one->parent, ++steps) {
            way += " → " + one->name;
            if (one == &structure) {
                model_.faults.add(fault::PARENT_CIRCLE, structure.place, {structure.name, way});
                structure.parent = nullptr;
                return;
            }
        }
    }

    void orderByParents() {
        std::vector<std::unique_ptr<resolved::Structure>> waiting = std::move(model_.program.structures);
        std::unordered_map<const resolved::Structure*, std::size_t> indices;
        for (std::size_t index = 0; index < waiting.size(); ++index) {
            indices[waiting[index].get()] = index;
        }
        auto& ordered = model_.program.structures;
        ordered.clear();
        for (std::size_t index = 0; index < waiting.size(); ++index) {
            std::vector<std::size_t> line;
            for (const auto* one = waiting[index].get(); one != nullptr; one = one->parent) {
                const std::size_t own = indices.at(one);
                if (waiting[own] == nullptr) {
                    break;
                }
                line.push_back(own);
            }
            for (auto own = line.rbegin(); own != line.rend(); ++own) {
                ordered.push_back(std::move(waiting[*own]));
            }
        }
        for (const auto& structure : ordered) {
            if (structure->parent != nullptr) {
                model_.structures[structure->parent].children.push_back(structure.get());
            }
        }
    }

    void addFields(resolved::Structure& structure) {
        std::unordered_map<std::string_view, resolved::Place> known;
        StructureFacts& facts = model_.structures[&structure];
        for (const resolved::Function* method : structure.methods) {
            noteMember(known, method->name, method->place);
        }
        if (facts.tree == nullptr) {
            return;
        }
        for (const auto& field : facts.tree->fields) {
            const resolved::Place place =
                model_.locations.ofPart(structure.file, &field->name, field.get(), field->name);
            noteMember(known, field->name, place);
            structure.fields.push_back({field->name, place, nullptr, field->isPrivate});
        }
        for (const auto& [name, place] : facts.assigned) {
            if (known.count(name) == 0 && isNewBelow(structure, name)) {
                known.emplace(name, place);
                structure.fields.push_back({std::string(name), place, nullptr, false});
            }
        }
    }

    /// A member that a parent has isn't made anew.
    static bool isNewBelow(const resolved::Structure& structure, std::string_view name) {
        return structure.parent == nullptr ||
               (findField(*structure.parent, name).field == nullptr && findMethod(*structure.parent, name) == nullptr);
    }

    void noteMember(std::unordered_map<std::string_view, resolved::Place>& known, std::string_view name,
                    resolved::Place place) {
        const auto [first, isNew] = known.emplace(name, place);
        if (!isNew) {
            const bool isLater = place.range.begin > first->second.range.begin;
            const resolved::Place earlier = isLater ? first->second : place;
            model_.faults.add(fault::SECOND_DEFINITION, isLater ? place : first->second,
                              {std::string(name), std::to_string(model_.locations.lineOf(earlier))});
        }
    }

    /// A structure writes what its abstract parent asks for, with as many parameters.
    void checkDemands(const resolved::Structure& structure) {
        if (structure.parent == nullptr || structure.isAbstract) {
            return;
        }
        for (const resolved::Function* demanded : structure.parent->methods) {
            if (isWritten(*demanded)) {
                continue;
            }
            const auto own = std::find_if(structure.methods.begin(), structure.methods.end(),
                                          [&](const resolved::Function* one) { return one->name == demanded->name; });
            if (own == structure.methods.end()) {
                model_.faults.add(fault::MISSING_METHOD, structure.place,
                                  {structure.name, structure.parent->name, demanded->name});
            } else if ((*own)->parameters.size() != demanded->parameters.size()) {
                model_.faults.add(fault::OTHER_METHOD_COUNT, (*own)->place,
                                  {demanded->name, structure.parent->name, std::to_string(demanded->parameters.size()),
                                   std::to_string((*own)->parameters.size())});
            }
        }
    }

    bool isWritten(const resolved::Function& method) const {
        return model_.scopeOfFunction.at(&method)->body != nullptr;
    }

    Model& model_;
};

} // namespace

void resolveStructures(Model& model) {
    StructureResolver(model).resolve();
}

const resolved::Function* findMethod(const resolved::Structure& structure, std::string_view name) {
    for (const auto* one = &structure; one != nullptr; one = one->parent) {
        for (const resolved::Function* method : one->methods) {
            if (method->name == name) {
                return method;
            }
        }
    }
    return nullptr;
}

FoundField findField(const resolved::Structure& structure, std::string_view name) {
    for (const auto* one = &structure; one != nullptr; one = one->parent) {
        for (const resolved::Field& field : one->fields) {
            if (field.name == name) {
                return {&field, one};
            }
        }
    }
    return {};
}

bool maySeePrivate(const resolved::Structure* inside, const resolved::Structure* declaring) {
    while (inside != nullptr && inside != declaring) {
        inside = inside->parent;
    }
    return inside != nullptr;
}

std::vector<std::string_view> membersOf(const resolved::Structure& structure) {
    std::vector<std::string_view> members;
    std::unordered_set<std::string_view> known;
    std::vector<const resolved::Structure*> line;
    for (const auto* one = &structure; one != nullptr; one = one->parent) {
        line.push_back(one);
    }
    const auto add = [&](std::string_view name) {
        if (known.insert(name).second) {
            members.push_back(name);
        }
    };
    for (auto one = line.rbegin(); one != line.rend(); ++one) {
        for (const resolved::Field& field : (*one)->fields) {
            add(field.name);
        }
        for (const resolved::Function* method : (*one)->methods) {
            add(method->name);
        }
    }
    return members;
}

} // namespace pozhil::second

#pragma once

#include "analysis/hints/hint_list.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil {

/// How a name is used in a program.
struct NameUse {
    /// A node that holds the name, null if only parameters and definitions do
    const Expression* mention = nullptr;
    /// Where the one variable of the program is read first, and no native one hides it
    const Expression* read = nullptr;
    /// The function whose text alone names the variable, null for what stands outside of all
    const FunctionDefinitionStatement* function = nullptr;
    /// How many native variables of the name are known where the walk stands
    int natives = 0;
    bool wasNative = false;
    bool isAssigned = false;
    /// Whether whatever it is assigned is written as a list
    bool holdsListsOnly = true;
    bool isShared = false;
};

/// The names of the variables of a program, as a walk over it finds them.
class NameUses {
public:
    /// A node that names a variable in the function at hand.
    NameUse& mention(std::string_view name, const Expression& node);
    void read(std::string_view name, const Expression& node);
    /// \param node, value the assignment and what it assigns
    void assign(std::string_view name, const Expression& node, const Expression& value);
    /// An assignment that no expression makes, of a value that isn't known.
    void assign(std::string_view name);

    /// A parameter or variable of a loop, known up to the next leave that goes back before it.
    void addNative(std::string_view name);
    std::size_t depth() const { return natives_.size(); }
    void leave(std::size_t depth);

    /// The function that stands outside of all others and is walked; null outside.
    const FunctionDefinitionStatement* function = nullptr;

    const NameUse* find(std::string_view name) const;
    const std::unordered_map<std::string_view, NameUse>& all() const { return uses_; }

private:
    std::unordered_map<std::string_view, NameUse> uses_;
    std::vector<NameUse*> natives_;
};

} // namespace pozhil

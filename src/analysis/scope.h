#pragma once

#include "language/var_type.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// The names that are known at a place of the program: native variables of the function, and what the program's own
/// variables were last given.
class Scope {
public:
    bool isNative(const std::string& name) const { return natives_.count(name) != 0; }
    /// Whether the program has given the name a value, in or before what has been visited.
    bool isAssigned(const std::string& name) const { return kinds_.count(name) != 0; }
    /// All names that the program has given a value so far.
    std::vector<std::string_view> assignedNames() const;
    /// The kind of what a variable of the program was last given, Any for an unknown one.
    VarType kindOf(const std::string& name) const;

    void assign(const std::string& name, VarType kind);
    void addNative(const std::string& name);
    void removeNative(const std::string& name);

    /// How many names have become native so far. A scope is left by going back to the number at its start, in time that
    /// goes with its own names, however many stand outside.
    std::size_t depth() const { return log_.size(); }
    void leave(std::size_t depth);

    /// Changes whenever the meaning of a name may have changed.
    std::uint64_t epoch() const { return epoch_; }
    void changeMeanings() { ++epoch_; }

private:
    std::map<std::string, VarType> kinds_;
    std::set<std::string> natives_;
    /// What became native, in order. Names that were removed again may still stand here.
    std::vector<std::string> log_;
    std::uint64_t epoch_ = 0;
};

} // namespace pozhil

#pragma once

#include "analysis/second/resolved/program.h"
#include "diagnostics/second_fault.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace pozhil {
struct StructDefinitionStatement;
}

namespace pozhil::second {

struct Model;
struct Scope;

/// What can't be known of a program because parts of its sources could not be read: nothing is told that may come of
/// these. Without such parts nothing is in doubt.
class Doubt {
public:
    /// Looks for what the unread parts may have to do with.
    /// \param model with its scopes, structures and definitions
    void find(const Model& model);

    /// Whether any part of the program could not be read.
    bool isAny() const { return isAny_; }

    /// Whether a place lies in an unread part, or in a function that has one.
    bool covers(resolved::Place place) const;

    /// Whether an unread part may give the name another meaning than what could be read.
    bool mayMean(std::string_view name) const;

    /// Whether an unread part may give the variable a value.
    bool mayGive(const resolved::Variable& variable) const;

    /// Whether an unread part belongs to the function.
    bool isIn(const resolved::Function& function) const { return functions_.count(&function) != 0; }

    /// Whether a fault may come of an unread part.
    bool mayExplain(int number, resolved::Place place, const std::vector<std::string>& values) const;

private:
    void addWords(const Model& model);
    void addFunctions(const Model& model);
    void addFunction(const Model& model, const Scope& innermost);
    void addStructures(const Model& model);
    bool hasUnread(resolved::Place place) const;
    bool isParentUnread(const Model& model, const StructDefinitionStatement& child) const;
    bool isLikeWord(const std::string& name) const;

    /// Of a file.
    struct FileDoubt {
        /// What could not be read.
        std::vector<ByteRange> parts;
        /// Functions that have such a part.
        std::vector<ByteRange> functions;
        /// Whether a part outside of plain functions may give meanings to names that don't stand in it.
        bool mayNameMore = false;
        /// Variables of the file that a function with an unread part assigns by their names.
        std::unordered_set<std::string_view> assigned;
    };

    bool isAny_ = false;
    /// Of the whole program.
    bool mayNameMore_ = false;
    std::vector<FileDoubt> files_;
    std::set<std::string> words_;
    std::unordered_set<std::string> beginnings_;
    std::unordered_set<const resolved::Function*> functions_;
    /// What was found of names before, as they are asked about again and again.
    mutable std::unordered_map<std::string, bool> asked_;
};

} // namespace pozhil::second

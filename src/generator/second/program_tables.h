#pragma once

#include "analysis/second/resolved/program.h"
#include "generator/second/names.h"
#include "generator/second/source_places.h"
#include "language/second/builtins.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace pozhil::resolved::writer {

/// What stands in a program several times and is written once, by number.
template <class Key> class Numbered {
public:
    std::size_t numberOf(const Key& key) {
        const auto [known, isNew] = numbers_.emplace(key, rows_.size());
        if (isNew) {
            rows_.push_back(key);
        }
        return known->second;
    }
    /// In the order in which they were first asked for.
    const std::vector<Key>& rows() const { return rows_; }

private:
    std::vector<Key> rows_;
    std::unordered_map<Key, std::size_t> numbers_;
};

/// What everything that is written of a program shares.
struct ProgramTables {
    explicit ProgramTables(const Program& program)
        : names(program), places(program), isStoppable(!program.pages.empty()) {}

    Names names;
    SourcePlaces places;
    /// Whether what the program does is counted, so that what never ends can be stopped.
    bool isStoppable;
    Members members{};
    Numbered<std::string> texts{};
    /// Functions that come with the language and are used as values.
    Numbered<const language::second::Builtin*> builtinValues{};
};

/// One function of the emitted text as it is written.
struct CallScope {
    /// Null for the statements of a file.
    const Function* function = nullptr;
    int temporaries = 0;
    /// Reads that can take away what the variable holds.
    std::unordered_set<const VariableRead*> lastUses{};

    /// The name of a new local variable that no name of the program is like.
    std::string temporary(const std::string& prefix = "t") { return prefix + std::to_string(++temporaries); }
};

} // namespace pozhil::resolved::writer

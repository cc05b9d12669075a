#pragma once

#include "tools/language_server/names.h"

#include <optional>
#include <vector>

namespace pozhil::language_server {

/// What the value before a dot is certain to be.
struct KnownKind {
    /// Kinds of language::second::owner; NONE for an object.
    unsigned owners = 0;
    /// The structure of an object.
    std::optional<FoundSymbol> structure{};
};

/// The kind of what stands before the dot; nothing where that shows only when the program runs: of a variable it is
/// certain if all values that it is given are of one kind at sight.
/// \param files what is visible there, its own source first
std::optional<KnownKind> kindBeforeDot(const std::vector<NamedSource>& files, std::size_t dot);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/names.h"

#include <vector>

namespace pozhil::language_server {

/// A word in a source.
struct Reference {
    SourcePtr source;
    ByteRange place;
};

/// Where a symbol is meant, its declaration included: in its own source, in those that are open, and in what these import.
std::vector<Reference> referencesTo(const Workspace& workspace, const FoundSymbol& symbol);

} // namespace pozhil::language_server

#pragma once

#include "base/source_place.h"

#include <string>
#include <vector>

namespace pozhil::second {

/// A part of a source that could not be read, or not as it was meant.
struct UnreadPart {
    ByteRange range;
    /// The words and texts that stand in it, any of which may have been given a meaning there.
    std::vector<std::string> words;
    /// Those of them that end a line, or at a bracket: of longer names the rest may be missing.
    std::vector<std::string> beginnings;
    /// Whether it may have given a meaning to names that don't stand in it.
    bool mayNameMore = false;
};

/// What of a file could not be read.
struct Unread {
    /// In no particular order.
    std::vector<UnreadPart> parts;
    /// Whether the parse or the scan gave up, so that nothing is known of the rest.
    bool hasRest = false;
};

} // namespace pozhil::second

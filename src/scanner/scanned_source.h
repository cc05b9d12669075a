#pragma once

#include "base/source_place.h"
#include "diagnostics/fault_log.h"
#include "scanner/token.h"

#include <vector>

namespace pozhil {

/// A source and its tokens.
struct ScannedSource {
    SourcePtr source;
    /// Ending in END_OF_FILE
    std::vector<Token> tokens;
    /// Where each of the tokens stands: a text with its quotes, a line end as one byte, indentation and the end of the
    /// file as nothing between two bytes. Empty for tokens that no source was scanned to
    std::vector<ByteRange> places;
    /// What the scan went on after, in order
    std::vector<FoundFault> faults;
};

} // namespace pozhil

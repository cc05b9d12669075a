#pragma once

#include "front_end/front_end.h"
#include "front_end/second_edition.h"
#include "scanner/scanned_source.h"

#include <vector>

namespace pozhil::formatter {

/// A source as scanner and grammar understand it.
struct SourceReading {
    SourcePtr source;
    Edition edition = Edition::First;
    ScannedSource scanned;
    /// The bytes of all nodes of its tree, in no order.
    std::vector<ByteRange> nodes;
    /// Whether anything is wrong with it; the rest is then worth nothing.
    bool isFaulty = true;
};

/// Scans and parses a source. What is wrong with files that it imports is none of its faults.
SourceReading readSource(const SourcePtr& source, const FrontEndOptions& options);

/// Whether two sources are the same but for their blanks: each word, text, number and sign, byte for byte, of the same
/// kind, in the same lines of code, blocks and parts of the tree.
bool meanTheSame(const SourceReading& a, const SourceReading& b);

} // namespace pozhil::formatter

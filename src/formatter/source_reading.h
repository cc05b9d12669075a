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

/// Whether two sources that hold the same words mean the same: as programs without faults of the same edition, with the same
/// parts in their trees, and where lines and blocks count by themselves, with the same ones.
bool haveSameForm(const SourceReading& a, const SourceReading& b);

} // namespace pozhil::formatter

#pragma once

#include "front_end/front_end.h"
#include "tools/check/finding.h"

namespace pozhil::tools {

/// Takes a source of either edition, and all that it imports, the way of the compiler up to the text for g++, and tells
/// what is wrong with it, or if nothing is, what surely isn't meant.
///
/// Of a source of the first edition all faults of spelling and grammar are found, of its meaning the first one; of one of
/// the second edition all of the first stage that has any, MAX_FOUND_FAULTS at most.
Findings checkSource(const SourcePtr& source, const FrontEndOptions& options);

} // namespace pozhil::tools

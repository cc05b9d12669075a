#pragma once

#include "front_end/front_end.h"
#include "tools/check/finding.h"

namespace pozhil::tools {

/// Takes a source of either edition, and all that it imports, the way of the compiler as far as it finds faults, and tells
/// what is wrong with it, or if nothing is, what surely isn't meant.
///
/// Of a source of the first edition all faults of spelling and grammar are found, of its meaning the first one; of one of
/// the second edition all of its grammar and of what could be read of its meaning, MAX_FOUND_FAULTS of each at most.
/// \param withHints whether hints are told as well
Findings checkSource(const SourcePtr& source, const FrontEndOptions& options, bool withHints);

} // namespace pozhil::tools

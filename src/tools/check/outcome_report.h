#pragma once

#include "tools/check/finding.h"

#include <iosfwd>

namespace pozhil::tools {

/// Shows faults in the boxes of the compiler, and hints in a line each.
void printFindings(std::ostream& out, const Findings& findings, bool coloured);

/// Shows what came of checking sources on standard output, faults in the boxes of the compiler, and how many there are.
/// What couldn't be read is told on standard error.
/// \param coloured whether it may have colours
void reportOutcome(const Outcome& outcome, bool coloured);

/// Tells on standard error what couldn't be read.
void reportUnread(const std::vector<Unread>& unread);

} // namespace pozhil::tools

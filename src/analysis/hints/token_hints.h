#pragma once

#include "analysis/hints/hint_list.h"

namespace pozhil {

/// Looks for what only the tokens of a file show: curly quotes and odd blanks, tabs, compound assignments to elements
/// and fields.
/// \param scanned the program's own file
void findTokenHints(const ScannedSource& scanned, HintList& found);

} // namespace pozhil

#pragma once

#include "diagnostics/second_hint.h"
#include "front_end/front_end.h"

namespace pozhil {

/// Shows the first hints on a program on standard error, a line each, unless the user has switched them off.
void reportHints(const ParsedSource& parsed);
/// The same on a program of the second edition.
void reportHints(const SecondHints& hints);

/// Tells in the same way that the first line of a program of the first edition almost asks for the second.
void reportAlmostMarked(const SourceText& source);

} // namespace pozhil

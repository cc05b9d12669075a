#pragma once

#include "front_end/front_end.h"
#include "tools/check/finding.h"
#include "tools/check/seen_sources.h"
#include "tools/check/source_search.h"

namespace pozhil::tools {

/// Checks sources, each as a program of its own, except for those that others of them import: these are checked as their
/// parts, since they needn't mean anything alone. What is wrong with a file that several import is told once.
/// \param sources is what reads them
/// \param options how their imports are found
Outcome checkSources(const FoundSources& found, SeenSources& sources, FrontEndOptions options);

} // namespace pozhil::tools

#pragma once

#include "tools/check/finding.h"

#include <string>

namespace pozhil::tools {

/// What came of checking sources for programs that read it, as docs/கட்டளை.md tells: one line of JSON, which is UTF-8
/// whatever bytes stand in names and sources.
std::string outcomeJson(const Outcome& outcome);

} // namespace pozhil::tools

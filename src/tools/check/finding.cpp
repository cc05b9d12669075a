#include "tools/check/finding.h"

#include <algorithm>

namespace pozhil::tools {

std::size_t countOf(const Findings& findings, Finding::Kind kind) {
    return static_cast<std::size_t>(
        std::count_if(findings.begin(), findings.end(), [&](const Finding& finding) { return finding.kind == kind; }));
}

} // namespace pozhil::tools

#pragma once

#include "language/rows.h"

#include <string_view>

namespace pozhil::language {

/// When a diagnostic is raised, as the list of errors tells it. The diagnostic itself stands in the catalogue, which
/// generated programs compile too; a code without a cause is one that nothing raises.
struct DiagnosticCause {
    std::string_view code;
    Bilingual cause;
};

/// The causes of all diagnostics that are raised, in ascending order of their codes.
Rows<DiagnosticCause> diagnosticCauses();

} // namespace pozhil::language

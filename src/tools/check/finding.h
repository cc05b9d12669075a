#pragma once

#include "base/source_place.h"
#include "diagnostics/mend.h"
#include "language/rows.h"
#include "report/box.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil::tools {

/// A fault of a source, or a hint on it.
struct Finding {
    enum class Kind { Fault, Hint };

    Kind kind = Kind::Fault;
    /// What is underlined; without a source where nobody knows the place.
    SourcePlace place;
    /// As the box tells it; of a hint, the message and the excerpt alone. A fault that has no number has no code.
    report::FaultText text;
    /// When the fault comes, as the list of errors tells it; may be empty.
    language::Bilingual cause{};
    /// What to write in its place, where one thing alone is right.
    Mend mend{};
};

using Findings = std::vector<Finding>;

/// A file or folder that could not be read.
struct Unread {
    std::string path;
    /// A sentence
    std::string reason;
};

/// What came of checking sources.
struct Outcome {
    /// How many sources were checked, those that others import included.
    std::size_t checked = 0;
    Findings findings;
    std::vector<Unread> unread;
};

/// How many of the findings are of this kind.
std::size_t countOf(const Findings& findings, Finding::Kind kind);

} // namespace pozhil::tools

#pragma once

#include "tools/check/finding.h"
#include "tools/language_server/workspace.h"

#include <optional>
#include <string>

namespace pozhil::language_server {

/// An edit of a source.
struct SourceEdit {
    ByteRange place;
    std::string text;
};

/// The edit that mends what was found, if one thing alone is right: the finding is gone after it, and its line has no
/// other fault than before.
/// \param findings all that was found in the source
std::optional<SourceEdit> mendOf(const Workspace& workspace, const SourcePtr& source, const tools::Findings& findings,
                                 const tools::Finding& finding);

/// What is wrong with the source of a document alone.
tools::Findings findingsOf(const SourcePtr& source, FrontEndOptions options);

} // namespace pozhil::language_server

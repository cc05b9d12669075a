#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/foldingRange: blocks, brackets over several lines, and comments.
Json foldingRanges(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

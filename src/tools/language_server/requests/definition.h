#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/definition: where what a name means is written, in this source or one that it imports.
Json definition(const Workspace& workspace, const Json& params);
/// textDocument/references: where a name means the same, in the open sources and those that they import.
Json references(const Workspace& workspace, const Json& params);
/// textDocument/documentHighlight: the same in the source alone that is asked about.
Json documentHighlights(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/hover: what a word is, as its source or the guide tells it; null for what says nothing of itself.
Json hover(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

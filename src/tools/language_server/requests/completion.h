#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/completion: what may be written at a place and begins with what is written there already.
Json completion(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

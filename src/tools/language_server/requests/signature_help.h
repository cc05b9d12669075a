#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/signatureHelp: what a call takes, while it is written; null outside of calls.
Json signatureHelp(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/documentSymbol: what a source names, as a tree. Parameters and variables of functions are left out.
Json documentSymbols(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/documentColor: texts that are colours, as words or as digits.
Json documentColours(const Workspace& workspace, const Json& params);
/// textDocument/colorPresentation: how a colour is written.
Json colourPresentations(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

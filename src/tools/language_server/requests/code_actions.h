#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// Mends for what is wrong in a part of a text, each the only right one.
Json codeActions(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// Which word a new name would stand for.
Json prepareRename(const Workspace& workspace, const Json& params);

/// The edits that give it.
Json rename(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/formatting: the source in the one style, as one edit; none where nothing changes, null for a source with
/// faults, which stays as it is.
Json formatting(const Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

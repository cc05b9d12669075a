#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// textDocument/semanticTokens/full: what each word of a source is.
Json semanticTokens(const Workspace& workspace, const Json& params);

/// The names of the kinds of words, in the order of their numbers.
Json semanticTokenLegend();

} // namespace pozhil::language_server

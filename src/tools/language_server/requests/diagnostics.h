#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

namespace pozhil::language_server {

/// A finding in a document, as a client is told of it.
Json diagnosticOf(const Document& document, const tools::Finding& finding);

/// What a client is told of a source: the parameters of textDocument/publishDiagnostics.
Json diagnosticsOf(const Workspace& workspace, const Verdict& verdict);

} // namespace pozhil::language_server

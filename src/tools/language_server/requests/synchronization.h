#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

/// How the texts of the client arrive.
namespace pozhil::language_server {

/// textDocument/didOpen
void didOpen(Workspace& workspace, const Json& params);
/// textDocument/didChange: whole texts, and edits one after the other. All of a message are made, or none.
/// \throws RequestError if the text isn't open, or newer already
void didChange(Workspace& workspace, const Json& params);
/// textDocument/didClose
void didClose(Workspace& workspace, const Json& params);
/// workspace/didChangeWatchedFiles
void filesChanged(Workspace& workspace, const Json& params);

} // namespace pozhil::language_server

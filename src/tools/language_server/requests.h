#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/workspace.h"

#include <string>

namespace pozhil::language_server {

/// Answers a request of a client.
/// \throws RequestError, Json::exception if it can't be answered as it was asked
using RequestHandler = Json (*)(const Workspace& workspace, const Json& params);

/// Who answers a method; null if nobody does.
RequestHandler findRequest(const std::string& method);

/// Takes what a client tells.
/// \throws RequestError, Json::exception
using NotificationHandler = void (*)(Workspace& workspace, const Json& params);

/// Who takes a method; null if it is of no use here.
NotificationHandler findNotification(const std::string& method);

/// What a client may ask, for its answer to initialize.
Json capabilities(Encoding encoding);

} // namespace pozhil::language_server

#pragma once

#include "tools/language_server/client_text.h"
#include "tools/language_server/json.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace pozhil::language_server {

/// Numbers of what is wrong with a request, as the protocol gives them.
enum class ErrorCode : int {
    ParseError = -32700,
    InvalidRequest = -32600,
    MethodNotFound = -32601,
    InvalidParams = -32602,
    InternalError = -32603,
    ServerNotInitialized = -32002,
    RequestFailed = -32803,
    RequestCancelled = -32800
};

/// A request that can't be answered.
class RequestError : public std::runtime_error {
public:
    RequestError(ErrorCode theCode, const std::string& message) : std::runtime_error(message), code(theCode) {}

    const ErrorCode code;
};

/// \throws Json::exception, RequestError if it is no position or range
Position positionFrom(const Json& json);
Range rangeFrom(const Json& json);

Json jsonOf(Position position);
Json jsonOf(Range range);

/// A member that may be missing.
/// \return null if it or what it would stand in is missing
const Json& memberOf(const Json& json, const char* name);

/// The URI of the document that the parameters of a request name.
std::string documentUri(const Json& params);

/// A message to the client.
Json notification(const char* method, Json params);
Json response(const Json& id, Json result);
Json errorResponse(const Json& id, ErrorCode code, const std::string& message);

} // namespace pozhil::language_server

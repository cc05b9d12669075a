#include "tools/language_server/protocol.h"

#include <utility>

namespace pozhil::language_server {
namespace {

std::size_t countFrom(const Json& json) {
    if (!json.is_number_unsigned()) {
        throw RequestError(ErrorCode::InvalidParams, std::string("not a count: ") + json.type_name());
    }
    return json.get<std::size_t>();
}

Json message() {
    return {{"jsonrpc", "2.0"}};
}

} // namespace

Position positionFrom(const Json& json) {
    return {countFrom(json.at("line")), countFrom(json.at("character"))};
}

Range rangeFrom(const Json& json) {
    return {positionFrom(json.at("start")), positionFrom(json.at("end"))};
}

Json jsonOf(Position position) {
    return {{"line", position.line}, {"character", position.character}};
}

Json jsonOf(Range range) {
    return {{"start", jsonOf(range.begin)}, {"end", jsonOf(range.end)}};
}

const Json& memberOf(const Json& json, const char* name) {
    static const Json nothing;
    const auto found = json.is_object() ? json.find(name) : json.end();
    return found == json.end() ? nothing : *found;
}

std::string documentUri(const Json& params) {
    return params.at("textDocument").at("uri").get<std::string>();
}

Json notification(const char* method, Json params) {
    Json json = message();
    json["method"] = method;
    json["params"] = std::move(params);
    return json;
}

Json response(const Json& id, Json result) {
    Json json = message();
    json["id"] = id;
    json["result"] = std::move(result);
    return json;
}

Json errorResponse(const Json& id, ErrorCode code, const std::string& message) {
    Json json = language_server::message();
    json["id"] = id;
    json["error"] = {{"code", static_cast<int>(code)}, {"message", message}};
    return json;
}

} // namespace pozhil::language_server

#include "tools/language_server/requests.h"

#include "tools/language_server/requests/synchronization.h"

#include <map>

namespace pozhil::language_server {
namespace {

/// As the protocol numbers it: edits, not whole texts.
constexpr int INCREMENTAL = 2;

} // namespace

RequestHandler findRequest(const std::string& method) {
    static const std::map<std::string, RequestHandler> handlers = {};
    const auto found = handlers.find(method);
    return found == handlers.end() ? nullptr : found->second;
}

NotificationHandler findNotification(const std::string& method) {
    static const std::map<std::string, NotificationHandler> handlers = {
        {"textDocument/didOpen", didOpen},
        {"textDocument/didChange", didChange},
        {"textDocument/didClose", didClose},
        {"workspace/didChangeWatchedFiles", filesChanged},
    };
    const auto found = handlers.find(method);
    return found == handlers.end() ? nullptr : found->second;
}

Json capabilities(Encoding encoding) {
    return {
        {"positionEncoding", encoding == Encoding::Utf8 ? "utf-8" : "utf-16"},
        {"textDocumentSync", {{"openClose", true}, {"change", INCREMENTAL}}},
    };
}

} // namespace pozhil::language_server

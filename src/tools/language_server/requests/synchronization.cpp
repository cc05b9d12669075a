#include "tools/language_server/requests/synchronization.h"

#include "tools/language_server/protocol.h"

#include <cstdint>
#include <string>
#include <utility>

namespace pozhil::language_server {
namespace {

/// A number of version that is missing is taken for the next one.
std::int64_t versionFrom(const Json& document, std::int64_t next) {
    const Json& version = memberOf(document, "version");
    return version.is_null() ? next : version.get<std::int64_t>();
}

} // namespace

void didOpen(Workspace& workspace, const Json& params) {
    const Json& document = params.at("textDocument");
    workspace.open(documentUri(params), document.at("text").get<std::string>(), versionFrom(document, 0));
}

void didChange(Workspace& workspace, const Json& params) {
    const std::string uri = documentUri(params);
    const Document* const document = workspace.find(uri);
    if (document == nullptr) {
        throw RequestError(ErrorCode::InvalidParams, "not open: " + uri);
    }
    const std::int64_t version = versionFrom(params.at("textDocument"), document->version() + 1);
    if (version <= document->version()) {
        throw RequestError(ErrorCode::InvalidParams, "version " + std::to_string(version) + " of " + uri + " after " +
                                                         std::to_string(document->version()) + ": not applied");
    }
    ClientText text = document->text();
    for (const Json& change : params.at("contentChanges")) {
        std::string written = change.at("text").get<std::string>();
        const Json& range = memberOf(change, "range");
        if (range.is_null()) {
            text = ClientText(std::move(written), workspace.encoding());
        } else {
            text.replace(rangeFrom(range), written);
        }
    }
    workspace.change(uri, std::move(text), version);
}

void didClose(Workspace& workspace, const Json& params) {
    workspace.close(documentUri(params));
}

void filesChanged(Workspace& workspace, const Json& params) {
    for (const Json& change : memberOf(params, "changes")) {
        workspace.fileChanged(change.at("uri").get<std::string>());
    }
}

} // namespace pozhil::language_server

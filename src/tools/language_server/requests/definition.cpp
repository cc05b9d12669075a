#include "tools/language_server/requests/definition.h"

#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/references.h"

#include <algorithm>

namespace pozhil::language_server {
namespace {

Json locationOf(const Workspace& workspace, const SourcePtr& source, ByteRange place) {
    const std::shared_ptr<const Document> document = workspace.documentOf(source);
    return {{"uri", document->uri()}, {"range", jsonOf(document->rangeOf(place))}};
}

} // namespace

Json definition(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    Json locations = Json::array();
    for (const FoundSymbol& found : meaningsOf(workspace, asked.file, asked.token)) {
        locations.push_back(locationOf(workspace, found.file.source, found.symbol->place));
    }
    return locations;
}

Json references(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    const bool withDeclaration = params.at("context").at("includeDeclaration").get<bool>();
    Json locations = Json::array();
    for (const FoundSymbol& found : meaningsOf(workspace, asked.file, asked.token)) {
        for (const Reference& reference : referencesTo(workspace, found)) {
            const bool isDeclaration =
                reference.source->path == found.file.source->path && reference.place.begin == found.symbol->place.begin;
            Json location = locationOf(workspace, reference.source, reference.place);
            const bool isKnown = std::find(locations.begin(), locations.end(), location) != locations.end();
            if ((withDeclaration || !isDeclaration) && !isKnown) {
                locations.push_back(std::move(location));
            }
        }
    }
    return locations;
}

Json documentHighlights(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    Json highlights = Json::array();
    for (const FoundSymbol& found : meaningsOf(workspace, asked.file, asked.token)) {
        for (const Reference& reference : referencesTo(workspace, found)) {
            if (reference.source->path == asked.file.source->path) {
                Json highlight = {{"range", jsonOf(asked.document->rangeOf(reference.place))}};
                if (std::find(highlights.begin(), highlights.end(), highlight) == highlights.end()) {
                    highlights.push_back(std::move(highlight));
                }
            }
        }
    }
    return highlights;
}

} // namespace pozhil::language_server

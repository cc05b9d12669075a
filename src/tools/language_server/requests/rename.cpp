#include "tools/language_server/requests/rename.h"

#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/renaming.h"

#include <string>

namespace pozhil::language_server {

Json prepareRename(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    const NameUse use = renamedAt(workspace, asked.file, asked.token);
    return {{"range", jsonOf(asked.document->rangeOf(asked.file.outline->placeOf(asked.token)))},
            {"placeholder", use.name}};
}

Json rename(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    const auto newName = params.at("newName").get<std::string>();
    NameUse use = renamedAt(workspace, asked.file, asked.token);
    findUses(workspace, use);
    checkNewName(workspace, use, newName);
    Json changes = Json::object();
    for (const Reference& reference : use.places) {
        const auto document = workspace.documentOf(reference.source);
        changes[document->uri()].push_back(
            {{"range", jsonOf(document->rangeOf(reference.place))}, {"newText", newName}});
    }
    return {{"changes", changes}};
}

} // namespace pozhil::language_server

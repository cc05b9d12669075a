#include "tools/language_server/requests/code_actions.h"

#include "base/text.h"
#include "tools/language_server/mending.h"
#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/requests/diagnostics.h"

#include <algorithm>
#include <optional>
#include <string>

namespace pozhil::language_server {
namespace {

constexpr const char* QUICK_FIX = "quickfix";
/// Each is tried by checking the whole program, and nobody chooses from a longer list.
constexpr std::size_t MOST_ACTIONS = 10;

/// Whether the client wants mends; the kinds that it names hold those below them.
bool wantsMends(const Json& context) {
    const Json& only = memberOf(context, "only");
    return !only.is_array() ||
           std::any_of(only.begin(), only.end(), [](const Json& kind) { return kind == QUICK_FIX || kind == ""; });
}

} // namespace

Json codeActions(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    const NamedSource file = askedSource(workspace, params, document);
    const Range range = rangeFrom(params.at("range"));
    Json actions = Json::array();
    if (!wantsMends(memberOf(params, "context"))) {
        return actions;
    }
    const std::size_t begin = document->sourceOffsetAt(range.begin);
    const std::size_t end = document->sourceOffsetAt(range.end);
    const tools::Findings findings = findingsOf(file.source, workspace.frontEndOptions());
    for (const tools::Finding& finding : findings) {
        if (actions.size() == MOST_ACTIONS) {
            break;
        }
        const bool isHere = finding.place.source != nullptr && finding.place.source->path == file.source->path &&
                            finding.place.range.begin <= std::max(begin, end) &&
                            finding.place.range.end >= std::min(begin, end);
        const auto edit = isHere ? mendOf(workspace, file.source, findings, finding) : std::nullopt;
        if (edit) {
            const Json change = {{"range", jsonOf(document->rangeOf(edit->place))}, {"newText", edit->text}};
            actions.push_back({{"title", "'" + finding.mend.meant + "' என்று எழுது"},
                               {"kind", QUICK_FIX},
                               {"isPreferred", true},
                               {"diagnostics", Json::array({diagnosticOf(*document, finding)})},
                               {"edit", {{"changes", {{document->uri(), Json::array({change})}}}}}});
        }
    }
    return actions;
}

} // namespace pozhil::language_server

#include "tools/language_server/requests/diagnostics.h"

#include "tools/language_server/protocol.h"

#include <string>

namespace pozhil::language_server {
namespace {

using tools::Finding;

/// As the protocol numbers them.
enum Severity : int { ERROR = 1, WARNING = 2 };

std::string messageOf(const Finding& finding) {
    std::string message = finding.text.message;
    for (const std::string& more : {finding.text.suggestion, finding.text.remedy}) {
        if (!more.empty()) {
            message += "\n" + more;
        }
    }
    return message;
}

Range placeOf(const Workspace& workspace, const Verdict& verdict, const Finding& finding) {
    if (finding.place.source == nullptr) {
        return {};
    }
    if (verdict.document != nullptr) {
        return verdict.document->rangeOf(finding.place.range);
    }
    return workspace.documentOf(finding.place.source)->rangeOf(finding.place.range);
}

Json diagnosticAt(Range range, const Finding& finding) {
    Json json = {{"range", jsonOf(range)},
                 {"severity", finding.kind == Finding::Kind::Fault ? ERROR : WARNING},
                 {"source", "பொழில்"},
                 {"message", messageOf(finding)}};
    if (!finding.text.code.empty()) {
        json["code"] = finding.text.code;
    }
    return json;
}

} // namespace

Json diagnosticOf(const Document& document, const Finding& finding) {
    return diagnosticAt(finding.place.source == nullptr ? Range() : document.rangeOf(finding.place.range), finding);
}

Json diagnosticsOf(const Workspace& workspace, const Verdict& verdict) {
    Json diagnostics = Json::array();
    for (const Finding& finding : verdict.findings) {
        diagnostics.push_back(diagnosticAt(placeOf(workspace, verdict, finding), finding));
    }
    Json told = {{"uri", verdict.uri}, {"diagnostics", std::move(diagnostics)}};
    if (verdict.document != nullptr) {
        told["version"] = verdict.document->version();
    }
    return told;
}

} // namespace pozhil::language_server

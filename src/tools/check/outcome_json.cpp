#include "tools/check/outcome_json.h"

#include "base/json_text.h"
#include "tools/check/positions.h"

#include <algorithm>
#include <string_view>

namespace pozhil::tools {
namespace {

/// Of the form; a new one if a reader of the old one could misunderstand it.
constexpr const char* VERSION = "1";
constexpr const char* NOTHING = "null";

std::string text(std::string_view text) {
    return json::text(validUtf8(text));
}

std::string textIfAny(std::string_view told) {
    return told.empty() ? NOTHING : text(told);
}

std::string position(const Finding& finding, std::size_t offset) {
    if (finding.place.source == nullptr) {
        return NOTHING;
    }
    const Position at = positionAt(finding.place.source->text, offset);
    return json::object(
        {{"line", std::to_string(at.line)}, {"byte", std::to_string(at.byte)}, {"utf16", std::to_string(at.utf16)}});
}

std::string cause(const language::Bilingual& told) {
    return told.tamil.empty() ? NOTHING : json::object({{"ta", text(told.tamil)}, {"en", text(told.english)}});
}

std::string finding(const Finding& told) {
    return json::object({{"file", text(told.text.excerpt.file)},
                         {"kind", text(told.kind == Finding::Kind::Fault ? "fault" : "hint")},
                         {"code", textIfAny(told.text.code)},
                         {"category", textIfAny(told.text.category)},
                         {"message", text(told.text.message)},
                         {"cause", cause(told.cause)},
                         {"mend", textIfAny(told.text.remedy)},
                         {"suggestion", textIfAny(told.text.suggestion)},
                         {"begin", position(told, told.place.range.begin)},
                         {"end", position(told, std::max(told.place.range.begin, told.place.range.end))}});
}

std::string unread(const Unread& file) {
    return json::object({{"path", text(file.path)}, {"reason", text(file.reason)}});
}

} // namespace

std::string outcomeJson(const Outcome& outcome) {
    std::string line = json::object({{"version", VERSION},
                                     {"checked", std::to_string(outcome.checked)},
                                     {"findings", json::array(outcome.findings, finding)},
                                     {"unread", json::array(outcome.unread, unread)}});
    // Texts have none: it would stand there as \n.
    line.erase(std::remove(line.begin(), line.end(), '\n'), line.end());
    return line;
}

} // namespace pozhil::tools

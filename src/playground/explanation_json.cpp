#include "playground/explanation_json.h"

#include "base/json_text.h"
#include "tools/explain/error_page.h"
#include "tools/explain/known_faults.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace pozhil::playground {
namespace {

constexpr const char* NOTHING = "null";

std::string textIfAny(std::string_view text) {
    return text.empty() ? NOTHING : json::text(text);
}

std::string causeOf(const language::Bilingual& cause) {
    return cause.tamil.empty() ? NOTHING
                               : json::object({{"ta", json::text(cause.tamil)}, {"en", json::text(cause.english)}});
}

} // namespace

std::string explanationJson(std::string_view code) {
    const std::optional<int> number = tools::faultNumber(code);
    const std::vector<tools::KnownFault> all = tools::knownFaults();
    const auto fault =
        std::find_if(all.begin(), all.end(), [&](const tools::KnownFault& known) { return known.number == number; });
    if (fault == all.end()) {
        return NOTHING;
    }
    const tools::ShownPrograms programs = tools::shownPrograms(tools::error_page::பிழைகள், fault->code);
    return json::object({{"code", json::text(fault->code)},
                         {"message", json::text(fault->message)},
                         {"cause", causeOf(fault->cause)},
                         {"mend", textIfAny(fault->remedy)},
                         {"wrong", textIfAny(programs.wrong)},
                         {"right", textIfAny(programs.right)}});
}

} // namespace pozhil::playground

#include "playground/playground.h"

#include "base/json_text.h"
#include "base/source_text.h"
#include "formatter/formatter.h"
#include "front_end/second_edition.h"
#include "playground/explanation_json.h"
#include "tools/check/outcome_json.h"
#include "tools/check/positions.h"
#include "tools/check/source_check.h"

namespace pozhil::playground {
namespace {

/// What faults call the program.
constexpr const char* PROGRAM = "நிரல்.பொழில்";
constexpr const char* MODULE_FOLDER = "தொகுப்புகள்";

SourcePtr sourceOf(const std::string& program) {
    return makeSource(PROGRAM, sourceTextOf(program));
}

const char* nameOf(FormatResult result) {
    switch (result) {
    case FormatResult::Formatted: return "formatted";
    case FormatResult::Faulty: return "faulty";
    case FormatResult::NotUnderstood: break;
    }
    return "not-understood";
}

} // namespace

Playground::Playground() {
    options_.moduleDirectories = {MODULE_FOLDER};
    options_.loader = &modules_;
}

void Playground::addModule(const std::string& path, const std::string& text) {
    modules_.set(MODULE_FOLDER + ("/" + path), sourceTextOf(text));
}

int Playground::editionOf(const std::string& program) {
    SecondFaults ignored;
    return pozhil::editionOf(sourceOf(program), ignored) == Edition::Second ? 2 : 1;
}

std::string Playground::check(const std::string& program) const {
    tools::Outcome outcome;
    outcome.checked = 1;
    outcome.findings = tools::checkSource(sourceOf(program), options_, true);
    return tools::outcomeJson(outcome);
}

std::string Playground::format(const std::string& program) const {
    const FormattedSource made = formatSource(sourceOf(program), options_);
    return json::object(
        {{"result", json::text(nameOf(made.result))}, {"text", json::text(tools::validUtf8(made.text))}});
}

std::string Playground::explain(const std::string& code) {
    return explanationJson(code);
}

} // namespace pozhil::playground

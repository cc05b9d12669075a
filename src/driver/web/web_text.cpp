#include "driver/web/web_text.h"

#include "driver/hint_report.h"
#include "driver/refusal_report.h"
#include "driver/second_build_failure.h"
#include "driver/settings.h"
#include "driver/web/web_messages.h"

#include <iostream>
#include <optional>

namespace pozhil {
namespace {

/// What programs of the second edition run on in a page.
constexpr const char* ENGINE = "libpozhil_engine_web.a";

WebFailure reportFirstFailure(const ParsedSource& source, const OutputText& output, const FailedCompilation& failed) {
    printCompilationFailure();
    WebFailure failure = {{"பொழி-404", "", 0, BUILD_FAILURE}, failed.isCauseTold};
    if (!failed.isCauseTold) {
        const ShownPlace place = reportRefusals(source, output, failed.file, failed.result.errors);
        failure.fault.file = place.file;
        failure.fault.line = place.line;
    }
    return failure;
}

WebFailure reportSecondFailure(const SecondTranslation& translation, const FailedCompilation& failed) {
    WebFailure failure = {{"", "", 0, BUILD_FAILURE}, true};
    if (settings::toolchainWords() == settings::ToolchainWords::Shown) {
        std::cerr << failed.result.output << failed.result.errors << std::flush;
    }
    if (failed.isCauseTold) {
        return failure;
    }
    const auto plainCall = settings::emFlags().empty() ? std::nullopt : std::optional(failed.plainCall);
    const BuildBlame blame =
        reportBuildFailure(translation, {EMXX, failed.file, failed.result, plainCall, failed.isTextKept});
    if (!blame.isOfMachine) {
        failure = {{"", blame.place.file, blame.place.line, std::string(OUR_FAULT) + "; " + BUILD_FAILURE}, false};
    }
    return failure;
}

} // namespace

WebText webTextOf(const ParsedSource& source, const OutputText& output) {
    WebText text;
    text.output = output.text;
    text.runtimeLength = output.runtimeLength;
    text.application = readApplication(source.program);
    text.reportFailure = [&](const FailedCompilation& failed) { return reportFirstFailure(source, output, failed); };
    text.reportHints = [&] { reportHints(source); };
    return text;
}

WebText webTextOf(const SecondTranslation& translation) {
    WebText text;
    text.edition = Edition::Second;
    text.output = translation.output.text;
    text.runtimeLength = translation.output.runtimeLength;
    text.application = *translation.application;
    text.linking.archives = {ENGINE};
    text.reportFailure = [&](const FailedCompilation& failed) { return reportSecondFailure(translation, failed); };
    text.reportHints = [&] { reportHints(translation.hints); };
    return text;
}

} // namespace pozhil

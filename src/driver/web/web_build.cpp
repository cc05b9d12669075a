#include "driver/web/web_build.h"

#include "driver/output_stage.h"
#include "driver/refusal_report.h"
#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"
#include "driver/web/page_template.h"
#include "driver/web/page_values.h"
#include "driver/web/web_assets.h"
#include "driver/web/web_directory.h"
#include "driver/web/web_messages.h"

#include <system_error>
#include <utility>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> resultsIn(const fs::path& directory) {
    return {directory / "index.js", directory / "index.wasm", directory / "index.data"};
}

} // namespace

WebBuild::WebBuild(const fs::path& appDirectory, const fs::path& temporaryDirectory)
    : appDirectory_(appDirectory), source_(temporaryDirectory / "வலை_வெளியீடு.cpp"), outputDirectory_(webDirectory()),
      compiler_(appDirectory, source_, outputDirectory_),
      headers_(precompiledHeaders(appDirectory, compiler_.program())), runtime_(temporaryDirectory) {}

bool WebBuild::run(const ParsedSource& source, const OutputText& output) {
    if (!writeOutput(source_, output.text)) {
        return false;
    }
    const int version = g_appVersion + 1;
    const Application application = readApplication(source.program);
    if (!makePage(application, version)) {
        return false;
    }
    const std::vector<std::string> packing = packingArguments(application);
    clearOutput();
    const platform::CommandResult compiled = compile(output, packing);
    if (compiled.status != 0) {
        const bool isKnown = compiler_.toldCause();
        printCompilationFailure();
        BuildFault fault = {"பொழி-404", "", 0, BUILD_FAILURE};
        if (!isKnown) {
            const ShownPlace place = reportRefusals(source, output, source_.u8string(), compiled.errors);
            fault.file = place.file;
            fault.line = place.line;
        }
        tellPages(fault);
        return false;
    }
    copies_.makeFor(resultsIn(outputDirectory_));
    // Last of all, since the page reloads as soon as it sees the new number.
    tellPagesOfSuccess();
    g_appVersion = version;
    return true;
}

/// Nothing of an earlier build may pass for a result of this one.
void WebBuild::clearOutput() {
    std::error_code ignored;
    fs::create_directory(outputDirectory_, ignored);
    fs::remove(outputDirectory_ / "index.html", ignored);
    const std::vector<fs::path> results = resultsIn(outputDirectory_);
    copies_.clear(results);
    for (const fs::path& result : results) {
        fs::remove(result, ignored);
    }
}

/// Makes the page for the server, which hands it out from now on, also if em++ then fails.
bool WebBuild::makePage(const Application& application, int version) const {
    const auto page = readTemplate(appDirectory_);
    if (!page) {
        printMissingTemplate(appDirectory_);
        return false;
    }
    PageValues values = pageValuesOf(application);
    values.version = version;
    std::string text = fillTemplate(*page, values);
    std::string compressedText = compressed(text, source_.parent_path());
    g_web_html.store({std::move(text), std::move(compressedText), applicationFiles(application)});
    return true;
}

PrecompiledHeaders WebBuild::headersFor(const OutputText& output) {
    const PrecompiledHeaders runtime = headers_.file.empty() ? PrecompiledHeaders() : runtime_.headersFor(output);
    return runtime.file.empty() ? headers_ : runtime;
}

/// For the versions that follow; it is done before this one is.
void WebBuild::prepareRuntime(const OutputText& output) {
    if (!headers_.file.empty()) {
        runtime_.prepare(output, compiler_.languageCommand(headers_));
    }
}

/// Unlike g++, em++ refuses precompiled headers that don't fit, as with other flags or after an update.
platform::CommandResult WebBuild::compile(const OutputText& output, const std::vector<std::string>& packing) {
    const PrecompiledHeaders headers = headersFor(output);
    prepareRuntime(output);
    platform::CommandResult result = platform::captureCommand(compiler_.command(packing, headers));
    if (result.status == 0 || headers.file.empty()) {
        return result;
    }
    result = platform::captureCommand(compiler_.command(packing, {}));
    if (result.status == 0) {
        // They would fail the next time as well, and so would what is made with them.
        headers_ = {};
    }
    return result;
}

} // namespace pozhil

#include "driver/web/web_build.h"

#include "driver/output_stage.h"
#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"
#include "driver/web/page_template.h"
#include "driver/web/page_values.h"
#include "driver/web/web_assets.h"
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

WebBuild::WebBuild(const fs::path& appDirectory, const fs::path& temporaryDirectory, const fs::path& outputDirectory)
    : appDirectory_(appDirectory), source_(temporaryDirectory / "வலை_வெளியீடு.cpp"), outputDirectory_(outputDirectory),
      results_(outputDirectory.lexically_relative(fs::current_path()).u8string()),
      compiler_(appDirectory, source_, outputDirectory_),
      headers_(precompiledHeaders(appDirectory, compiler_.program())), runtime_(temporaryDirectory) {}

bool WebBuild::run(const WebText& text) {
    if (!writeOutput(source_, text.output)) {
        return false;
    }
    const int version = g_appVersion + 1;
    if (!makePage(text.application, version)) {
        return false;
    }
    const WebCall call = {text.linking, packingArguments(text.application)};
    clearOutput();
    platform::CommandResult compiled = compile(text, call);
    if (compiled.status != 0) {
        tellPages(reportFailure(text, call, std::move(compiled)).fault);
        return false;
    }
    copies_.makeFor(resultsIn(outputDirectory_));
    // Last of all, since the page reloads as soon as it sees the new number.
    tellPagesOfSuccess();
    g_appVersion = version;
    return true;
}

WebFailure WebBuild::reportFailure(const WebText& text, WebCall call, platform::CommandResult result) const {
    const bool isCauseTold = compiler_.toldCause(text.linking);
    call.isUsers = false;
    return text.reportFailure({source_.u8string(), std::move(result), compiler_.command(call), isCauseTold});
}

/// Nothing of an earlier build may pass for a result of this one.
void WebBuild::clearOutput() {
    std::error_code ignored;
    fs::create_directories(outputDirectory_, ignored);
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
    g_web_html.store({std::move(text), std::move(compressedText), applicationFiles(application), results_});
    return true;
}

PrecompiledHeaders WebBuild::headersFor(const WebText& text) {
    const PrecompiledHeaders runtime = headers_.file.empty() ? PrecompiledHeaders() : runtime_.headersFor(text);
    return runtime.file.empty() ? headers_ : runtime;
}

/// For the versions that follow; it is done before this one is.
void WebBuild::prepareRuntime(const WebText& text) {
    if (!headers_.file.empty()) {
        runtime_.prepare(text, compiler_.languageCommand(headers_));
    }
}

/// Unlike g++, em++ refuses precompiled headers that don't fit, as with other flags or after an update.
platform::CommandResult WebBuild::compile(const WebText& text, WebCall call) {
    call.headers = headersFor(text);
    prepareRuntime(text);
    platform::CommandResult result = platform::captureCommand(compiler_.command(call));
    if (result.status == 0 || call.headers.file.empty()) {
        return result;
    }
    call.headers = {};
    result = platform::captureCommand(compiler_.command(call));
    if (result.status == 0) {
        // They would fail the next time as well, and so would what is made with them.
        headers_ = {};
    }
    return result;
}

} // namespace pozhil

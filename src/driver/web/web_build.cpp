#include "driver/web/web_build.h"

#include "driver/output_stage.h"
#include "driver/refusal_report.h"
#include "driver/server/build_fault.h"
#include "driver/server/web_state.h"
#include "driver/settings.h"
#include "driver/web/outline_json.h"
#include "driver/web/page_template.h"
#include "driver/web/web_assets.h"
#include "driver/web/web_directory.h"
#include "driver/web/web_messages.h"
#include "platform/paths.h"

#include <cstdint>
#include <iostream>
#include <system_error>
#include <utility>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

/// Nothing of an earlier build may pass for a result of this one.
void clearOutput(const fs::path& directory) {
    std::error_code ignored;
    fs::create_directory(directory, ignored);
    for (const char* name : {"index.html", "index.js", "index.wasm", "index.data"}) {
        fs::remove(directory / name, ignored);
    }
}

/// How em++ reads the language's programs.
std::vector<std::string> languageArguments(const fs::path& include) {
    return {"-I" + include.u8string(), "-I" + (include / "nanovg").u8string(), "-std=c++17", "-finput-charset=UTF-8"};
}

void append(std::vector<std::string>& arguments, const std::vector<std::string>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
}

} // namespace

WebBuild::WebBuild(const fs::path& appDirectory, const fs::path& temporaryDirectory)
    : appDirectory_(appDirectory), compiler_(emscriptenCompiler(appDirectory)),
      source_(temporaryDirectory / "வலை_வெளியீடு.cpp"), objects_{appDirectory / "திரட்டு" / "error_handler_web.o",
                                                                appDirectory / "திரட்டு" / "nanovg_web.o"},
      outputDirectory_(webDirectory()), headers_(precompiledHeaders(appDirectory, compiler_)),
      runtime_(temporaryDirectory) {
    platform::allowDeepStacks(); // for widgets inside each other
}

bool WebBuild::run(const ParsedSource& source, const OutputText& output) {
    if (!writeOutput(source_, output.text)) {
        return false;
    }
    const int version = g_appVersion + 1;
    const Application application = readApplication(source.program);
    if (!makePage(application, outlineJson(outlineOf(source.program)), version)) {
        return false;
    }
    const std::vector<std::string> packing = packingArguments(application);
    clearOutput(outputDirectory_);
    const platform::CommandResult compiled = compile(output, packing);
    if (compiled.status != 0) {
        const bool isKnown = toldCause();
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
    // Last of all, since the page reloads as soon as it sees the new number.
    tellPagesOfSuccess();
    g_appVersion = version;
    return true;
}

/// Makes the page for the server, which hands it out from now on, also if em++ then fails.
bool WebBuild::makePage(const Application& application, std::string widgets, int version) const {
    const auto page = readTemplate(appDirectory_);
    if (!page) {
        printMissingTemplate(appDirectory_.u8string() + "/உள்ளடக்கம்/template.html");
        return false;
    }
    PageValues values;
    values.title = application.title;
    values.icon = application.icon;
    values.background = application.background;
    values.hasData = hasFilesToPack(application);
    values.widgets = std::move(widgets);
    values.version = version;
    g_web_html.store(fillTemplate(*page, values));
    return true;
}

PrecompiledHeaders WebBuild::headersFor(const OutputText& output) {
    const PrecompiledHeaders runtime = headers_.file.empty() ? PrecompiledHeaders() : runtime_.headersFor(output);
    return runtime.file.empty() ? headers_ : runtime;
}

/// For the versions that follow; it is done before this one is.
void WebBuild::prepareRuntime(const OutputText& output) {
    if (!headers_.file.empty()) {
        platform::Command compiler = {{compiler_}, emscriptenVariables(headers_)};
        append(compiler.arguments, languageArguments(appDirectory_ / "உள்ளடக்கம்"));
        runtime_.prepare(output, compiler);
    }
}

/// Unlike g++, em++ refuses precompiled headers that don't fit, as with other flags or after an update.
platform::CommandResult WebBuild::compile(const OutputText& output, const std::vector<std::string>& packing) {
    const PrecompiledHeaders headers = headersFor(output);
    prepareRuntime(output);
    platform::CommandResult result = platform::captureCommand(command(packing, headers));
    if (result.status == 0 || headers.file.empty()) {
        return result;
    }
    result = platform::captureCommand(command(packing, {}));
    if (result.status == 0) {
        // They would fail the next time as well, and so would what is made with them.
        headers_ = {};
    }
    return result;
}

platform::Command WebBuild::command(const std::vector<std::string>& packing, const PrecompiledHeaders& headers) const {
    platform::Command command;
    command.environment = emscriptenVariables(headers);
    command.arguments = {compiler_, source_.u8string(), objects_[0].u8string(), objects_[1].u8string()};
    append(command.arguments, languageArguments(appDirectory_ / "உள்ளடக்கம்"));
    append(command.arguments, {"--bind", "-s", "USE_GLFW=3", "-s", "FULL_ES2=1", "-s", "WASM=1", "-s",
                               "ALLOW_MEMORY_GROWTH=1", "-s", "EXPORTED_RUNTIME_METHODS=['ccall','cwrap']"});
    append(command.arguments, packing);
    append(command.arguments, {"-o", (outputDirectory_ / "index.js").u8string()});
    append(command.arguments, settings::emFlags());
    return command;
}

/// Tells what can be told from outside why em++ failed; false if it must be the program.
bool WebBuild::toldCause() const {
    constexpr std::uintmax_t LITTLE_SPACE = 1048576;
    if (compiler_ == "em++" && !platform::findProgram("em++")) {
        printMissingCompiler();
        return true;
    }
    std::error_code error;
    for (const fs::path& object : objects_) {
        if (!fs::exists(object, error)) {
            printMissingObject(object.u8string());
            return true;
        }
    }
    if (!platform::isWritableDirectory(outputDirectory_)) {
        printUnwritableDirectory(outputDirectory_.u8string());
        return true;
    }
    if (fs::space(outputDirectory_, error).available < LITTLE_SPACE && !error) {
        printFullDisk(outputDirectory_.u8string());
        return true;
    }
    return false;
}

} // namespace pozhil

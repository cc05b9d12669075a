#include "driver/web_build.h"

#include "driver/emscripten_environment.h"
#include "driver/output_stage.h"
#include "driver/page_template.h"
#include "driver/settings.h"
#include "driver/web_assets.h"
#include "driver/web_messages.h"
#include "driver/web_state.h"
#include "platform/paths.h"
#include "platform/process.h"

#include <array>
#include <cstdint>
#include <iostream>
#include <system_error>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

/// The files that one call of em++ works with.
struct Compilation {
    std::string compiler;
    /// May be empty
    fs::path precompiledHeaders;
    fs::path source;
    fs::path include;
    std::array<fs::path, 2> objects;
    fs::path outputDirectory;
};

/// Makes the page for the server, which hands it out from now on, also if em++ then fails.
bool makePage(const Program& program, const fs::path& appDirectory, int version) {
    const auto page = readTemplate(appDirectory);
    if (!page) {
        std::cerr << "பிழை: template.html கோப்பு கிடைக்கவில்லை! '" << appDirectory.u8string()
                  << "/உள்ளடக்கம்/template.html' உள்ளதா எனச் சரிபார்க்கவும்.\n";
        return false;
    }
    PageValues values;
    values.title = extractHeaderProperty(program, "இணைய_தலைப்பு");
    values.icon = extractHeaderProperty(program, "சின்னம்");
    values.background = extractHeaderProperty(program, "பின்னணி");
    values.version = version;
    g_web_html.store(fillTemplate(*page, values));
    return true;
}

/// Nothing of an earlier build may pass for a result of this one.
void clearOutput(const fs::path& directory) {
    std::error_code ignored;
    fs::create_directory(directory, ignored);
    for (const char* name : {"index.html", "index.js", "index.wasm", "index.data"}) {
        fs::remove(directory / name, ignored);
    }
}

platform::Command compileCommand(const Compilation& compilation, const std::vector<std::string>& packing) {
    platform::Command command;
    command.environment = emscriptenVariables(compilation.precompiledHeaders);
    command.arguments = {compilation.compiler,
                         compilation.source.u8string(),
                         compilation.objects[0].u8string(),
                         compilation.objects[1].u8string(),
                         "-I" + compilation.include.u8string(),
                         "-I" + (compilation.include / "nanovg").u8string(),
                         "-std=c++17",
                         "-finput-charset=UTF-8",
                         "--bind",
                         "-s",
                         "USE_GLFW=3",
                         "-s",
                         "FULL_ES2=1",
                         "-s",
                         "WASM=1",
                         "-s",
                         "ALLOW_MEMORY_GROWTH=1",
                         "-s",
                         "EXPORTED_RUNTIME_METHODS=['ccall','cwrap']"};
    const std::vector<std::string> output = {"-o", (compilation.outputDirectory / "index.js").u8string()};
    for (const auto& more : {packing, output, settings::emFlags()}) {
        command.arguments.insert(command.arguments.end(), more.begin(), more.end());
    }
    return command;
}

/// Unlike g++, em++ refuses precompiled headers that don't fit, as with other flags or after an update.
bool compile(Compilation compilation, const std::vector<std::string>& packing) {
    if (platform::runSilently(compileCommand(compilation, packing)) == 0) {
        return true;
    }
    if (compilation.precompiledHeaders.empty()) {
        return false;
    }
    compilation.precompiledHeaders.clear();
    return platform::runSilently(compileCommand(compilation, packing)) == 0;
}

/// What em++ itself says is not shown; what can be told from outside why it failed, is.
void explainFailure(const Compilation& compilation) {
    constexpr std::uintmax_t LITTLE_SPACE = 1048576;
    if (compilation.compiler == "em++" && !platform::findProgram("em++")) {
        printMissingCompiler();
        return;
    }
    std::error_code error;
    for (const fs::path& object : compilation.objects) {
        if (!fs::exists(object, error)) {
            printMissingObject(object.u8string());
            return;
        }
    }
    if (!platform::isWritableDirectory(compilation.outputDirectory)) {
        printUnwritableDirectory(compilation.outputDirectory.u8string());
    } else if (fs::space(compilation.outputDirectory, error).available < LITTLE_SPACE && !error) {
        printFullDisk(compilation.outputDirectory.u8string());
    }
}

} // namespace

bool buildWeb(const Program& program, const std::string& text, const fs::path& appDirectory,
              const fs::path& temporaryDirectory) {
    const fs::path cache = appDirectory / "திரட்டு";
    const std::string compiler = emscriptenCompiler(appDirectory);
    const Compilation compilation = {compiler,
                                     precompiledHeaders(appDirectory, compiler),
                                     temporaryDirectory / "வலை_வெளியீடு.cpp",
                                     appDirectory / "உள்ளடக்கம்",
                                     {cache / "error_handler_web.o", cache / "nanovg_web.o"},
                                     webDirectory()};
    if (!writeOutput(compilation.source, text)) {
        return false;
    }
    const int version = g_appVersion + 1;
    if (!makePage(program, appDirectory, version)) {
        return false;
    }
    const std::vector<std::string> packing = packingArguments(program);
    clearOutput(compilation.outputDirectory);
    if (!compile(compilation, packing)) {
        explainFailure(compilation);
        printCompilationFailure();
        return false;
    }
    // Last of all, since the page reloads as soon as it sees the new number.
    g_appVersion = version;
    return true;
}

} // namespace pozhil

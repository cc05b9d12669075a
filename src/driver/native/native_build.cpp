#include "driver/native/native_build.h"

#include "diagnostics/last_word/words.h"
#include "driver/console/console_style.h"
#include "driver/native/death_report.h"
#include "driver/native/toolchain_output.h"
#include "driver/refusal_report.h"
#include "driver/settings.h"
#include "platform/fresh_path.h"
#include "platform/object_file.h"
#include "platform/paths.h"

#include <iostream>
#include <system_error>
#include <utility>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

constexpr const char* OBJECT_NAME = "error_handler_native_windows.o";

/// The cached reporter object: in the installation, or in the user's cache if the installation can't be written.
fs::path objectPath(const fs::path& appDirectory) {
    fs::path installed = appDirectory / "திரட்டு" / OBJECT_NAME;
    if (platform::isWholeObject(installed)) {
        return installed;
    }
    std::error_code ignored;
    fs::create_directories(installed.parent_path(), ignored);
    const fs::path cache = platform::userCacheDirectory();
    if (platform::isWritableDirectory(installed.parent_path()) || cache.empty()) {
        return installed;
    }
    fs::create_directories(cache / "pozhil", ignored);
    return cache / "pozhil" / OBJECT_NAME;
}

void show(const platform::CommandResult& result) {
    std::cout << result.output << std::flush;
    std::cerr << withoutSpellingWarnings(result.errors) << std::flush;
}

} // namespace

NativeBuild::NativeBuild(std::string sourcePath, fs::path appDirectory, fs::path generatedSource,
                         fs::path temporaryDirectory)
    : sourcePath_(std::move(sourcePath)), appDirectory_(std::move(appDirectory)),
      generatedSource_(std::move(generatedSource)), program_(temporaryDirectory),
      trace_(temporaryDirectory / "pozhil_trace"), traceable_(temporaryDirectory / "pozhil_traceable_app") {}

void NativeBuild::start() {
    object_ = objectPath(appDirectory_);
    objectIsMissing_ = !platform::isWholeObject(object_);
    toolchain_ = std::async(std::launch::async, [this] { return runToolchain(); });
}

void NativeBuild::finish(const ParsedSource& source, const OutputText& output) {
    if (objectIsMissing_) {
        std::cout
            << "⚙️ சிஸ்டம் ஆப்ஜெக்ட் ஃபைல் புதிதாக உருவாக்கப்படுகிறது...\n"
            << std::flush;
    }
    const ToolchainResult result = toolchain_.get();
    show(result.object);
    if (settings::toolchainWords() != settings::ToolchainWords::Hidden) {
        show(result.link);
    }
    if (result.link.status == platform::COULD_NOT_START) {
        tellMissingCompiler();
    }
    if (result.link.status != 0) {
        std::cerr << style::RED << "பிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி." << style::RESET << std::endl;
        reportRefusals(source, output, generatedSource_.u8string(), result.link.errors);
        return;
    }
    runProgram(source, output);
}

/// The object of the diagnostics once per installation, then always the program. A failed object shows as a failed
/// link.
NativeBuild::ToolchainResult NativeBuild::runToolchain() const {
    ToolchainResult result;
    if (objectIsMissing_) {
        result.object = makeObject();
    }
    result.link = platform::captureCommand(linkCommand(program_.fresh));
    return result;
}

/// Beside its place at first: whoever links meanwhile finds it whole or not at all, and a run that is ended leaves no half.
platform::CommandResult NativeBuild::makeObject() const {
    const fs::path fresh = platform::freshBeside(object_);
    platform::CommandResult result = platform::captureCommand(
        compilerCommand({"g++", "-c", (appDirectory_ / "src" / "error_handler.cpp").u8string(), "-o", fresh.u8string(),
                         "-std=c++17", "-I" + (appDirectory_ / "உள்ளடக்கம்").u8string()}));
    std::error_code ignored;
    if (result.status == 0) {
        fs::rename(fresh, object_, ignored);
    }
    fs::remove(fresh, ignored);
    return result;
}

platform::Command NativeBuild::linkCommand(const fs::path& program) const {
    const fs::path include = appDirectory_ / "உள்ளடக்கம்";
    std::vector<std::string> arguments = programArguments(
        {generatedSource_, object_, program, {"-I" + include.u8string(), "-I" + (include / "nanovg").u8string()}});
    arguments.insert(arguments.end(), {"-lm", "-lpthread"});
    for (std::string& flag : settings::cxxFlags()) {
        arguments.push_back(std::move(flag));
    }
    return compilerCommand(std::move(arguments));
}

/// Only the innermost lines are looked for, so the least that g++ notes will do.
platform::Command NativeBuild::traceableBuild() const {
    platform::Command command = linkCommand(traceable_);
    command.arguments.emplace_back("-g1");
    return command;
}

void NativeBuild::runProgram(const ParsedSource& source, const OutputText& output) const {
    std::error_code ignored;
    fs::remove(trace_, ignored);
    program_.run({{last_word::SOURCE_VARIABLE, sourcePath_}, {last_word::TRACE_VARIABLE, trace_.u8string()}});
    reportDeath(source, output, {program_.program, trace_, traceableBuild(), traceable_});
}

} // namespace pozhil

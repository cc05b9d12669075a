#include "driver/web/web_compiler.h"

#include "driver/settings.h"
#include "driver/web/web_messages.h"
#include "platform/paths.h"

#include <cstdint>
#include <system_error>
#include <utility>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

void append(std::vector<std::string>& arguments, const std::vector<std::string>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
}

/// How em++ reads the language's programs.
std::vector<std::string> languageArguments(const fs::path& include) {
    return {"-I" + include.u8string(), "-I" + (include / "nanovg").u8string(), "-std=c++17", "-finput-charset=UTF-8"};
}

} // namespace

WebCompiler::WebCompiler(const fs::path& appDirectory, fs::path source, fs::path outputDirectory)
    : include_(appDirectory / "உள்ளடக்கம்"), objectDirectory_(appDirectory / "திரட்டு"),
      program_(emscriptenCompiler(appDirectory)), source_(std::move(source)),
      outputDirectory_(std::move(outputDirectory)) {
    platform::allowDeepStacks(); // for widgets inside each other
}

/// What the output text is linked with, as it stands in the installation.
std::vector<fs::path> WebCompiler::objects(const WebLinking& linking) const {
    std::vector<fs::path> all = {objectDirectory_ / "error_handler_web.o", objectDirectory_ / "nanovg_web.o"};
    for (const std::string& archive : linking.archives) {
        all.push_back(objectDirectory_ / archive);
    }
    return all;
}

platform::Command WebCompiler::languageCommand(const PrecompiledHeaders& headers) const {
    platform::Command command = {{program_}, emscriptenVariables(headers)};
    append(command.arguments, languageArguments(include_));
    return command;
}

platform::Command WebCompiler::command(const WebCall& call) const {
    platform::Command command;
    command.environment = emscriptenVariables(call.headers);
    command.arguments = {program_, source_.u8string()};
    for (const fs::path& object : objects(call.linking)) {
        command.arguments.push_back(object.u8string());
    }
    append(command.arguments, languageArguments(include_));
    append(command.arguments, {"--bind", "-s", "USE_GLFW=3", "-s", "FULL_ES2=1", "-s", "WASM=1", "-s",
                               "ALLOW_MEMORY_GROWTH=1", "-s", "EXPORTED_RUNTIME_METHODS=['ccall','cwrap']"});
    append(command.arguments, call.linking.arguments);
    append(command.arguments, call.packing);
    append(command.arguments, call.optimisation);
    append(command.arguments, {"-o", (outputDirectory_ / "index.js").u8string()});
    if (call.isUsers) {
        append(command.arguments, settings::emFlags());
    }
    return command;
}

bool WebCompiler::toldCause(const WebLinking& linking) const {
    constexpr std::uintmax_t LITTLE_SPACE = 1048576;
    if (program_ == "em++" && !platform::findProgram("em++")) {
        printMissingCompiler();
        return true;
    }
    std::error_code error;
    for (const fs::path& object : objects(linking)) {
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

#include "driver/web/precompiled_runtime.h"

#include <chrono>
#include <fstream>
#include <system_error>

namespace pozhil {
namespace {

bool isOver(const std::future<bool>& work) {
    return work.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

/// Nobody waits for the file, so a full disk is not worth a word.
bool write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    return static_cast<bool>(file);
}

} // namespace

PrecompiledRuntime::PrecompiledRuntime(const std::filesystem::path& temporaryDirectory)
    : source_(temporaryDirectory / "வலை_இயக்கம்.h"), precompiled_(temporaryDirectory / "வலை_இயக்கம்.pch") {}

bool PrecompiledRuntime::isRuntimeOf(const WebText& text) const {
    return text.output.substr(0, text.runtimeLength) == runtime_;
}

void PrecompiledRuntime::prepare(const WebText& text, const platform::Command& compiler) {
    if (isRuntimeOf(text) || (compilation_.valid() && !isOver(compilation_))) {
        return;
    }
    isReady_ = false;
    runtime_ = text.output.substr(0, text.runtimeLength);
    if (!write(source_, runtime_)) {
        return;
    }
    platform::Command command = compiler;
    for (const std::string& argument :
         {std::string("-x"), std::string("c++-header"), std::string("-fpch-instantiate-templates"), source_.u8string(),
          std::string("-o"), precompiled_.u8string()}) {
        command.arguments.push_back(argument);
    }
    compilation_ = std::async(std::launch::async, [command] { return platform::runSilently(command) == 0; });
}

PrecompiledHeaders PrecompiledRuntime::headersFor(const WebText& text) {
    if (compilation_.valid() && isOver(compilation_)) {
        isReady_ = compilation_.get();
    }
    std::error_code ignored;
    if (isReady_ && !std::filesystem::exists(precompiled_, ignored)) {
        isReady_ = false; // tidied away, to be made anew
        runtime_.clear();
    }
    if (!isReady_ || !isRuntimeOf(text)) {
        return {};
    }
    return {precompiled_, text.runtimeLength};
}

} // namespace pozhil

#pragma once

#include "driver/translation.h"
#include "driver/web/compressed_copies.h"
#include "driver/web/emscripten_environment.h"
#include "driver/web/precompiled_runtime.h"
#include "driver/web/web_compiler.h"
#include "generator/web/page/application.h"
#include "platform/process.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// Builds the versions of an application, one after the other, with em++ into the directory வெளியீடு.
class WebBuild {
public:
    /// \param appDirectory the installation
    /// \param temporaryDirectory where the output text is written for em++
    WebBuild(const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory);

    /// Makes the page of one version anew for the server and compiles its output text. The server's version number grows
    /// once all files are in place. What goes wrong is told to the user.
    /// \return whether em++ succeeded
    bool run(const ParsedSource& source, const OutputText& output);

private:
    bool makePage(const Application& application, int version) const;
    void clearOutput();
    PrecompiledHeaders headersFor(const OutputText& output);
    void prepareRuntime(const OutputText& output);
    platform::CommandResult compile(const OutputText& output, const std::vector<std::string>& packing);

    std::filesystem::path appDirectory_;
    std::filesystem::path source_;
    std::filesystem::path outputDirectory_;
    WebCompiler compiler_;
    PrecompiledHeaders headers_;
    PrecompiledRuntime runtime_;
    CompressedCopies copies_;
};

} // namespace pozhil

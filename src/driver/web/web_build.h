#pragma once

#include "driver/web/compressed_copies.h"
#include "driver/web/emscripten_environment.h"
#include "driver/web/precompiled_runtime.h"
#include "driver/web/web_compiler.h"
#include "driver/web/web_text.h"
#include "generator/web/page/application.h"
#include "platform/process.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// Builds the versions of an application, one after the other, with em++.
class WebBuild {
public:
    /// \param appDirectory the installation
    /// \param temporaryDirectory where the output text is written for em++
    /// \param outputDirectory where the results go, and are served from
    WebBuild(const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory,
             const std::filesystem::path& outputDirectory);

    /// Makes the page of one version anew for the server and compiles its output text. The server's version number grows
    /// once all files are in place. What goes wrong is told to the user.
    /// \return whether em++ succeeded
    bool run(const WebText& text);

private:
    bool makePage(const Application& application, int version) const;
    void clearOutput();
    PrecompiledHeaders headersFor(const WebText& text);
    void prepareRuntime(const WebText& text);
    platform::CommandResult compile(const WebText& text, WebCall call);
    WebFailure reportFailure(const WebText& text, WebCall call, platform::CommandResult result) const;

    std::filesystem::path appDirectory_;
    std::filesystem::path source_;
    std::filesystem::path outputDirectory_;
    /// The same, seen from the directory that is served.
    std::string results_;
    WebCompiler compiler_;
    PrecompiledHeaders headers_;
    PrecompiledRuntime runtime_;
    CompressedCopies copies_;
};

} // namespace pozhil

#pragma once

#include "driver/native/toolchain.h"
#include "driver/translation.h"
#include "platform/process.h"

#include <filesystem>
#include <future>
#include <string>

namespace pozhil {

/// Builds the output text with g++ and runs the result in the foreground.
///
/// The toolchain works in the background from start() on, so that whatever is shown meanwhile costs no time; what it
/// wrote appears in finish().
class NativeBuild {
public:
    /// \param sourcePath the program's source, which it names where it dies of a fault
    /// \param appDirectory the installation
    /// \param generatedSource the output text
    /// \param temporaryDirectory where the program is made
    NativeBuild(std::string sourcePath, std::filesystem::path appDirectory, std::filesystem::path generatedSource,
                std::filesystem::path temporaryDirectory);

    /// Starts the toolchain.
    void start();

    /// Waits for the toolchain, shows its output, and runs the program.
    /// If the link failed, there is no program to run, and the user is told what was refused; how the program ended
    /// counts for nothing.
    /// \param output the output text that was built, of \p source
    void finish(const ParsedSource& source, const OutputText& output);

private:
    struct ToolchainResult {
        platform::CommandResult object;
        platform::CommandResult link;
    };

    ToolchainResult runToolchain() const;
    platform::CommandResult makeObject() const;
    platform::Command linkCommand(const std::filesystem::path& program) const;
    platform::Command traceableBuild() const;
    void runProgram(const ParsedSource& source, const OutputText& output) const;

    std::string sourcePath_;
    std::filesystem::path appDirectory_;
    std::filesystem::path generatedSource_;
    BuiltProgram program_;
    std::filesystem::path trace_;
    std::filesystem::path traceable_;
    std::filesystem::path object_;
    bool objectIsMissing_ = false;
    std::future<ToolchainResult> toolchain_;
};

} // namespace pozhil

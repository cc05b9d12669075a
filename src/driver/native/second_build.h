#pragma once

#include "driver/native/toolchain.h"
#include "driver/second_translation.h"

#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <vector>

namespace pozhil {

/// Builds the output text of the second edition with g++ and the archive of the engine, and runs the result in the
/// foreground. The toolchain works in the background from start() on.
class SecondBuild {
public:
    /// \param appDirectory the installation
    /// \param generatedSource the output text
    /// \param directory where the program is made
    SecondBuild(std::filesystem::path appDirectory, std::filesystem::path generatedSource,
                const std::filesystem::path& directory);

    /// Starts the toolchain.
    /// \param translation what is built
    void start(const SecondTranslation& translation);

    /// Waits for the toolchain and runs the program. What g++ refuses is a fault of this compiler, and told as such, unless
    /// it is the user's own flags or the machine that it fails for.
    /// \param translation what was built
    /// \return the exit status of the program, 128 plus the signal if one ended it; 1 if there is none
    int finish(const SecondTranslation& translation);

    /// The same without running it.
    /// \return the program; nothing if there is none, which is told
    std::optional<std::filesystem::path> finishProgram(const SecondTranslation& translation);

private:
    platform::Command command(const SecondTranslation& translation, const std::vector<std::string>& userFlags) const;
    bool isMade(const SecondTranslation& translation);
    int runProgram() const;
    void reportFailure(const SecondTranslation& translation, const platform::CommandResult& result) const;
    std::optional<platform::Command> plainCall(const SecondTranslation& translation) const;

    std::filesystem::path appDirectory_;
    std::filesystem::path archive_;
    std::filesystem::path generatedSource_;
    BuiltProgram program_;
    std::future<platform::CommandResult> toolchain_;
};

} // namespace pozhil

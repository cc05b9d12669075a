#pragma once

#include "driver/web/emscripten_environment.h"
#include "platform/process.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// How em++ is called to make an application of its output text.
class WebCompiler {
public:
    /// \param appDirectory the installation
    /// \param source where the output text lies
    /// \param outputDirectory where the results go, as index.js and what that is named after
    WebCompiler(const std::filesystem::path& appDirectory, std::filesystem::path source,
                std::filesystem::path outputDirectory);

    /// The em++ that is called.
    const std::string& program() const { return program_; }

    /// em++ with the arguments by which it reads the language's programs, for whatever source may follow.
    platform::Command languageCommand(const PrecompiledHeaders& headers) const;

    /// The call that compiles and links the output text. The user's own arguments come last.
    /// \param packing the arguments that pack the application's files
    /// \param optimisation further arguments
    platform::Command command(const std::vector<std::string>& packing, const PrecompiledHeaders& headers,
                              const std::vector<std::string>& optimisation = {}) const;

    /// Tells what can be told from outside why em++ failed; false if it must be the program.
    bool toldCause() const;

private:
    std::filesystem::path include_;
    std::string program_;
    std::filesystem::path source_;
    std::array<std::filesystem::path, 2> objects_;
    std::filesystem::path outputDirectory_;
};

} // namespace pozhil

#pragma once

#include "driver/web/emscripten_environment.h"
#include "platform/process.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// What an application is linked with beside what all are.
struct WebLinking {
    /// Archives of the installation, by their names in திரட்டு
    std::vector<std::string> archives{};
    /// Further arguments of em++
    std::vector<std::string> arguments{};
};

/// What one call of em++ is to do beyond what all do.
struct WebCall {
    WebLinking linking{};
    /// The arguments that pack the application's files
    std::vector<std::string> packing{};
    PrecompiledHeaders headers{};
    /// Further arguments
    std::vector<std::string> optimisation{};
    /// Whether the user's own arguments are added
    bool isUsers = true;
};

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
    platform::Command command(const WebCall& call) const;

    /// Tells what can be told from outside why em++ failed; false if it must be the program.
    bool toldCause(const WebLinking& linking) const;

private:
    std::vector<std::filesystem::path> objects(const WebLinking& linking) const;

    std::filesystem::path include_;
    std::filesystem::path objectDirectory_;
    std::string program_;
    std::filesystem::path source_;
    std::filesystem::path outputDirectory_;
};

} // namespace pozhil

#pragma once

#include "platform/process.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// g++ with these arguments, its own name first, pointed to a fast linker where there is one.
platform::Command compilerCommand(std::vector<std::string> arguments);

/// Tells on standard error that there is no g++.
void tellMissingCompiler();

/// A program as the compiler builds and runs it. A build makes a fresh file, so that one that fails leaves the previous
/// program untouched.
struct BuiltProgram {
    /// \param freshName what a build makes
    explicit BuiltProgram(const std::filesystem::path& directory, const std::string& freshName = "pozhil_temp_app");

    /// Puts the fresh file in the place of the program, and runs it in the foreground.
    /// \return its exit status, 128 plus the signal if one ended it; COULD_NOT_START if the build made none
    int run(std::vector<std::pair<std::string, std::string>> environment) const;

    std::filesystem::path fresh;
    std::filesystem::path program;
};

} // namespace pozhil

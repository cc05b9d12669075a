#pragma once

#include "platform/process.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// g++ with these arguments, its own name first, pointed to a fast linker where there is one.
platform::Command compilerCommand(std::vector<std::string> arguments);

/// What a program of either edition is built with: the text, what it is linked to, and where it comes to stand.
struct ProgramParts {
    std::filesystem::path source;
    std::filesystem::path library;
    std::filesystem::path program;
    /// How the text is compiled, and where it finds its headers.
    std::vector<std::string> options;
};

/// The arguments by which g++ makes a program that runs on every machine of this kind, its own name first.
std::vector<std::string> programArguments(const ProgramParts& parts);

/// Tells on standard error that there is no g++.
void tellMissingCompiler();

/// A program as the compiler builds and runs it. A build makes a fresh file, so that one that fails leaves the previous
/// program untouched.
struct BuiltProgram {
    /// \param freshName what a build makes
    explicit BuiltProgram(const std::filesystem::path& directory,
                          const std::filesystem::path& freshName = "pozhil_temp_app");

    /// Puts the fresh file in the place of the program, and runs it in the foreground.
    /// \return its exit status, 128 plus the signal if one ended it; COULD_NOT_START if it doesn't run
    int run(std::vector<std::pair<std::string, std::string>> environment) const;

    /// Puts the fresh file in the place of the program.
    /// \return whether that could be done
    bool settle() const;

    std::filesystem::path fresh;
    std::filesystem::path program;
};

} // namespace pozhil

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace pozhil {

/// What the user asked for on the command line.
struct Invocation {
    std::string sourcePath;
    bool web = false;
    bool watch = false;
    /// Set if there is nothing to compile: the status to end with.
    std::optional<int> exitCode;
};

/// Reads the arguments, the program's name first. Prints the version screen, the vocabulary, the note about the
/// default source, or what is wrong.
Invocation readCommandLine(const std::vector<std::string>& arguments);

} // namespace pozhil

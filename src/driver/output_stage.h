#pragma once

#include <filesystem>
#include <string>

namespace pozhil {

/// The hidden working directory below the current directory, made if it is missing. It is never removed.
std::filesystem::path prepareTemporaryDirectory();

/// Where the output text goes.
std::filesystem::path outputPath(const std::filesystem::path& temporaryDirectory);

/// Empties the file for the output text, or tells on standard error that it can't be made.
bool createOutput(const std::filesystem::path& path);

/// Writes the output text, into a directory that is made if it is missing, or tells on standard error that it doesn't
/// fit.
bool writeOutput(const std::filesystem::path& path, const std::string& text);

} // namespace pozhil

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace pozhil {

/// The hidden working directory below the current directory, made if it is missing. It is never removed.
std::filesystem::path prepareTemporaryDirectory();

/// The part of the working directory that belongs to one source, so that programs that are run side by side don't meet.
/// \param source the path as the user gave it
std::filesystem::path directoryOfSource(const std::filesystem::path& temporaryDirectory, const std::string& source);

/// Makes a directory for an output text, with all that it lies in, or tells on standard error that it can't be made.
bool createDirectory(const std::filesystem::path& path);

/// Where the output text goes.
std::filesystem::path outputPath(const std::filesystem::path& temporaryDirectory);

/// Empties the file for the output text, or tells on standard error that it can't be made.
bool createOutput(const std::filesystem::path& path);

/// Writes the output text, into a directory that is made if it is missing, or tells on standard error that it doesn't
/// fit.
bool writeOutput(const std::filesystem::path& path, std::string_view text);

/// Puts the output text in the place of the one before: whoever reads the file meanwhile finds either of them whole. Tells
/// on standard error why that can't be.
bool replaceOutput(const std::filesystem::path& path, std::string_view text);

} // namespace pozhil

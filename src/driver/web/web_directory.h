#pragma once

#include <filesystem>
#include <string>

namespace pozhil {

/// The directory below the current one that em++ writes applications to.
std::filesystem::path webDirectory();

/// The part of that directory that belongs to one source of the second edition, so that a build of another one leaves
/// alone what is served.
/// \param source the path as the user gave it
std::filesystem::path webDirectoryOf(const std::string& source);

/// Makes such a directory if it is missing, or tells on standard error that it can't be made.
bool createWebDirectory(const std::filesystem::path& directory);

} // namespace pozhil

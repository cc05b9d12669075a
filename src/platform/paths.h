#pragma once

#include <filesystem>
#include <string>

namespace pozhil::platform {

/// Directory of the running executable, symbolic links resolved.
/// \throws std::filesystem::filesystem_error if the system can't tell
std::filesystem::path executableDirectory();

/// Directory for files that can be made again at any time, for this user; empty if the user has none.
std::filesystem::path userCacheDirectory();

/// Directory of a linker that is faster than the usual one and has its name; empty if none is installed.
std::filesystem::path fastLinkerDirectory();

/// Directory where the system keeps modules for Node beside those of the user; empty if it has none.
std::filesystem::path nodeModulesDirectory();

/// Whether this process may create files in \p directory.
bool isWritableDirectory(const std::filesystem::path& directory);

/// Whether this process may write to a file that is there.
bool isWritableFile(const std::filesystem::path& file);

/// Name of the operating system.
std::string systemName();

} // namespace pozhil::platform

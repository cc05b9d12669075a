#pragma once

#include <filesystem>
#include <string>

namespace pozhil::platform {

/// Directory of the running executable, symbolic links resolved.
/// \throws std::filesystem::filesystem_error if the system can't tell
std::filesystem::path executableDirectory();

/// Directory for files that can be made again at any time, for this user; empty if the user has none.
std::filesystem::path userCacheDirectory();

/// Whether this process may create files in \p directory.
bool isWritableDirectory(const std::filesystem::path& directory);

/// Name of the operating system.
std::string systemName();

} // namespace pozhil::platform

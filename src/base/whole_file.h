#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace pozhil {

/// The open file; a stream that is not open if there is no readable file at \p path. A folder has no text, and a pipe or a
/// device might never end.
std::ifstream openFile(const std::filesystem::path& path);

/// All bytes of a file; nothing where openFile opens none, or reading fails on the way.
std::optional<std::string> readFile(const std::filesystem::path& path);

} // namespace pozhil

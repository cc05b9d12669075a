#pragma once

#include <filesystem>

namespace pozhil::platform {

/// A path beside \p path that nobody else thinks of, for what is to take its place once it is whole: two processes that
/// make the same file don't write into one.
std::filesystem::path freshBeside(const std::filesystem::path& path);

} // namespace pozhil::platform

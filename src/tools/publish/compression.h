#pragma once

#include <filesystem>

namespace pozhil::tools {

/// Puts a compressed copy beside each file of a folder, for hosts that send such copies: by gzip, with ".gz" behind the
/// name, and by brotli, with ".br", where these programs are installed.
/// \return false if one of them failed
bool compressFiles(const std::filesystem::path& folder);

} // namespace pozhil::tools

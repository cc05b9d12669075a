#pragma once

#include <filesystem>
#include <system_error>

namespace pozhil::platform {

/// Puts a directory in the place of another, at one stroke where the system can do so: whoever looks finds the one or the
/// other. What stood there is then at \p made; nothing if nothing did.
/// \param made beside \p place, so that both are on the same device
std::error_code replaceDirectory(const std::filesystem::path& made, const std::filesystem::path& place);

} // namespace pozhil::platform

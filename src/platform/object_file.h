#pragma once

#include <filesystem>

namespace pozhil::platform {

/// Whether a file is an object of the system's compiler with nothing cut off, as whoever is ended while writing leaves it.
bool isWholeObject(const std::filesystem::path& path);

} // namespace pozhil::platform

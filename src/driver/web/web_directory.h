#pragma once

#include <filesystem>

namespace pozhil {

/// The directory below the current one that em++ writes an application to.
std::filesystem::path webDirectory();

/// Makes that directory if it is missing, or tells on standard error that it can't be made.
bool createWebDirectory();

} // namespace pozhil

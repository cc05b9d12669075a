#pragma once

#include "driver/native/native_build.h"
#include "driver/translation.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// Builds and runs the program anew whenever its source file changes. Never returns.
/// \throws std::filesystem::filesystem_error if the source file vanishes
[[noreturn]] void watchNative(const std::string& sourcePath, const FrontEndOptions& options,
                              const std::filesystem::path& outputFile, NativeBuild& build);

} // namespace pozhil

#pragma once

#include "driver/native/native_build.h"
#include "driver/translation.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil {

/// What is told when a watched console program has changed.
constexpr const char* NATIVE_CHANGE_NOTE = "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது...";

/// Builds and runs the program anew whenever its source file changes. Never returns.
/// \throws std::filesystem::filesystem_error if the source file vanishes
[[noreturn]] void watchNative(const std::string& sourcePath, const FrontEndOptions& options,
                              const std::filesystem::path& outputFile, NativeBuild& build);

} // namespace pozhil

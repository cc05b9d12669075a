#pragma once

#include "base/source_text.h"
#include "driver/command_line.h"
#include "front_end/front_end.h"

#include <filesystem>

namespace pozhil {

/// Compiles and runs a program of the second edition; while watching, whenever its source changes, and not at first.
/// \return the exit status of the compiler: that of the program, or 1 if there is none. Never returns if it watches.
/// \throws std::filesystem::filesystem_error if a watched source file vanishes
int runSecondEdition(const Invocation& invocation, const SourcePtr& source, const FrontEndOptions& options,
                     const std::filesystem::path& appDirectory);

} // namespace pozhil

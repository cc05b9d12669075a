#pragma once

#include "driver/command_line.h"
#include "driver/second_translation.h"
#include "front_end/front_end.h"

#include <filesystem>

namespace pozhil {

/// Compiles and runs a console program of the second edition; while watching, whenever its source changes, and not at first.
/// \param translation of the source, without faults
/// \return the exit status of the compiler: that of the program, or 1 if there is none. Never returns if it watches.
/// \throws std::filesystem::filesystem_error if a watched source file vanishes
int runSecondEdition(const Invocation& invocation, const SecondTranslation& translation, const FrontEndOptions& options,
                     const std::filesystem::path& appDirectory);

} // namespace pozhil

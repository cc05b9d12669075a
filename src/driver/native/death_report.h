#pragma once

#include "driver/translation.h"
#include "platform/process.h"

#include <filesystem>

namespace pozhil {

/// A program that may have died, and what its death is looked into with.
struct RunProgram {
    std::filesystem::path program;
    /// What the program leaves if it dies of a fault that nothing in it catches (last_word).
    std::filesystem::path trace;
    /// Builds the program once more, with the lines of the output text.
    platform::Command traceableBuild;
    /// What that makes.
    std::filesystem::path traceable;
};

/// Tells, on standard error, in which statement a program has died and which ones called it, three at most. Nothing if
/// it left no trace, or if one of nm, addr2line and g++ isn't there.
///
/// A program that doesn't die shall not wait for g++ to write down its lines, so this builds it anew. The trace and what
/// is built are gone afterwards.
/// \param output the output text of \p source, from which the program was built
void reportDeath(const ParsedSource& source, const OutputText& output, const RunProgram& run);

} // namespace pozhil

#pragma once

#include "driver/translation.h"
#include "front_end/second_edition.h"

#include <functional>
#include <string>
#include <vector>

namespace pozhil {

/// What happens in a watch loop when the source has changed.
struct WatchSteps {
    /// Told to the user at once
    const char* changeNote;
    /// Takes the changed source, parsed, and its output text
    std::function<void(const ParsedSource&, const OutputText&)> build;
    /// Takes the failure of a stage in place of the build
    std::function<void(const StageFailure&)> reportFailure;
    /// Takes the fault that is about to end the process; may be empty
    std::function<void(const Fault&)> prepareEnd{};
};

/// Whether a changed source is still of the edition that it is watched in, which can't change while it is. Tells it if not,
/// and what is wrong with the line that asks for an edition.
bool keepsEdition(const SourcePtr& source, Edition edition);

/// Calls \p react whenever a file changes, after it has told so. Never returns.
/// \throws std::filesystem::filesystem_error if the file vanishes
[[noreturn]] void watchFile(const std::string& path, const char* changeNote, const std::function<void()>& react);

/// Compiles a source file anew whenever it changes, each time on objects of its own. Never returns; a fault
/// with a box ends the process.
/// \throws std::filesystem::filesystem_error if the source file vanishes
[[noreturn]] void watchSource(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps);

} // namespace pozhil

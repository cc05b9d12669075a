#pragma once

#include "driver/second_translation.h"
#include "driver/translation.h"

#include <functional>
#include <string>

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
    /// Called after the user was told that the source is no longer of the edition it is watched in; may be empty
    std::function<void()> afterOtherKind{};
};

/// The same for a source of the second edition.
struct SecondWatchSteps {
    const char* changeNote;
    /// Whether an application is watched, not a console program
    bool isForPages = false;
    std::function<void(const SecondTranslation&)> build;
    /// Takes what was told of a source with faults; may be empty
    std::function<void(const SecondFaults&)> afterFaults{};
    /// Called after the user was told that the source is no longer of the edition it is watched in, or has gained or lost
    /// its application; may be empty
    std::function<void()> afterOtherKind{};
};

/// Compiles a source file anew whenever it changes, each time on objects of its own. Never returns; a fault
/// with a box ends the process.
/// \throws std::filesystem::filesystem_error if the source file vanishes
[[noreturn]] void watchSource(const std::string& sourcePath, const FrontEndOptions& options, const WatchSteps& steps);

/// The same for a source of the second edition; after faults the next change is waited for, and a file that vanishes may
/// come back.
[[noreturn]] void watchSource(const std::string& sourcePath, const FrontEndOptions& options,
                              const SecondWatchSteps& steps);

} // namespace pozhil

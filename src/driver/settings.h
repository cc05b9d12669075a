#pragma once

#include <chrono>
#include <string>
#include <vector>

/// What a user may set by environment variables. Without them everything stands as documented in the README.
namespace pozhil::settings {

/// Pause after each byte of the compile line: POZHIL_ANIMATION_MS, 20 ms by default.
std::chrono::milliseconds animationDelay();

/// Arguments added to the g++ command line: POZHIL_CXXFLAGS.
std::vector<std::string> cxxFlags();

/// Arguments added to the em++ command line: POZHIL_EMFLAGS.
std::vector<std::string> emFlags();

/// What the user wishes of the words that g++ writes.
enum class ToolchainWords {
    Default, ///< each edition as it is used to: the first shows them, the second doesn't
    Hidden,
    Shown
};

/// Whether what g++ writes is shown: POZHIL_SHOW_CXX, hidden for 0 and shown for 1.
ToolchainWords toolchainWords();

/// Whether hints are shown: POZHIL_HINTS, unless it is 0.
bool showsHints();

/// Whether texts may have colours: not if NO_COLOR is set to anything but the empty text.
bool allowsColours();

/// The address that the server of web applications listens on: POZHIL_HOST; empty for all that this machine has.
std::string serverHost();

/// Whether that server answers its own pages alone, on this machine alone: POZHIL_STRICT, only if it is 1.
bool isServerStrict();

/// Where imports are looked for after the working directory, in order: POZHIL_MODULES or its default, then the
/// installation's own modules.
/// \param appDirectory the installation
std::vector<std::string> moduleDirectories(const std::string& appDirectory);

} // namespace pozhil::settings

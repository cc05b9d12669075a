#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::platform {

/// A program to start. No shell stands between: every argument arrives as it is, whatever characters it holds.
struct Command {
    /// The program, looked up in PATH if it holds no slash, and its arguments.
    std::vector<std::string> arguments;
    /// Variables that only this program sees, beside those of this process.
    std::vector<std::pair<std::string, std::string>> environment;
};

/// Exit status of a program that could not be started at all.
constexpr int COULD_NOT_START = 127;

/// How a program ended and what it wrote.
struct CommandResult {
    int status = 0;
    std::string output;
    std::string errors;
};

// Programs that are waited for get the signals that end this process (platform/interrupt.h).

/// As many programs may run at a time; signals don't reach more.
constexpr std::size_t MOST_PROGRAMS = 64;

/// Runs a program in the foreground with this process's console and waits for it.
/// \return its exit status, 128 plus the signal if one ended it, COULD_NOT_START if there was none to start
int run_command(const Command& command);

/// Runs a program without a console and waits for it.
/// \return its exit status as above, and everything it wrote
CommandResult captureCommand(const Command& command);

/// What a program may take that is stopped if it takes more.
struct Limits {
    std::chrono::milliseconds time;
    /// Bytes that it writes
    std::size_t output;
};

/// How a program with limits ended.
struct LimitedResult : CommandResult {
    bool tookTooLong = false;
    bool wroteTooMuch = false;
};

/// Runs a program without a console and without input, and stops it with all that it runs where it goes beyond the limits.
LimitedResult captureCommand(const Command& command, const Limits& limits);

/// Runs a program, whatever it writes thrown away, and waits for it.
/// \return its exit status as above
int runSilently(const Command& command);

/// Lets programs that are started from now on nest their calls far deeper than usual, as compilers do for source that is
/// deeply nested. Where the system doesn't allow it, nothing changes.
void allowDeepStacks();

/// Starts a program in the background, apart from this process's console, and doesn't wait for it. If it can't be
/// started, nothing happens.
void startInBackground(const Command& command);

/// Where \p name, a program without a folder, stands in PATH; nothing if it doesn't.
std::optional<std::filesystem::path> findProgram(const std::string& name);

/// \p text cut into words at blanks; single and double quotes keep blanks together.
std::vector<std::string> splitWords(const std::string& text);

} // namespace pozhil::platform

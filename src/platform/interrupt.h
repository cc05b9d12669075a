#pragma once

#include <filesystem>
#include <string>

namespace pozhil::platform {

/// From now on a signal that asks this process alone to end (TERM, HUP, INT, QUIT; none that is ignored) reaches the
/// programs that it runs as well. Once these have ended, it ends by the signal, as it otherwise does at once.
void passOnEndSignals();

/// From now on an interrupt (Ctrl+C), unless it is ignored, writes \p message to standard output and ends the process with
/// status 0, whatever any thread is doing, once the programs that it runs have ended too. What std::cout still holds is
/// lost: flush it before waiting.
/// \param message must live as long as the process
void endOnInterrupt(const char* message);

/// While it lives, a signal that ends this process has \p text written to standard output first, such as what switches
/// colours off. One at a time.
class EndingText {
public:
    /// \param text outlives the object
    explicit EndingText(const char* text);
    ~EndingText();
    EndingText(const EndingText&) = delete;
    EndingText& operator=(const EndingText&) = delete;
};

/// While it lives, a signal that ends this process has a directory removed with all in it, once the programs that this
/// process runs have ended. One at a time.
class EndingRemoval {
public:
    explicit EndingRemoval(const std::filesystem::path& directory);
    ~EndingRemoval();
    EndingRemoval(const EndingRemoval&) = delete;
    EndingRemoval& operator=(const EndingRemoval&) = delete;

private:
    /// A signal handler may read it, but not make it.
    std::string directory_;
};

} // namespace pozhil::platform

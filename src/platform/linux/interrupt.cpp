#include "platform/interrupt.h"

#include "platform/linux/running_program.h"
#include "platform/process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace pozhil::platform {
namespace {

// Lock-free, and so the one way to share values with a signal handler, which may run on any thread.
std::atomic<const char*> farewell{nullptr};
std::atomic<const char*> endingText{nullptr};
std::atomic<const char*> endingRemoval{nullptr};
std::atomic<int> endSignal{0};
std::atomic<int> programs{0};
std::array<std::atomic<pid_t>, MOST_PROGRAMS> targets{};

void writeOut(const char* text) {
    if (text != nullptr) {
        const ssize_t ignored = write(STDOUT_FILENO, text, std::strlen(text));
        static_cast<void>(ignored);
    }
}

/// By a program of its own, since a signal handler may start one, but not read a directory.
void removeDirectory(const char* directory) {
    const pid_t child = fork();
    if (child == 0) {
        execl("/bin/rm", "rm", "-rf", "--", directory, nullptr);
        _exit(1);
    }
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// Only what a signal handler may call: streams and exit() could wait for ever for the thread that was interrupted.
[[noreturn]] void endBy(int signal) {
    constexpr int SIGNALLED = 128;
    writeOut(endingText.load());
    if (const char* directory = endingRemoval.exchange(nullptr)) {
        removeDirectory(directory);
    }
    if (signal == SIGINT && farewell.load() != nullptr) {
        writeOut(farewell.load());
        _exit(0);
    }
    std::signal(signal, SIG_DFL);
    sigset_t own{};
    sigemptyset(&own);
    sigaddset(&own, signal);
    pthread_sigmask(SIG_UNBLOCK, &own, nullptr);
    raise(signal);
    _exit(SIGNALLED + signal);
}

/// What a terminal sends, such as that of Ctrl+C, reaches the programs in the foreground by itself; groups of their own
/// don't get it.
void signal_handler(int signal, siginfo_t* info, void* /*context*/) {
    const int error = errno;
    const bool isOfTerminal = info->si_code == SI_KERNEL;
    endSignal.store(signal);
    for (const std::atomic<pid_t>& target : targets) {
        const pid_t process = target.load();
        if (process < 0 || (process > 0 && !isOfTerminal)) {
            kill(process, signal);
        }
    }
    if (programs.load() == 0) {
        endBy(signal);
    }
    errno = error;
}

/// Asks first: a signal that is ignored may come at any time.
void handleUnlessIgnored(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler != SIG_IGN) {
        action = {};
        action.sa_sigaction = signal_handler;
        action.sa_flags = SA_SIGINFO | SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

void passOnEndSignals() {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT}) {
        handleUnlessIgnored(signal);
    }
}

void endOnInterrupt(const char* message) {
    farewell.store(message);
    handleUnlessIgnored(SIGINT);
}

EndingText::EndingText(const char* text) {
    endingText.store(text);
}

EndingText::~EndingText() {
    endingText.store(nullptr);
}

EndingRemoval::EndingRemoval(const std::filesystem::path& directory) : directory_(directory.u8string()) {
    endingRemoval.store(directory_.c_str());
}

/// If a signal has taken it already, the process is about to end, and nothing may go on with what is being removed.
EndingRemoval::~EndingRemoval() {
    while (endingRemoval.exchange(nullptr) == nullptr) {
        pause();
    }
}

/// Either the handler sees that a program is about to run, or the signal is seen here.
RunningProgram::RunningProgram() {
    ++programs;
    if (endSignal.load() != 0) {
        leave();
    }
}

RunningProgram::~RunningProgram() {
    leave();
}

/// After a signal, the last program to end takes the process with it, and nothing else may go on meanwhile.
void RunningProgram::leave() {
    const bool isLast = --programs == 0;
    const int signal = endSignal.load();
    if (signal == 0) {
        return;
    }
    if (isLast) {
        endBy(signal);
    }
    while (true) {
        pause();
    }
}

void RunningProgram::hasStarted(pid_t target) {
    for (std::atomic<pid_t>& place : targets) {
        pid_t free = 0;
        if (place.compare_exchange_strong(free, target)) {
            target_ = &place;
            break;
        }
    }
    if (const int signal = endSignal.load()) {
        kill(target, signal);
    }
}

void RunningProgram::hasEnded() {
    if (target_ != nullptr) {
        target_->store(0);
    }
}

} // namespace pozhil::platform

#pragma once

/// Waits in a generated program for the fault that nothing in it catches, and then has the last word on standard error.
/// The program ends by the same signal as without.

#include "death_trace.h"
#include "words.h"

#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstdlib>

// What generated programs define. The compiler and its tests, which link the report too, lack the last one.
extern __attribute__((weak)) int g_current_call_line;
extern __attribute__((weak)) int g_call_depth;
__attribute__((weak)) void init_globals();

namespace pozhil::last_word {

/// What is found out while the program is still well.
struct Watch {
    const char* source = nullptr;
    const char* trace = nullptr;
    std::uintptr_t stackTop = 0;
    std::uintptr_t stackSize = 0;
    std::atomic<bool> hasSpoken = false;
};

inline Watch watch;

/// How long the end of a program may be put off.
constexpr int PATIENCE_MS = 1000;

inline bool isGeneratedProgram() {
    return init_globals != nullptr && &g_current_call_line != nullptr && &g_call_depth != nullptr;
}

/// Writes as long as standard error takes something: a reader that has gone or stands still must not keep the program
/// from ending.
inline void writeToStandardError(const char* text, std::size_t size) {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    while (size > 0) {
        pollfd stream = {STDERR_FILENO, POLLOUT, 0};
        if (poll(&stream, 1, PATIENCE_MS) != 1) {
            return;
        }
        const ssize_t written = write(STDERR_FILENO, text, size);
        if (written <= 0) {
            return;
        }
        text += written;
        size -= static_cast<std::size_t>(written);
    }
}

/// Only the first fault speaks. One in another thread gives it the time to do so, before both end.
inline void speak(const Cause& cause) {
    if (watch.hasSpoken.exchange(true)) {
        poll(nullptr, 0, PATIENCE_MS);
        return;
    }
    Paragraph paragraph;
    addWord(paragraph, cause, {watch.source, g_current_call_line, g_call_depth});
    writeToStandardError(paragraph.data(), paragraph.size());
    if (watch.trace != nullptr) {
        leaveTrace(watch.trace);
    }
}

[[noreturn]] inline void endByException() {
    speak(causeOfException());
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

/// Whether \p address lies where the stack would have to grow to. Linux keeps at least 128 MB free below it.
inline bool isBelowStack(const void* address) {
    constexpr std::uintptr_t KEPT_FREE = std::uintptr_t{128} << 20U;
    const std::uintptr_t distance = watch.stackTop - reinterpret_cast<std::uintptr_t>(address);
    return distance < std::max(watch.stackSize, KEPT_FREE);
}

inline const Cause& causeOfSignal(int signal, const siginfo_t& info) {
    if (signal == SIGFPE) {
        return DIVISION_BY_ZERO;
    }
    return signal == SIGSEGV && isBelowStack(info.si_addr) ? STACK_OVERFLOW : BROKEN_MEMORY;
}

/// The signal is back at its default action by now. It can't come through before this function is left.
inline void endBySignal(int signal, siginfo_t* info, void* /*context*/) {
    const bool isSentByOthers = info->si_code <= 0 && info->si_pid != getpid();
    if (!isSentByOthers) {
        speak(causeOfSignal(signal, *info));
    }
    raise(signal);
}

/// Handlers run on a stack of their own, since the program's may be used up.
inline void watchSignals() {
    constexpr std::size_t STACK_SIZE = 65536;
    static std::array<char, STACK_SIZE> ownStack;
    stack_t stack = {};
    stack.ss_sp = ownStack.data();
    stack.ss_size = ownStack.size();
    sigaltstack(&stack, nullptr);

    struct sigaction action = {};
    action.sa_sigaction = endBySignal;
    action.sa_flags = static_cast<int>(SA_SIGINFO | SA_ONSTACK | SA_RESETHAND);
    for (const int signal : {SIGFPE, SIGSEGV, SIGABRT}) {
        sigaction(signal, &action, nullptr);
    }
}

/// Does nothing in the compiler and its tests.
/// \return whether this is a generated program
inline bool watchProgram() {
    if (!isGeneratedProgram()) {
        return false;
    }
    watch.source = std::getenv(SOURCE_VARIABLE);
    watch.trace = std::getenv(TRACE_VARIABLE);
    if (watch.trace != nullptr) {
        prepareTrace();
    }
    watch.stackTop = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    rlimit limit = {};
    if (getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY) {
        watch.stackSize = limit.rlim_cur;
    }
    std::set_terminate(endByException);
    watchSignals();
    return true;
}

} // namespace pozhil::last_word

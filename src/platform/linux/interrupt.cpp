#include "platform/interrupt.h"

#include <atomic>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace pozhil::platform {
namespace {

/// Lock-free, and so the one way to hand a value to a signal handler that may run on any thread.
std::atomic<const char*> farewell{""};

/// Only what a signal handler may call: streams and exit() could wait for ever for the thread that was interrupted.
void signal_handler(int) {
    const char* const message = farewell.load();
    const ssize_t ignored = write(STDOUT_FILENO, message, std::strlen(message));
    static_cast<void>(ignored);
    _exit(0);
}

} // namespace

void endOnInterrupt(const char* message) {
    farewell.store(message);
    std::signal(SIGINT, signal_handler);
}

} // namespace pozhil::platform

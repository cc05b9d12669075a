#pragma once

#include <atomic>
#include <sys/types.h>

namespace pozhil::platform {

/// A program that this process is about to run and wait for: signals that end this process are passed on to it, and wait
/// for the end of the object. If such a signal has come already, construction or destruction doesn't return.
class RunningProgram {
public:
    RunningProgram();
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// \param target its process, or its process group as a negative number
    void hasStarted(pid_t target);

    /// Whoever gets its number from now on is another.
    void hasEnded();

private:
    static void leave();

    std::atomic<pid_t>* target_ = nullptr;
};

} // namespace pozhil::platform

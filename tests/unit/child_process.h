#pragma once

/// Runs code that ends its process, or never ends, in a process of its own.

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>
#include <thread>

struct ChildResult {
    std::string output;
    /// -1 when the action came back, -2 when a signal ended the process.
    int exitStatus;
};

inline constexpr int CHILD_CAME_BACK = 111;

/// What \p action writes to standard output in a forked process, and how that process ends.
inline ChildResult runInChild(const std::function<void()>& action) {
    std::cout.flush();
    std::fflush(stdout);
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0) {
        return {"no pipe", -2};
    }
    const pid_t child = fork();
    if (child == 0) {
        dup2(channel[1], STDOUT_FILENO);
        close(channel[0]);
        close(channel[1]);
        action();
        std::cout.flush();
        std::fflush(stdout);
        _exit(CHILD_CAME_BACK);
    }
    close(channel[1]);
    ChildResult result{"", -2};
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = read(channel[0], buffer.data(), buffer.size())) > 0) {
        result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    close(channel[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) {
        result.exitStatus = WEXITSTATUS(status) == CHILD_CAME_BACK ? -1 : WEXITSTATUS(status);
    }
    return result;
}

/// Whether \p action is still at work after \p patience; its process is ended then.
inline bool runsOn(const std::function<void()>& action, std::chrono::milliseconds patience) {
    const pid_t child = fork();
    if (child == 0) {
        action();
        _exit(0);
    }
    std::this_thread::sleep_for(patience);
    int status = 0;
    const bool running = waitpid(child, &status, WNOHANG) == 0;
    if (running) {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
    }
    return running;
}

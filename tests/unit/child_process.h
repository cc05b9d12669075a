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
#include <stdexcept>
#include <string>
#include <thread>

struct ChildResult {
    std::string output;
    /// -1 when the action came back, -2 when a signal ended the process.
    int exitStatus = -2;
    std::string errors{};
};

inline constexpr int CHILD_CAME_BACK = 111;

/// All that was written to \p file, which is closed.
inline std::string contentOf(std::FILE* file) {
    std::string content;
    std::rewind(file);
    std::array<char, 4096> chunk{};
    for (std::size_t count = 0; (count = std::fread(chunk.data(), 1, chunk.size(), file)) > 0;) {
        content.append(chunk.data(), count);
    }
    std::fclose(file);
    return content;
}

/// What \p action writes to the standard streams in a forked process, and how that process ends.
inline ChildResult runInChild(const std::function<void()>& action) {
    std::cout.flush();
    std::fflush(nullptr);
    std::FILE* output = std::tmpfile();
    std::FILE* errors = std::tmpfile();
    if (output == nullptr || errors == nullptr) {
        throw std::runtime_error("no temporary files for the streams of a child process");
    }
    const pid_t child = fork();
    if (child == 0) {
        dup2(fileno(output), STDOUT_FILENO);
        dup2(fileno(errors), STDERR_FILENO);
        action();
        std::cout.flush();
        std::fflush(stdout);
        _exit(CHILD_CAME_BACK);
    }
    ChildResult result;
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        throw std::runtime_error("no child process");
    }
    if (WIFEXITED(status)) {
        result.exitStatus = WEXITSTATUS(status) == CHILD_CAME_BACK ? -1 : WEXITSTATUS(status);
    }
    result.output = contentOf(output);
    result.errors = contentOf(errors);
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

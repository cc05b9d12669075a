#include "support/diagnosis.h"

#include <array>
#include <cstdio>
#include <exception>
#include <iostream>
#include <regex>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace pozhil::test {
namespace {

/// Exit status of a child that came to the end of its work; no diagnostic ends with it.
constexpr int DONE = 42;
constexpr int THROWN = 43;

struct Outcome {
    int status = 0; ///< as waitpid gives it
    std::string out;
};

std::string contentOf(std::FILE* file) {
    std::string content;
    std::rewind(file);
    std::array<char, 4096> chunk{};
    for (std::size_t count = 0; (count = std::fread(chunk.data(), 1, chunk.size(), file)) > 0;) {
        content.append(chunk.data(), count);
    }
    return content;
}

[[noreturn]] void runAndExit(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& exception) {
        std::cout << exception.what() << std::flush;
        _exit(THROWN);
    }
    _exit(DONE);
}

Outcome runInChild(const std::function<void()>& work) {
    std::FILE* out = std::tmpfile();
    if (out == nullptr) {
        throw std::runtime_error("no temporary file for the child's output");
    }
    std::cout.flush();
    std::fflush(nullptr);
    Outcome outcome;
    const pid_t child = fork();
    if (child == 0) {
        dup2(fileno(out), STDOUT_FILENO);
        runAndExit(work);
    }
    if (child < 0 || waitpid(child, &outcome.status, 0) != child) {
        throw std::runtime_error("no child process");
    }
    outcome.out = contentOf(out);
    std::fclose(out);
    return outcome;
}

} // namespace

std::string diagnosisOf(const std::function<void()>& work) {
    const Outcome outcome = runInChild(work);
    if (!WIFEXITED(outcome.status)) {
        return "ended by signal " + std::to_string(WTERMSIG(outcome.status));
    }
    const int status = WEXITSTATUS(outcome.status);
    if (status == DONE) {
        return "none";
    }
    if (status == THROWN) {
        return "exception " + outcome.out;
    }
    static const std::regex place("\x1b\\[1;93m(பொழி-[0-9]+)[^]*?: (வரி -?[0-9]+)");
    std::smatch found;
    if (status != 1 || !std::regex_search(outcome.out, found, place)) {
        return "status " + std::to_string(status) + ": " + outcome.out;
    }
    return found.str(1) + " " + found.str(2);
}

std::string reportOf(const std::function<void()>& work) {
    return runInChild(work).out;
}

} // namespace pozhil::test

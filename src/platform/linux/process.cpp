#include "platform/process.h"

#include <cerrno>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace pozhil::platform {
namespace {

/// An anonymous file in memory that takes what a program writes.
class CaptureFile {
public:
    CaptureFile() : descriptor_(memfd_create("pozhil", MFD_CLOEXEC)) {}
    ~CaptureFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }
    CaptureFile(const CaptureFile&) = delete;
    CaptureFile& operator=(const CaptureFile&) = delete;

    int descriptor() const { return descriptor_; }

    std::string content() const {
        std::string text;
        std::array<char, 65536> buffer{};
        ssize_t count = 0;
        while ((count = pread(descriptor_, buffer.data(), buffer.size(), static_cast<off_t>(text.size()))) > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    int descriptor_;
};

/// Descriptors that a program gets in place of this process's own.
class FileActions {
public:
    FileActions() { posix_spawn_file_actions_init(&actions_); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void redirect(int from, int to) { posix_spawn_file_actions_adddup2(&actions_, from, to); }
    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

bool isVariable(const std::string& assignment, const std::string& name) {
    return assignment.size() > name.size() && assignment[name.size()] == '=' && assignment.rfind(name, 0) == 0;
}

/// This process's variables, those of the command in place of theirs.
std::vector<std::string> childEnvironment(const Command& command) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string assignment = *variable;
        const bool isReplaced = std::any_of(command.environment.begin(), command.environment.end(),
                                            [&](const auto& own) { return isVariable(assignment, own.first); });
        if (!isReplaced) {
            variables.push_back(assignment);
        }
    }
    for (const auto& [name, value] : command.environment) {
        variables.push_back(name);
        variables.back().append("=").append(value);
    }
    return variables;
}

/// The null-terminated array of C strings that system calls take.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers(texts.size() + 1, nullptr);
    std::transform(texts.begin(), texts.end(), pointers.begin(), [](std::string& text) { return text.data(); });
    return pointers;
}

int waitFor(pid_t child) {
    constexpr int SIGNALLED = 128;
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return COULD_NOT_START;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : SIGNALLED + WTERMSIG(status);
}

int spawnAndWait(const Command& command, const FileActions& actions) {
    std::vector<std::string> arguments = command.arguments;
    std::vector<std::string> environment = childEnvironment(command);
    pid_t child = 0;
    const int error = posix_spawnp(&child, arguments.front().c_str(), actions.get(), nullptr,
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    return error == 0 ? waitFor(child) : COULD_NOT_START;
}

} // namespace

int run_command(const Command& command) {
    return spawnAndWait(command, FileActions());
}

CommandResult captureCommand(const Command& command) {
    const CaptureFile output;
    const CaptureFile errors;
    FileActions actions;
    actions.redirect(output.descriptor(), STDOUT_FILENO);
    actions.redirect(errors.descriptor(), STDERR_FILENO);
    CommandResult result;
    result.status = spawnAndWait(command, actions);
    result.output = output.content();
    result.errors = errors.content();
    return result;
}

} // namespace pozhil::platform

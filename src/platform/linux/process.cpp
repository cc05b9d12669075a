#include "platform/process.h"

#include "platform/environment.h"
#include "platform/linux/running_program.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <system_error>
#include <thread>

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

    std::size_t size() const {
        struct stat facts {};
        return fstat(descriptor_, &facts) == 0 ? static_cast<std::size_t>(facts.st_size) : 0;
    }

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
    void discard(int descriptor) { posix_spawn_file_actions_addopen(&actions_, descriptor, "/dev/null", O_RDWR, 0); }
    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

bool isVariable(const std::string& assignment, const std::string& name) {
    return assignment.size() > name.size() && assignment[name.size()] == '=' && assignment.rfind(name, 0) == 0;
}

/// What a program is started with beside its descriptors.
class Attributes {
public:
    explicit Attributes(short flags) {
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(&attributes_, flags);
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    const posix_spawnattr_t* get() const { return &attributes_; }

private:
    posix_spawnattr_t attributes_{};
};

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

/// Nothing if the program can't be started.
std::optional<pid_t> spawn(const Command& command, const FileActions& actions, short flags = 0) {
    std::vector<std::string> arguments = command.arguments;
    std::vector<std::string> environment = childEnvironment(command);
    pid_t child = 0;
    const int error = posix_spawnp(&child, arguments.front().c_str(), actions.get(), Attributes(flags).get(),
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    return error == 0 ? std::optional<pid_t>(child) : std::nullopt;
}

/// Leaves the child's number its own until waitFor() is called.
void awaitEnd(pid_t child) {
    siginfo_t ignored{};
    while (waitid(P_PID, static_cast<id_t>(child), &ignored, WEXITED | WNOWAIT) < 0 && errno == EINTR) {
    }
}

bool hasEnded(pid_t child) {
    siginfo_t facts{};
    return waitid(P_PID, static_cast<id_t>(child), &facts, WEXITED | WNOWAIT | WNOHANG) == 0 && facts.si_pid == child;
}

enum class Ground {
    Fore, ///< with the console, whose keys reach it
    Back  ///< a group of its own, so that a signal reaches whatever the program runs in turn
};

int spawnAndWait(const Command& command, const FileActions& actions, Ground ground) {
    RunningProgram running;
    const bool hasGroup = ground == Ground::Back;
    const auto child = spawn(command, actions, hasGroup ? POSIX_SPAWN_SETPGROUP : short{0});
    if (!child) {
        return COULD_NOT_START;
    }
    running.hasStarted(hasGroup ? -*child : *child);
    awaitEnd(*child);
    running.hasEnded();
    return waitFor(*child);
}

} // namespace

int run_command(const Command& command) {
    return spawnAndWait(command, FileActions(), Ground::Fore);
}

CommandResult captureCommand(const Command& command) {
    const CaptureFile output;
    const CaptureFile errors;
    FileActions actions;
    actions.redirect(output.descriptor(), STDOUT_FILENO);
    actions.redirect(errors.descriptor(), STDERR_FILENO);
    CommandResult result;
    result.status = spawnAndWait(command, actions, Ground::Back);
    result.output = output.content();
    result.errors = errors.content();
    return result;
}

LimitedResult captureCommand(const Command& command, const Limits& limits) {
    constexpr std::chrono::milliseconds BETWEEN_LOOKS(2);
    const CaptureFile output;
    const CaptureFile errors;
    FileActions actions;
    actions.discard(STDIN_FILENO);
    actions.redirect(output.descriptor(), STDOUT_FILENO);
    actions.redirect(errors.descriptor(), STDERR_FILENO);
    LimitedResult result;
    RunningProgram running;
    const auto child = spawn(command, actions, POSIX_SPAWN_SETPGROUP);
    if (!child) {
        result.status = COULD_NOT_START;
        return result;
    }
    running.hasStarted(-*child);
    const auto end = std::chrono::steady_clock::now() + limits.time;
    while (!hasEnded(*child) && !result.tookTooLong && !result.wroteTooMuch) {
        std::this_thread::sleep_for(BETWEEN_LOOKS);
        result.tookTooLong = std::chrono::steady_clock::now() > end;
        result.wroteTooMuch = output.size() + errors.size() > limits.output;
    }
    if (result.tookTooLong || result.wroteTooMuch) {
        kill(-*child, SIGKILL);
    }
    awaitEnd(*child);
    running.hasEnded();
    result.status = waitFor(*child);
    result.output = output.content();
    result.errors = errors.content();
    return result;
}

int runSilently(const Command& command) {
    FileActions actions;
    actions.discard(STDOUT_FILENO);
    actions.discard(STDERR_FILENO);
    return spawnAndWait(command, actions, Ground::Back);
}

void allowDeepStacks() {
    constexpr rlim_t DEEP = rlim_t(512) * 1024 * 1024;
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur < DEEP) {
        limit.rlim_cur = limit.rlim_max == RLIM_INFINITY ? DEEP : std::min(limit.rlim_max, DEEP);
        setrlimit(RLIMIT_STACK, &limit);
    }
}

void startInBackground(const Command& command) {
    FileActions actions;
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        actions.discard(descriptor);
    }
    // A session of its own, so that the interrupt that ends this process doesn't reach it.
    if (const auto child = spawn(command, actions, POSIX_SPAWN_SETSID)) {
        std::thread(waitFor, *child).detach(); // or it would stay behind as a zombie
    }
}

std::optional<std::filesystem::path> findProgram(const std::string& name) {
    std::istringstream folders(environmentVariable("PATH").value_or(""));
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::filesystem::path program = std::filesystem::path(folder) / name;
        std::error_code ignored;
        if (std::filesystem::is_regular_file(program, ignored) && access(program.c_str(), X_OK) == 0) {
            return program;
        }
    }
    return std::nullopt;
}

} // namespace pozhil::platform

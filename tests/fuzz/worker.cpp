#include "worker.h"

#include <atomic>
#include <csignal>
#include <new>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int SANITIZER_STATUS = 99;
constexpr int LEAK_STATUS = 98;

/// Looking for leaks takes longer than many inputs together, so it is done at the end, and only after a finding once
/// more with a look after each input.
enum class LeakCheck { AtEnd, AfterEachInput };

} // namespace

/// A finding of the sanitizers must be told from an end of the program's own making. What is freed is kept from being
/// used again as long as one input may need; more would only cost time.
extern "C" const char* __asan_default_options() {
    return "exitcode=99:leak_check_at_exit=0:quarantine_size_mb=32";
}

extern "C" const char* __ubsan_default_options() {
    return "exitcode=99";
}

/// Linked with the address sanitizer alone.
extern "C" [[gnu::weak]] int __lsan_do_recoverable_leak_check();

namespace {

bool leaks() {
    return __lsan_do_recoverable_leak_check != nullptr && __lsan_do_recoverable_leak_check() != 0;
}

/// A number that parent and worker both see: the input that the worker is at.
class SharedPosition {
public:
    SharedPosition() {
        void* memory = mmap(nullptr, sizeof *value_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            throw std::runtime_error("no memory to share with the worker");
        }
        value_ = new (memory) std::atomic<std::size_t>(0);
    }
    SharedPosition(const SharedPosition&) = delete;
    SharedPosition& operator=(const SharedPosition&) = delete;
    ~SharedPosition() { munmap(value_, sizeof *value_); }

    std::atomic<std::size_t>& operator*() const { return *value_; }

private:
    std::atomic<std::size_t>* value_ = nullptr;
};

/// What a worker is to do.
struct Inputs {
    std::size_t first;
    std::size_t end;
    const std::function<void()>& work;
    unsigned secondsPerInput;
};

/// An exception that the work lets out must end the worker here, and not meet a handler of the process that the worker
/// was forked from.
[[noreturn]] void doInputs(const Inputs& inputs, LeakCheck leakCheck, std::atomic<std::size_t>& position) noexcept {
    for (; position < inputs.end; ++position) {
        alarm(inputs.secondsPerInput);
        inputs.work();
        if (leakCheck == LeakCheck::AfterEachInput && leaks()) {
            _exit(LEAK_STATUS);
        }
    }
    alarm(0);
    _exit(leaks() ? LEAK_STATUS : 0);
}

std::string reasonOf(int status) {
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        return signal == SIGALRM ? "no end in time" : "signal " + std::to_string(signal);
    }
    switch (WEXITSTATUS(status)) {
    case LEAK_STATUS: return "leak";
    case SANITIZER_STATUS: return "finding of the sanitizers";
    default: return "exit with status " + std::to_string(WEXITSTATUS(status));
    }
}

std::optional<Failure> run(const Inputs& inputs, LeakCheck leakCheck) {
    const SharedPosition position;
    *position = inputs.first;
    const pid_t worker = fork();
    if (worker < 0) {
        throw std::runtime_error("no process for the worker");
    }
    if (worker == 0) {
        doInputs(inputs, leakCheck, *position);
    }
    int status = 0;
    waitpid(worker, &status, 0);
    if (*position == inputs.end && WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        return std::nullopt;
    }
    return Failure{*position, reasonOf(status)};
}

} // namespace

std::optional<Failure> runInWorker(std::size_t first, std::size_t end, const std::function<void()>& work,
                                   unsigned secondsPerInput) {
    const Inputs inputs{first, end, work, secondsPerInput};
    std::optional<Failure> failure = run(inputs, LeakCheck::AtEnd);
    if (!failure || failure->input < end) {
        return failure;
    }
    std::optional<Failure> exactly = run(inputs, LeakCheck::AfterEachInput);
    return exactly && exactly->input < end ? exactly : Failure{end - 1, failure->reason + ", or an input before"};
}

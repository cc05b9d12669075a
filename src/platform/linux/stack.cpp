#include "platform/stack.h"

#include <pthread.h>

#include <cstddef>
#include <exception>

namespace pozhil::platform {
namespace {

constexpr std::size_t MEGABYTE = std::size_t{1024} * 1024;
/// Address space; only what is used of it becomes memory.
constexpr std::size_t OWN_STACK = 64 * MEGABYTE;
constexpr std::size_t USUAL_STACK = 8 * MEGABYTE;

class ThreadAttributes {
public:
    explicit ThreadAttributes(std::size_t stackSize) {
        pthread_attr_init(&attributes_);
        pthread_attr_setstacksize(&attributes_, stackSize);
    }
    ~ThreadAttributes() { pthread_attr_destroy(&attributes_); }
    ThreadAttributes(const ThreadAttributes&) = delete;
    ThreadAttributes& operator=(const ThreadAttributes&) = delete;

    const pthread_attr_t* get() const { return &attributes_; }

private:
    pthread_attr_t attributes_{};
};

struct Task {
    const std::function<int()>& work;
    int result = 0;
    std::exception_ptr failure{};
};

void* carryOut(void* argument) {
    auto& task = *static_cast<Task*>(argument);
    try {
        task.result = task.work();
    } catch (...) {
        task.failure = std::current_exception();
    }
    return nullptr;
}

} // namespace

int runOnOwnStack(const std::function<int()>& work) {
    pthread_setattr_default_np(ThreadAttributes(USUAL_STACK).get());
    Task task{work};
    pthread_t thread{};
    if (pthread_create(&thread, ThreadAttributes(OWN_STACK).get(), carryOut, &task) != 0) {
        return work();
    }
    pthread_join(thread, nullptr);
    if (task.failure) {
        std::rethrow_exception(task.failure);
    }
    return task.result;
}

} // namespace pozhil::platform

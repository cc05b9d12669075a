#include "engine/big_stack.h"

#include "engine/faults.h"

#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace pozhil::engine {
namespace {

constexpr std::size_t MEBIBYTE = std::size_t{1} << 20U;
#ifdef __SANITIZE_ADDRESS__
/// The most that the sanitizer cleans up after a fault.
constexpr std::size_t LARGEST = 60 * MEBIBYTE;
#else
/// Room for hundreds of thousands of calls. Leaving many more would take seconds, for which the user waits to be told.
constexpr std::size_t LARGEST = 128 * MEBIBYTE;
#endif
constexpr std::size_t SMALLEST = 8 * MEBIBYTE;
/// What the last call and the engine need on top of it, raising a fault above all.
constexpr std::size_t KEPT_FREE = MEBIBYTE;
/// The end of the stack that nobody may touch: larger than what a call skips at once.
constexpr std::size_t GUARD = MEBIBYTE;

/// Room from the operating system, which gives it memory only where it is used.
struct Room {
    char* begin = nullptr;
    std::size_t size = 0;
};

Room take(std::size_t size) {
    void* const begin =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
    if (begin == MAP_FAILED) {
        return {};
    }
    return {static_cast<char*>(begin), size};
}

/// No more than a quarter of the machine's memory, since a function that calls itself without end uses all of it.
std::size_t wantedSize() {
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    if (pages <= 0 || pageSize <= 0) {
        return SMALLEST;
    }
    const std::size_t quarter = static_cast<std::size_t>(pages) / 4 * static_cast<std::size_t>(pageSize);
    return std::clamp(quarter / MEBIBYTE * MEBIBYTE, SMALLEST, LARGEST);
}

Room takeStack() {
    for (std::size_t size = wantedSize(); size >= SMALLEST; size /= 2) {
        // Three times as much must be free, or the stack would leave nothing for values where memory is limited.
        const Room spare = take(2 * size);
        const Room stack = spare.begin == nullptr ? Room() : take(size);
        if (spare.begin != nullptr) {
            munmap(spare.begin, spare.size);
        }
        if (stack.begin != nullptr) {
            // Whatever runs past the end ends the program instead of spoiling values.
            mprotect(stack.begin, GUARD, PROT_NONE);
            return stack;
        }
    }
    return {};
}

struct Journey {
    void (*function)(void* argument);
    void* argument;
    ucontext_t home;
    ucontext_t away;
    Room stack;
#ifdef __SANITIZE_ADDRESS__
    const void* homeStack;
    std::size_t homeStackSize;
#endif
};

/// Contexts take no pointers along.
Journey* journey = nullptr;

void travel() {
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_finish_switch_fiber(nullptr, &journey->homeStack, &journey->homeStackSize);
#endif
    journey->function(journey->argument);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_start_switch_fiber(nullptr, journey->homeStack, journey->homeStackSize);
#endif
}

void travelThereAndBack(Journey& there) {
    journey = &there;
    getcontext(&there.away);
    there.away.uc_stack.ss_sp = there.stack.begin;
    there.away.uc_stack.ss_size = there.stack.size;
    there.away.uc_link = &there.home;
    makecontext(&there.away, travel, 0);
#ifdef __SANITIZE_ADDRESS__
    void* fake = nullptr;
    __sanitizer_start_switch_fiber(&fake, there.stack.begin, there.stack.size);
#endif
    swapcontext(&there.home, &there.away);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_finish_switch_fiber(fake, nullptr, nullptr);
#endif
}

/// How much of the stack that is there anyway may be used.
constexpr std::size_t MODEST = 4 * MEBIBYTE;

} // namespace

void runOnBigStack(void (*function)(void* argument), void* argument) {
    if (Frame::stackLimit != nullptr) {
        function(argument); // it runs on one already
        return;
    }
    const Room stack = takeStack();
    if (stack.begin == nullptr) {
        Frame::stackLimit = static_cast<const char*>(__builtin_frame_address(0)) - MODEST;
        function(argument);
        Frame::stackLimit = nullptr;
        return;
    }
    Frame::stackLimit = stack.begin + GUARD + KEPT_FREE;
    Journey there = {};
    there.function = function;
    there.argument = argument;
    there.stack = stack;
    travelThereAndBack(there);
    munmap(stack.begin, stack.size);
    Frame::stackLimit = nullptr;
}

bool extendStack(const void* /*end*/) {
    return false; // it was as large as it may be from the beginning
}

} // namespace pozhil::engine

#include "engine/big_stack.h"

#include "engine/faults.h"

#include <emscripten.h>

#include <cstddef>

/// A program in a browser has two stacks. Its own holds what has an address. What else a call takes lies on that of the
/// browser, which nobody can see or measure: where it ends, the program is left on the spot, past everything that would
/// catch a fault. So now and then, as its own stack grows, the program tries how much room the other one still has.

extern "C" {
/// Of the linker: the end of the program's own stack, which grows towards it.
extern const char __data_end;
}

namespace pozhil::engine {
namespace {

constexpr std::ptrdiff_t KIBIBYTE = 1024;
/// How much of its own stack a piece of work may use before the other one is tried: work begins with that nearly empty.
constexpr std::ptrdiff_t FREE = 32 * KIBIBYTE;
/// How much it may use from one trial to the next: at most a hundred calls or so.
constexpr std::ptrdiff_t STEP = 2 * KIBIBYTE;
/// What the last call and the engine need on top of it, raising a fault above all.
constexpr std::ptrdiff_t KEPT_FREE = 64 * KIBIBYTE;

// clang-format off
/// Whether the browser's stack has room for what a step takes, by far: it lays down so many arguments there.
EM_JS(int, pozhil_stack_has_room, (), {
    Module.stackRoom = Module.stackRoom || new Array(8192).fill(0);
    try {
        (function() {}).apply(null, Module.stackRoom);
        return 1;
    } catch (full) {
        return 0;
    }
});
// clang-format on

/// Where the limit stands when work begins.
const char* firstLimit = nullptr;

} // namespace

void runOnBigStack(void (*function)(void* argument), void* argument) {
    if (Frame::stackLimit != nullptr) {
        function(argument); // it is watched already
        return;
    }
    firstLimit = static_cast<const char*>(__builtin_frame_address(0)) - FREE;
    Frame::stackLimit = firstLimit;
    function(argument);
    Frame::stackLimit = nullptr;
}

bool extendStack(const void* end) {
    const char* const wanted = static_cast<const char*>(end) - STEP;
    const bool isThere = wanted >= &__data_end + KEPT_FREE && pozhil_stack_has_room() != 0;
    // Calls that come after a fault may take more of the browser's stack for as much of their own.
    Frame::stackLimit = isThere ? wanted : firstLimit;
    return isThere;
}

} // namespace pozhil::engine

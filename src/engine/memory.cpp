#include "engine/memory.h"

#include "engine/fault_details.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/system.h"

#include <cstdlib>
#include <new>

namespace pozhil::engine {
namespace {

/// Memory that is put by.
class Reserve {
public:
    bool isThere() const { return memory_ != nullptr; }
    /// Takes some, if it isn't there and there is any.
    void fill() {
        if (!isThere()) {
            memory_ = std::malloc(reserveSize());
        }
    }
    /// Gives it back to the heap.
    void release() {
        std::free(memory_);
        memory_ = nullptr;
    }

private:
    void* memory_ = nullptr;
};

/// For the fault that memory is wanting.
Reserve reserve;
/// For the end of the program: even where it holds on to all memory, it is told.
Reserve lastReserve;

/// Where a value last grew; null for nowhere yet.
Place lastGrowth = nullptr;

/// A fault that takes no memory, for want of the reserve.
[[noreturn]] void raiseBareFault() {
    static Fault::Details bare;
    bare.number = OUT_OF_MEMORY;
    bare.place = lastGrowth;
    ++bare.references; // it is never freed
    throw Fault(&bare);
}

void* tryReallocate(void* old, std::size_t count, std::size_t size) {
    std::size_t bytes = 0;
    if (__builtin_mul_overflow(count, size, &bytes)) {
        return nullptr;
    }
    return std::realloc(old, bytes);
}

} // namespace

void watchMemory() {
    putMemoryBy();
    lastReserve.fill();
    // What operator new calls when there is no memory.
    std::set_new_handler(raiseOutOfMemory);
}

void putMemoryBy() {
    reserve.fill();
}

void useLastMemory() {
    lastReserve.release();
}

void raiseOutOfMemory() {
    if (!reserve.isThere()) {
        raiseBareFault();
    }
    // The heap has what the fault takes.
    reserve.release();
    raise(OUT_OF_MEMORY, lastGrowth);
}

void noteGrowth(Place place) noexcept {
    lastGrowth = place;
}

void* reallocate(void* old, std::size_t count, std::size_t size) {
    void* const room = tryReallocate(old, count, size);
    if (room == nullptr && count > 0 && size > 0) {
        raiseOutOfMemory();
    }
    return room;
}

} // namespace pozhil::engine

#include "engine/memory.h"

#include "engine/raise.h"
#include "engine/running_faults.h"

#include <cstdlib>
#include <new>

namespace pozhil::engine {
namespace {

/// What telling a fault takes, many times over.
constexpr std::size_t RESERVE_SIZE = std::size_t{4} << 20U;

void* reserve = nullptr;

/// Where a value last grew; null for nowhere yet.
Place lastGrowth = nullptr;

/// Gives the reserve back to the heap so that the fault can be made.
[[noreturn]] void tellOutOfMemory() {
    std::free(reserve);
    reserve = nullptr;
    raise(OUT_OF_MEMORY, lastGrowth);
}

/// What operator new calls when there is no memory.
void handleNew() {
    if (reserve == nullptr) {
        throw std::bad_alloc();
    }
    tellOutOfMemory();
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
    std::set_new_handler(handleNew);
}

void putMemoryBy() {
    if (reserve == nullptr) {
        reserve = std::malloc(RESERVE_SIZE);
    }
}

void noteGrowth(Place place) noexcept {
    lastGrowth = place;
}

void* reallocate(void* old, std::size_t count, std::size_t size) {
    void* const room = tryReallocate(old, count, size);
    if (room == nullptr && count > 0 && size > 0) {
        tellOutOfMemory();
    }
    return room;
}

} // namespace pozhil::engine

#pragma once

#include "engine/value.h"

#include <cstddef>

/// Memory that isn't there becomes a fault that the program can catch.

namespace pozhil::engine {

/// From here on operator new raises a fault too, and some memory is put by to tell it with.
void watchMemory();

/// Puts memory by again where a fault is caught, if there is some by now.
void putMemoryBy();

/// Gives back what is kept for telling the fault that ends the program.
void useLastMemory();

/// Notes where a value grows, so that a fault for want of memory can tell: what asks for memory doesn't know.
void noteGrowth(Place place) noexcept;

/// Tells that memory is wanting.
[[noreturn]] void raiseOutOfMemory();

/// Room for so many items of so many bytes, as realloc gives it.
/// \param old null for new room
/// \throw Fault if there is none; the old room is untouched then
void* reallocate(void* old, std::size_t count, std::size_t size);

} // namespace pozhil::engine

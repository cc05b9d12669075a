#pragma once

#include "platform/process.h"

#include <algorithm>
#include <cstddef>
#include <thread>

namespace pozhil::tools {

/// Starts pieces of work that go on by themselves, each a program at most, as many at a time as the machine has processors,
/// and finishes them in their order.
/// \param start starts piece number i
/// \param finish waits for it
template <class Start, class Finish> void inParallel(std::size_t count, Start start, Finish finish) {
    const std::size_t processors = std::thread::hardware_concurrency();
    const std::size_t width = std::clamp<std::size_t>(processors, 1, platform::MOST_PROGRAMS);
    std::size_t started = 0;
    for (std::size_t index = 0; index < count; ++index) {
        for (; started < std::min(count, index + width); ++started) {
            start(started);
        }
        finish(index);
    }
}

} // namespace pozhil::tools

#include "engine/system.h"

#include <chrono>
#include <cmath>
#include <thread>

namespace pozhil::engine {

void passTime(Decimal seconds, Place /*place*/) {
    // Longer than any program runs, and well within what the clock can count.
    constexpr Decimal A_CENTURY = 100 * 365.25 * 24 * 3600;
    std::this_thread::sleep_for(std::chrono::duration<Decimal>(std::fmin(seconds, A_CENTURY)));
}

} // namespace pozhil::engine

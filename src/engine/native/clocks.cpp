#include "engine/system.h"

#include <chrono>

namespace pozhil::engine {

Decimal workClock() {
    return std::chrono::duration<Decimal>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace pozhil::engine

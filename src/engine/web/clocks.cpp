#include "engine/system.h"

#include <emscripten.h>

// clang-format off
/// A page comes to rest unless its program asks what time it is, so scripts watch performance.now. This isn't the program's
/// question.
EM_JS(double, pozhil_work_clock, (), {
    return Object.getPrototypeOf(performance).now.call(performance);
});
// clang-format on

namespace pozhil::engine {

Decimal workClock() {
    constexpr double MILLISECONDS = 1000;
    return pozhil_work_clock() / MILLISECONDS;
}

} // namespace pozhil::engine

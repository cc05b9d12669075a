#pragma once

#include "engine/value.h"

/// A page stands still while its program works, for ever if that never ends. So a page's programs count what they do, and
/// work that takes too long is stopped: like a fault, but பிடி doesn't catch it, or a loop around it would go on.

namespace pozhil::engine {

/// How many steps there are still until somebody looks at the clock.
extern int stepsLeft;

/// Looks at the clock.
void endStep(Place place);

/// Each call of a function and each turn of a loop is a step. Costs next to nothing most of the time.
[[gnu::always_inline]] inline void step(Place place) {
    if (--stepsLeft == 0) {
        endStep(place);
    }
}

/// How long a page may work at a stretch from now on; 5 seconds until this is called.
void setPatience(Decimal seconds);

} // namespace pozhil::engine

#include "engine/stopping.h"

#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/stop.h"
#include "engine/system.h"

#include <algorithm>

namespace pozhil::engine {
namespace {

// A look at the clock takes as long as hundreds of small steps, but nobody knows how long the next steps will take. So there
// are more of them from one look to the next as long as these come soon.
constexpr int FEWEST_STEPS = 64;
constexpr int MOST_STEPS = 8192;
constexpr Decimal SOON = 0.002;

Decimal patience = 5;
bool isTimed = false;
int stepsOfALook = FEWEST_STEPS;
/// When the work that goes on was looked at first, and last; 0 before that.
Decimal firstLook = 0;
Decimal lastLook = 0;

} // namespace

int stepsLeft = FEWEST_STEPS;

/// Between pieces of work nothing tells how long they took: a page whose memory stays the same comes to rest.
void beginTimeAnew() {
    firstLook = 0;
    lastLook = 0;
    stepsOfALook = FEWEST_STEPS;
    stepsLeft = FEWEST_STEPS;
}

void endStep(Place place) {
    const Decimal now = workClock();
    if (firstLook == 0) {
        firstLook = now;
    } else {
        stepsOfALook = now - lastLook < SOON ? std::min(MOST_STEPS, stepsOfALook * 2) : FEWEST_STEPS;
    }
    lastLook = now;
    stepsLeft = stepsOfALook;
    if (isTimed && now - firstLook > patience) {
        beginTimeAnew();
        throw Stop{faultWithWay(ENDLESS_WORK, place)};
    }
}

void setPatience(Decimal seconds) {
    patience = seconds;
}

TimedWork::TimedWork() : wasTimed_(isTimed) {
    isTimed = true;
    beginTimeAnew();
}

/// What goes on around it begins anew: what it waited for wasn't its own.
TimedWork::~TimedWork() {
    isTimed = wasTimed_;
    beginTimeAnew();
}

} // namespace pozhil::engine

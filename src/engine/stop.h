#pragma once

#include "engine/faults.h"

namespace pozhil::engine {

/// Ends a piece of work that takes too long, on its way past every பிடி.
struct Stop {
    Fault fault;
};

/// The time of a piece of work counts from here on.
void beginTimeAnew();

/// A piece of a page's work: its time counts from its first steps on.
class TimedWork {
public:
    TimedWork();
    ~TimedWork();
    TimedWork(const TimedWork&) = delete;
    TimedWork& operator=(const TimedWork&) = delete;

private:
    bool wasTimed_;
};

} // namespace pozhil::engine

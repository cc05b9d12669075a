#pragma once

#include "engine/value.h"

namespace pozhil::engine {

/// The block of a value with Tag::Time: a moment, and how the clock of the place showed it.
struct TimeStamp : Counted {
    /// Since the beginning of 1970 in UTC.
    long long nanoseconds = 0;
    int year = 0;
    /// From 1 on.
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    /// From 0, Sunday, on.
    int weekday = 0;
};

/// The block of a value with Tag::Time. Times are equal if their nanoseconds are.
inline const TimeStamp& timeBlock(const Value& value) {
    return *static_cast<const TimeStamp*>(value.block());
}

} // namespace pozhil::engine

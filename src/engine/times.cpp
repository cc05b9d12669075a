#include "engine/blocks.h"
#include "engine/library.h"
#include "engine/output.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/system.h"
#include "engine/text.h"
#include "engine/time_stamp.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>

namespace pozhil::engine {
namespace {

using Clock = std::chrono::system_clock;

const TimeStamp& checkedTime(const Value& time, Place place) {
    if (!time.is(Tag::Time)) {
        raise(NOT_A_TIME, place, {kindWord(time)});
    }
    return timeBlock(time);
}

std::string dateOf(const TimeStamp& time) {
    char text[48];
    std::snprintf(text, sizeof(text), "%02d-%02d-%04d", time.day, time.month, time.year);
    return text;
}

std::string clockOf(const TimeStamp& time) {
    char text[48];
    std::snprintf(text, sizeof(text), "%02d:%02d:%02d", time.hour, time.minute, time.second);
    return text;
}

} // namespace

void wait(const Value& seconds, Place place) {
    if (!seconds.is(Tag::Whole) && !seconds.is(Tag::Decimal)) {
        raise(BAD_WAIT, place, {kindWord(seconds)});
    }
    const Decimal count = seconds.is(Tag::Whole) ? static_cast<Decimal>(seconds.whole()) : seconds.decimal();
    // Not a number is refused as well.
    if (!(count >= 0)) {
        raise(BAD_WAIT, place, {textForm(seconds)});
    }
    flushOutput();
    passTime(count, place);
}

Value now(Place /*place*/) {
    const Clock::time_point moment = Clock::now();
    const std::time_t seconds = Clock::to_time_t(moment);
    const std::tm* const shown = std::localtime(&seconds);
    constexpr int FIRST_YEAR = 1900;
    auto time = std::make_unique<TimeStamp>();
    time->nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(moment.time_since_epoch()).count();
    time->year = shown->tm_year + FIRST_YEAR;
    time->month = shown->tm_mon + 1;
    time->day = shown->tm_mday;
    time->hour = shown->tm_hour;
    time->minute = shown->tm_min;
    time->second = shown->tm_sec;
    time->weekday = shown->tm_wday;
    return Value(Tag::Time, time.release());
}

void freeTime(Counted* block) noexcept {
    delete static_cast<TimeStamp*>(block);
}

Value dateText(const Value& time, Place place) {
    return makeText(dateOf(checkedTime(time, place)));
}
Value clockText(const Value& time, Place place) {
    return makeText(clockOf(checkedTime(time, place)));
}
Value dateAndClockText(const Value& time, Place place) {
    const TimeStamp& stamp = checkedTime(time, place);
    return makeText(dateOf(stamp) + " " + clockOf(stamp));
}
Value dateText(Place place) {
    return dateText(now(place), place);
}
Value clockText(Place place) {
    return clockText(now(place), place);
}
Value dateAndClockText(Place place) {
    return dateAndClockText(now(place), place);
}

Decimal secondsSince1970(Place /*place*/) {
    return std::chrono::duration<Decimal>(Clock::now().time_since_epoch()).count();
}

Whole year(const Value& time, Place place) {
    return checkedTime(time, place).year;
}
Whole month(const Value& time, Place place) {
    return checkedTime(time, place).month;
}
Whole day(const Value& time, Place place) {
    return checkedTime(time, place).day;
}
Whole hour(const Value& time, Place place) {
    return checkedTime(time, place).hour;
}
Whole minute(const Value& time, Place place) {
    return checkedTime(time, place).minute;
}
Whole second(const Value& time, Place place) {
    return checkedTime(time, place).second;
}
Whole weekday(const Value& time, Place place) {
    return checkedTime(time, place).weekday;
}

} // namespace pozhil::engine

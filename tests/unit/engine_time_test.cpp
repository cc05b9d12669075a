#include "engine/running_faults.h"
#include "engine/time_stamp.h"
#include "engine_support.h"

#include <cmath>
#include <cstdlib>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::MatchesRegex;

constexpr Place HERE = "1:0-1";

TEST(Time, StaysWhatItIs) {
    const Value before = now(HERE);
    const std::string shown = form(dateAndClockText(before, HERE));
    wait(0.01, HERE);
    const Value after = now(HERE);
    EXPECT_EQ(form(dateAndClockText(before, HERE)), shown);
    EXPECT_TRUE(equal(before, before));
    const Value copy = before;
    EXPECT_TRUE(equal(before, copy));
    EXPECT_FALSE(equal(before, after));
    EXPECT_LT(timeBlock(before).nanoseconds, timeBlock(after).nanoseconds);
}

TEST(Time, TellsItsParts) {
    auto* const stamp = new TimeStamp;
    stamp->year = 2026;
    stamp->month = 3;
    stamp->day = 7;
    stamp->hour = 9;
    stamp->minute = 5;
    stamp->second = 1;
    stamp->weekday = 6;
    const Value time(Tag::Time, stamp);
    EXPECT_EQ(form(dateText(time, HERE)), "07-03-2026");
    EXPECT_EQ(form(clockText(time, HERE)), "09:05:01");
    EXPECT_EQ(form(dateAndClockText(time, HERE)), "07-03-2026 09:05:01");
    EXPECT_EQ(year(time, HERE), 2026);
    EXPECT_EQ(month(time, HERE), 3);
    EXPECT_EQ(day(time, HERE), 7);
    EXPECT_EQ(hour(time, HERE), 9);
    EXPECT_EQ(minute(time, HERE), 5);
    EXPECT_EQ(second(time, HERE), 1);
    EXPECT_EQ(weekday(time, HERE), 6);
}

TEST(Time, IsThatOfTheClock) {
    const Value present = now(HERE);
    EXPECT_NEAR(static_cast<double>(timeBlock(present).nanoseconds) / 1e9, secondsSince1970(HERE), 5);
    EXPECT_GE(month(present, HERE), 1);
    EXPECT_LE(month(present, HERE), 12);
    EXPECT_LE(weekday(present, HERE), 6);
    EXPECT_THAT(form(dateText(HERE)), MatchesRegex("[0-9][0-9]-[0-9][0-9]-[0-9][0-9][0-9][0-9]"));
    EXPECT_THAT(form(clockText(HERE)), MatchesRegex("[0-9][0-9]:[0-9][0-9]:[0-9][0-9]"));
    EXPECT_EQ(form(dateAndClockText(HERE)).size(), 19U);
}

TEST(Time, NothingElseIsATime) {
    EXPECT_EQ(faultOf([] { year(2026, HERE); }), NOT_A_TIME);
    EXPECT_EQ(faultOf([] { dateText(text("நேற்று"), HERE); }), NOT_A_TIME);
}

TEST(Wait, TakesAsLongAsItIsTold) {
    const Decimal before = secondsSince1970(HERE);
    wait(0.05, HERE);
    EXPECT_GE(secondsSince1970(HERE) - before, 0.05);
    wait(0, HERE);
    EXPECT_LT(secondsSince1970(HERE) - before, 5);
}

TEST(Wait, TakesNumbersFromZeroOn) {
    EXPECT_EQ(faultOf([] { wait(text("100"), HERE); }), BAD_WAIT);
    EXPECT_EQ(faultOf([] { wait(-1, HERE); }), BAD_WAIT);
    EXPECT_EQ(faultOf([] { wait(-0.5, HERE); }), BAD_WAIT);
    EXPECT_EQ(faultOf([] { wait(std::nan(""), HERE); }), BAD_WAIT);
    EXPECT_EQ(faultOf([] { wait(true, HERE); }), BAD_WAIT);
}

TEST(Chance, StaysWithinItsBounds) {
    std::set<Whole> seen;
    for (int i = 0; i < 1000; ++i) {
        seen.insert(randomNumber(1, 6.0, HERE));
    }
    EXPECT_EQ(seen, (std::set<Whole>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(randomNumber(3, 3, HERE), 3);
    EXPECT_LT(randomNumber(-9, -5, HERE), -4);
    const Whole largest = 9223372036854775807;
    randomNumber(-largest - 1, largest, HERE);
}

TEST(Chance, TellsBoundsThatAreCrossed) {
    EXPECT_EQ(faultOf([] { randomNumber(2, 1, HERE); }), BOUNDS_CROSSED);
    EXPECT_NE(faultOf([] { randomNumber(text("1"), 2, HERE); }), 0);
    EXPECT_NE(faultOf([] { randomNumber(1.5, 2, HERE); }), 0);
}

} // namespace

#include "engine/list.h"
#include "engine/running_faults.h"
#include "engine_support.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;

constexpr Place HERE = "1:0-1";

/// All that a loop goes over, with blanks between.
std::string goneOver(const Value& iterable) {
    std::string all;
    Each each(iterable, HERE);
    for (Value variable; each.next(variable);) {
        all += form(variable) + " ";
    }
    return all;
}

TEST(Each, GoesOverElementsKeysAndLetters) {
    EXPECT_EQ(goneOver(list({3, 1, text("அ")})), "3 1 அ ");
    EXPECT_EQ(goneOver(map({{text("ஆ"), 1}, {text("அ"), 2}}, HERE)), "அ ஆ ");
    EXPECT_EQ(goneOver(text("தமிழ் 😀!")), "த மி ழ்   😀 ! ");
    EXPECT_EQ(goneOver(list({})), "");
    EXPECT_EQ(goneOver(text("")), "");
}

TEST(Each, TellsWhatItCannotGoOver) {
    EXPECT_EQ(faultOf([] { goneOver(5); }), NOT_ITERABLE);
    EXPECT_EQ(faultOf([] { goneOver(Value()); }), NOT_ITERABLE);
}

TEST(Each, KeepsTheVariableAtTheEnd) {
    Value variable = 7;
    Each none(list({}), HERE);
    EXPECT_FALSE(none.next(variable));
    EXPECT_EQ(variable.whole(), 7);
    Each one(list({8}), HERE);
    EXPECT_TRUE(one.next(variable));
    EXPECT_FALSE(one.next(variable));
    EXPECT_EQ(variable.whole(), 8);
}

TEST(Each, IsFixedAtItsBeginning) {
    Value values = list({1, 2, 3});
    std::string all;
    {
        Each each(values, HERE);
        for (Value variable; each.next(variable);) {
            all += form(variable);
            append(values, 9, HERE);
            slot(values, 2, HERE) = 0;
            // Assignments to the variable don't disturb the count.
            variable = 50;
        }
    }
    EXPECT_EQ(all, "123");
    EXPECT_EQ(form(values), "[1, 2, 0, 9, 9, 9]");
    EXPECT_EQ(holders(values), 1);
}

TEST(Each, OutlivesTheVariableThatHeldIt) {
    Value values = map({{1, 2}, {3, 4}}, HERE);
    std::string all;
    Each each(values, HERE);
    values = Value();
    for (Value variable; each.next(variable);) {
        all += form(variable);
    }
    EXPECT_EQ(all, "13");
}

TEST(Each, EntriesOfAMapCanBeTakenOutOnTheWay) {
    Value values = map({{1, 0}, {2, 0}, {3, 0}}, HERE);
    Each each(values, HERE);
    for (Value variable; each.next(variable);) {
        removeFrom(values, variable, HERE);
        slot(values, add(variable, 10, HERE), HERE) = 1;
    }
    EXPECT_EQ(form(values), "{11: 1, 12: 1, 13: 1}");
}

} // namespace

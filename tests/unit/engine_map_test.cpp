#include "engine/map.h"
#include "engine/running_faults.h"
#include "engine_support.h"

#include <chrono>
#include <map>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;

constexpr Place HERE = "1:0-1";

#ifdef __SANITIZE_ADDRESS__
constexpr Whole MANY = 200'000;
#else
constexpr Whole MANY = 1'000'000;
#endif

TEST(Map, FindsValuesByKey) {
    const Value values = map({{text("அ"), 1}, {5, text("ஐந்து")}, {true, 2.5}}, HERE);
    EXPECT_EQ(form(get(values, text("அ"), HERE)), "1");
    EXPECT_EQ(form(get(values, 5, HERE)), "ஐந்து");
    EXPECT_EQ(form(get(values, Whole{5}, HERE)), "ஐந்து");
    EXPECT_EQ(form(get(values, true, HERE)), "2.5");
}

TEST(Map, TellsKeysApartByKind) {
    const Value values = map({{text("1"), 1}, {1, 2}, {true, 3}}, HERE);
    EXPECT_EQ(mapSize(mapBlock(values)), 3U);
    EXPECT_EQ(form(get(values, 1, HERE)), "2");
    EXPECT_EQ(form(get(values, true, HERE)), "3");
}

TEST(Map, WholeDecimalsAreWholeKeys) {
    Value values = map({{2.0, 1}}, HERE);
    EXPECT_EQ(form(get(values, 2, HERE)), "1");
    slot(values, 2, HERE) = 7;
    EXPECT_EQ(form(values), "{2: 7}");
    EXPECT_EQ(faultOf([&] { get(values, 2.5, HERE); }), NO_KEY);
    EXPECT_EQ(faultOf([&] { slot(values, 1e300, HERE); }), NO_KEY);
}

TEST(Map, OfEqualKeysTheLastOneCounts) {
    EXPECT_EQ(form(map({{text("அ"), 1}, {text("அ"), 2}}, HERE)), "{\"அ\": 2}");
}

TEST(Map, TellsTheMissingKey) {
    Value values = map({{text("அ"), 1}}, HERE);
    EXPECT_EQ(faultOf([&] { get(values, text("ஆ"), HERE); }), NO_SUCH_KEY);
    EXPECT_THAT(messageOf([&] { get(values, text("ஆ"), HERE); }), HasSubstr("\"ஆ\""));
    EXPECT_THAT(messageOf([&] { removeFrom(values, text("ஆ"), HERE); }), HasSubstr("\"ஆ\""));
    EXPECT_THAT(messageOf([&] { get(values, 7, HERE); }), HasSubstr(" 7 "));
    EXPECT_LT(messageOf([&] { get(values, makeText(std::string(100'000, 'x')), HERE); }).size(), 500U);
    EXPECT_EQ(faultOf([&] { element(values, text("ஆ"), HERE); }), NO_SUCH_KEY);
    EXPECT_EQ(faultOf([&] { removeFrom(values, text("ஆ"), HERE); }), NO_SUCH_KEY);
    EXPECT_EQ(form(values), "{\"அ\": 1}") << "looking for a key must not make it";
}

TEST(Map, TellsWhatIsNoKey) {
    Value values = makeMap();
    EXPECT_EQ(faultOf([&] { slot(values, list({1}), HERE); }), NO_KEY);
    EXPECT_EQ(faultOf([&] { slot(values, Value(), HERE); }), NO_KEY);
    EXPECT_EQ(faultOf([&] { map({{1.5, 1}}, HERE); }), NO_KEY);
    EXPECT_FALSE(contains(values, list({1}), HERE));
}

TEST(Map, GoesInTheOrderOfItsKeys) {
    Value values = map({{text("க"), 1}, {10, 2}, {text("அ"), 3}, {true, 4}, {-5, 5}, {text("க்"), 6}, {false, 7}}, HERE);
    EXPECT_EQ(form(values), "{பொய்: 7, மெய்: 4, -5: 5, 10: 2, \"அ\": 3, \"க்\": 6, \"க\": 1}");
    slot(values, text("ஆ"), HERE) = 8;
    removeFrom(values, 10, HERE);
    EXPECT_EQ(form(values), "{பொய்: 7, மெய்: 4, -5: 5, \"அ\": 3, \"ஆ\": 8, \"க்\": 6, \"க\": 1}");
}

TEST(Map, CopiesAreIndependent) {
    Value first = map({{text("அ"), list({1})}}, HERE);
    Value second = first;
    append(element(second, text("அ"), HERE), 2, HERE);
    slot(second, text("ஆ"), HERE) = 3;
    Value third = second;
    removeFrom(third, text("அ"), HERE);
    EXPECT_EQ(form(first), "{\"அ\": [1]}");
    EXPECT_EQ(form(second), "{\"அ\": [1, 2], \"ஆ\": 3}");
    EXPECT_EQ(form(third), "{\"ஆ\": 3}");
}

TEST(Map, CanHoldACopyOfItself) {
    Value values = map({{1, 2}}, HERE);
    put(values, 3, values, HERE);
    EXPECT_EQ(form(values), "{1: 2, 3: {1: 2}}");
}

TEST(Map, CountsItsHolders) {
    const Value inner = list({1});
    {
        Value values = map({{1, inner}, {2, inner}}, HERE);
        Value copy = values;
        EXPECT_EQ(holders(inner), 3);
        removeFrom(copy, 1, HERE);
        EXPECT_EQ(holders(inner), 4);
        slot(values, 1, HERE) = 5;
        EXPECT_EQ(holders(inner), 3);
    }
    EXPECT_EQ(holders(inner), 1);
}

TEST(Map, HoldsAMillionKeys) {
    Value values = makeMap();
    constexpr Whole COUNT = MANY;
    for (Whole i = 0; i < COUNT; ++i) {
        // Only the high bits differ.
        slot(values, i * (Whole{1} << 40U), HERE) = i;
    }
    EXPECT_EQ(mapSize(mapBlock(values)), static_cast<std::size_t>(COUNT));
    Whole sum = 0;
    for (Whole i = 0; i < COUNT; ++i) {
        sum += get(values, i * (Whole{1} << 40U), HERE).whole();
    }
    EXPECT_EQ(sum, COUNT * (COUNT - 1) / 2);
    for (Whole i = 0; i < COUNT; ++i) {
        removeFrom(values, i * (Whole{1} << 40U), HERE);
    }
    EXPECT_EQ(form(values), "{}");
}

TEST(Map, KeepsItsOrderWhileItGrows) {
    Value values = makeMap();
    for (Whole i = 0; i < 2000; ++i) {
        slot(values, (i * 7919) % 2003, HERE) = i;
        const std::size_t size = mapSize(mapBlock(values));
        const Value& last = keyAt(mapBlock(values), size - 1);
        ASSERT_GE(last.whole(), keyAt(mapBlock(values), size / 2).whole());
    }
}

TEST(Map, FindsKeysThatOnlyUnassignedCodePointsTellApart) {
    for (const char* const sign : {"\u0B80", "\u0B96", "\u0BFF"}) {
        const Value longer = makeText(std::string("க") + sign);
        Value values = map({{text("க"), 1}, {longer, 2}, {text("க்ஷ"), 3}, {makeText(sign), 4}}, HERE);
        EXPECT_FALSE(form(values).empty());
        removeFrom(values, text("க"), HERE);
        EXPECT_EQ(get(values, longer, HERE).whole(), 2);
        removeFrom(values, makeText(sign), HERE);
        EXPECT_EQ(form(values), "{\"" + form(longer) + "\": 2, \"க்ஷ\": 3}");
    }
}

/// What is done while keys come and go must not order all of them anew each time.
TEST(Map, GivesItsSmallestKeyAgainAndAgain) {
    constexpr Whole COUNT = 20'000;
    Value values = makeMap();
    for (Whole i = 0; i < COUNT; ++i) {
        slot(values, (i * 7919) % COUNT, HERE) = i;
    }
    const auto begin = std::chrono::steady_clock::now();
    for (Whole i = 0; i < COUNT; ++i) {
        const Value smallest = keyAt(mapBlock(values), 0);
        ASSERT_EQ(smallest.whole(), i);
        removeFrom(values, smallest, HERE);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

TEST(Map, ForgetsManyKeysInARow) {
    constexpr Whole COUNT = 300'000;
    Value values = makeMap();
    for (Whole i = 0; i < COUNT; ++i) {
        slot(values, i, HERE) = i;
    }
    EXPECT_EQ(keyAt(mapBlock(values), 0).whole(), 0);
    const auto begin = std::chrono::steady_clock::now();
    for (Whole i = 0; i < COUNT - 2; ++i) {
        removeFrom(values, i, HERE);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    EXPECT_EQ(form(values), "{299998: 299998, 299999: 299999}");
}

/// Several maps that are copied, written and dropped at random, each beside a std::map that is always copied whole.
TEST(Map, DoesWhatStandardMapsDo) {
    constexpr std::size_t COUNT = 3;
    std::mt19937 generator(20261122);
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(generator()) % limit; };
    std::vector<Value> maps(COUNT, makeMap());
    std::vector<std::map<Whole, Whole>> models(COUNT);
    for (int step = 0; step < 30'000; ++step) {
        const std::size_t one = below(COUNT);
        const auto key = static_cast<Whole>(below(60)) * 8;
        std::map<Whole, Whole>& model = models[one];
        switch (below(8)) {
        case 0: {
            const std::size_t other = below(COUNT);
            maps[one] = maps[other];
            models[one] = std::map<Whole, Whole>(models[other]);
            break;
        }
        case 1:
        case 2:
        case 3:
            if (model.erase(key) == 1) {
                removeFrom(maps[one], key, HERE);
            } else {
                EXPECT_EQ(faultOf([&] { removeFrom(maps[one], key, HERE); }), NO_SUCH_KEY);
            }
            break;
        default: model[key] = step; slot(maps[one], key, HERE) = step;
        }
        Map& block = mapBlock(maps[one]);
        ASSERT_EQ(mapSize(block), model.size());
        std::size_t index = 0;
        for (const auto& [modelKey, modelValue] : model) {
            ASSERT_EQ(keyAt(block, index).whole(), modelKey) << "step " << step;
            ASSERT_EQ(valueAt(block, index).whole(), modelValue) << "step " << step;
            ASSERT_EQ(findKey(block, modelKey)->whole(), modelValue) << "step " << step;
            ++index;
        }
    }
}

} // namespace

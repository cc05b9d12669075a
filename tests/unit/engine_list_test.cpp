#include "engine/list.h"
#include "engine/running_faults.h"
#include "engine_support.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;

constexpr Place HERE = "1:0-1";

TEST(List, IsReadByIndex) {
    const Value values = list({1, text("இரண்டு"), 3.5});
    EXPECT_EQ(form(get(values, Value(0), HERE)), "1");
    EXPECT_EQ(form(get(values, Value(1), HERE)), "இரண்டு");
    EXPECT_EQ(form(get(values, Value(2.0), HERE)), "3.5");
    EXPECT_EQ(form(get(values, Whole{2}, HERE)), "3.5");
}

TEST(List, TellsIndexAndLength) {
    Value values = list({1, 2, 3});
    for (const Whole index : {Whole{3}, Whole{-1}, Whole{9223372036854775807}}) {
        EXPECT_EQ(faultOf([&] { get(values, index, HERE); }), NO_SUCH_INDEX);
        EXPECT_EQ(faultOf([&] { get(values, Value(index), HERE); }), NO_SUCH_INDEX);
        EXPECT_EQ(faultOf([&] { element(values, index, HERE); }), NO_SUCH_INDEX);
        EXPECT_EQ(faultOf([&] { slot(values, index, HERE); }), NO_SUCH_INDEX);
    }
    EXPECT_THAT(messageOf([&] { get(values, Value(-1), HERE); }), HasSubstr("-1"));
    EXPECT_THAT(messageOf([&] { get(values, Value(-1), HERE); }), HasSubstr("நீளம் 3"));
}

TEST(List, TakesNothingButNumbersForIndices) {
    const Value values = list({1, 2});
    EXPECT_EQ(faultOf([&] { get(values, text("0"), HERE); }), NO_INDEX);
    EXPECT_EQ(faultOf([&] { get(values, Value(true), HERE); }), NO_INDEX);
    EXPECT_EQ(faultOf([&] { get(values, Value(), HERE); }), NO_INDEX);
    EXPECT_NE(faultOf([&] { get(values, Value(0.5), HERE); }), 0);
}

TEST(List, OnlyContainersHaveElements) {
    for (const Value& value : {Value(5), Value(1.5), Value(true), Value()}) {
        Value copy = value;
        EXPECT_EQ(faultOf([&] { get(copy, Value(0), HERE); }), HAS_NO_ELEMENTS);
        EXPECT_EQ(faultOf([&] { get(copy, Whole{0}, HERE); }), HAS_NO_ELEMENTS);
        EXPECT_EQ(faultOf([&] { slot(copy, Value(0), HERE); }), HAS_NO_ELEMENTS);
    }
}

TEST(List, LettersOfTextsAreReadAndNotWritten) {
    Value word = text("அம்மா");
    EXPECT_EQ(form(get(word, Value(1), HERE)), "ம்");
    EXPECT_EQ(form(get(word, Whole{2}, HERE)), "மா");
    EXPECT_EQ(faultOf([&] { get(word, Value(3), HERE); }), NO_SUCH_LETTER);
    EXPECT_THAT(messageOf([&] { get(word, Value(3), HERE); }), HasSubstr("நீளம் 3"));
    EXPECT_EQ(faultOf([&] { slot(word, Value(0), HERE) = text("ஆ"); }), LETTERS_STAY);
}

TEST(List, CopiesAreIndependent) {
    Value first = list({1, 2});
    Value second = first;
    EXPECT_EQ(listBlock(first).elements, listBlock(second).elements);
    slot(second, Value(0), HERE) = 9;
    append(second, 3, HERE);
    EXPECT_EQ(form(first), "[1, 2]");
    EXPECT_EQ(form(second), "[9, 2, 3]");
}

TEST(List, InnerListsAreIndependentToo) {
    Value first = list({list({1, 2}), list({3})});
    Value second = first;
    slot(element(second, Value(0), HERE), Value(1), HERE) = 9;
    append(element(second, Value(1), HERE), 4, HERE);
    EXPECT_EQ(form(first), "[[1, 2], [3]]");
    EXPECT_EQ(form(second), "[[1, 9], [3, 4]]");
}

TEST(List, IsWrittenInPlaceWhileNobodyElseHoldsIt) {
    Value values = makeList(4);
    append(values, 1, HERE);
    const Value* const before = listBlock(values).elements;
    slot(values, Value(0), HERE) = 2;
    append(values, 3, HERE);
    EXPECT_EQ(listBlock(values).elements, before);
}

TEST(List, CanHoldACopyOfItself) {
    Value values = list({1});
    append(values, values, HERE);
    put(values, 0, values, HERE);
    EXPECT_EQ(form(values), "[[1, [1]], [1]]");
}

TEST(List, KeepsAnElementThatIsAppendedToItWhileItGrows) {
    Value values = list({text("ஒன்று"), 2, 3, 4});
    for (int i = 0; i < 100; ++i) {
        append(values, listBlock(values).elements[0], HERE);
    }
    EXPECT_EQ(form(get(values, Value(103), HERE)), "ஒன்று");
}

TEST(List, AMillionWholeNumbersTakeLittleMemory) {
    Value values = makeList();
    for (Whole i = 0; i < 1'000'000; ++i) {
        append(values, i, HERE);
    }
    constexpr std::size_t MOST_BYTES = 24UL << 20U;
    EXPECT_LE(listBlock(values).capacity * sizeof(Value), MOST_BYTES);
    EXPECT_EQ(get(values, Whole{999'999}, HERE).whole(), 999'999);
}

TEST(List, RemovesTheFirstEqualElement) {
    Value values = list({1, 2, 1, list({1}), text("அ")});
    const Value copy = values;
    removeFrom(values, 1, HERE);
    removeFrom(values, list({1}), HERE);
    removeFrom(values, text("அ"), HERE);
    EXPECT_EQ(form(values), "[2, 1]");
    EXPECT_EQ(form(copy), "[1, 2, 1, [1], அ]");
    EXPECT_EQ(faultOf([&] { removeFrom(values, text("1"), HERE); }), NOT_IN_LIST);
    EXPECT_THAT(messageOf([&] { removeFrom(values, text("1"), HERE); }), HasSubstr("\"1\""));
    EXPECT_LT(messageOf([&] { removeFrom(values, range(100'000, HERE), HERE); }).size(), 500U);
    EXPECT_EQ(form(values), "[2, 1]");
}

TEST(List, FunctionsTellWhatTheyTake) {
    Value number = 5;
    EXPECT_EQ(faultOf([&] { append(number, 1, HERE); }), WRONG_CONTAINER);
    EXPECT_EQ(faultOf([&] { removeFrom(number, 1, HERE); }), WRONG_CONTAINER);
    EXPECT_EQ(faultOf([&] { contains(number, 1, HERE); }), WRONG_CONTAINER);
    EXPECT_THAT(messageOf([&] { append(number, 1, HERE); }), HasSubstr("'சேர்' செயலுக்கு பட்டியல்"));
}

TEST(List, ContainsLooksByContent) {
    const Value values = list({1, text("அ"), list({2})});
    EXPECT_TRUE(contains(values, 1.0, HERE));
    EXPECT_TRUE(contains(values, list({2}), HERE));
    EXPECT_FALSE(contains(values, text("1"), HERE));
    EXPECT_TRUE(contains(text("கிளி"), text("ளி"), HERE));
    EXPECT_FALSE(contains(text("கிளி"), text("க"), HERE));
    EXPECT_FALSE(contains(text("12"), 1, HERE));
}

TEST(List, RangesLeaveTheirEndOut) {
    EXPECT_EQ(form(range(3, HERE)), "[0, 1, 2]");
    EXPECT_EQ(form(range(2.0, HERE)), "[0, 1]");
    EXPECT_EQ(form(range(0, HERE)), "[]");
    EXPECT_EQ(form(range(-2, HERE)), "[]");
    EXPECT_EQ(form(range(2, 5, HERE)), "[2, 3, 4]");
    EXPECT_EQ(form(range(5, 2, HERE)), "[]");
    EXPECT_EQ(form(range(1, 8, 3, HERE)), "[1, 4, 7]");
    EXPECT_EQ(form(range(1, 7, 3, HERE)), "[1, 4]");
    EXPECT_EQ(form(range(3, 0, -1, HERE)), "[3, 2, 1]");
    EXPECT_EQ(form(range(3, 0, -2, HERE)), "[3, 1]");
    EXPECT_EQ(faultOf([] { range(1, 2, 0, HERE); }), STEP_OF_ZERO);
    EXPECT_EQ(faultOf([] { checkedStep(0.0, HERE); }), STEP_OF_ZERO);
}

TEST(List, RangesReachTheEndsOfWholeNumbers) {
    const Whole largest = 9223372036854775807;
    const Whole smallest = -largest - 1;
    EXPECT_EQ(form(range(largest - 2, largest, 2, HERE)), "[9223372036854775805]");
    EXPECT_EQ(listBlock(range(smallest, largest, largest, HERE)).size, 3U);
    EXPECT_EQ(listBlock(range(largest, smallest, smallest, HERE)).size, 2U);
}

TEST(List, CountsItsHolders) {
    const Value inner = list({1});
    {
        Value outer = list({inner, inner});
        EXPECT_EQ(holders(inner), 3);
        Value copy = outer;
        EXPECT_EQ(holders(inner), 3);
        append(copy, 1, HERE);
        EXPECT_EQ(holders(inner), 5);
        removeFrom(copy, inner, HERE);
        EXPECT_EQ(holders(inner), 4);
        slot(outer, 0, HERE) = 5;
        EXPECT_EQ(holders(inner), 3);
    }
    EXPECT_EQ(holders(inner), 1);
}

TEST(List, DeepNestingIsFreed) {
    const Value innermost = makeList();
    {
        Value values = list({innermost});
        for (int i = 0; i < 1'000'000; ++i) {
            Value outer = makeList();
            appendTo(listBlock(outer), static_cast<Value&&>(values));
            values = static_cast<Value&&>(outer);
        }
        EXPECT_EQ(holders(innermost), 2);
    }
    EXPECT_EQ(holders(innermost), 1);
}

/// Several lists that are copied, written and dropped at random, each beside a vector that is always copied whole.
TEST(List, DoesWhatVectorsDo) {
    constexpr std::size_t COUNT = 4;
    std::mt19937 generator(20261122);
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(generator()) % limit; };
    std::vector<Value> lists(COUNT, makeList());
    std::vector<std::vector<Whole>> models(COUNT);
    for (int step = 0; step < 20'000; ++step) {
        const std::size_t one = below(COUNT);
        const auto number = static_cast<Whole>(below(20));
        std::vector<Whole>& model = models[one];
        switch (below(6)) {
        case 0:
        case 1:
            append(lists[one], number, HERE);
            model.push_back(number);
            break;
        case 2: {
            const std::size_t other = below(COUNT);
            lists[one] = lists[other];
            models[one] = std::vector<Whole>(models[other]);
            break;
        }
        case 3:
            if (const auto found = std::find(model.begin(), model.end(), number); found != model.end()) {
                model.erase(found);
                removeFrom(lists[one], number, HERE);
            } else {
                EXPECT_EQ(faultOf([&] { removeFrom(lists[one], number, HERE); }), NOT_IN_LIST);
            }
            break;
        default:
            if (!model.empty()) {
                const std::size_t index = below(model.size());
                model[index] = number;
                slot(lists[one], static_cast<Whole>(index), HERE) = number;
            }
        }
        ASSERT_EQ(listBlock(lists[one]).size, model.size());
        for (std::size_t i = 0; i < model.size(); ++i) {
            ASSERT_EQ(listBlock(lists[one]).elements[i].whole(), model[i]) << "step " << step;
        }
    }
}

/// A list of lists and numbers that is always copied whole.
struct Tree {
    Whole number = 0;
    bool isList = false;
    std::vector<Tree> parts{};

    std::string form() const {
        if (!isList) {
            return std::to_string(number);
        }
        std::string text = "[";
        for (const Tree& part : parts) {
            text += (text.size() > 1 ? ", " : "") + part.form();
        }
        return text + "]";
    }
};

/// A place in a value, and the same one in its model.
struct Twin {
    Value* value;
    Tree* model;
};

/// Walks down at random to a list, so that all lists on the way are written to.
Twin someList(Twin from, std::mt19937& generator) {
    while (!from.model->parts.empty() && generator() % 3 != 0) {
        const std::size_t index = generator() % from.model->parts.size();
        if (!from.model->parts[index].isList) {
            break;
        }
        from = {&element(*from.value, static_cast<Whole>(index), HERE), &from.model->parts[index]};
    }
    return from;
}

/// Lists in lists: however they are copied into each other, writing to one is seen in no other.
TEST(List, NestedCopiesAreNeverSeen) {
    constexpr std::size_t COUNT = 3;
    constexpr std::size_t LARGEST = 500;
    std::mt19937 generator(15);
    std::vector<Value> values(COUNT, makeList());
    std::vector<Tree> models(COUNT, Tree{0, true});
    for (int step = 0; step < 5'000; ++step) {
        const std::size_t one = generator() % COUNT;
        const std::size_t other = generator() % COUNT;
        // Whoever writes takes the value first and the place then, or the value would be written into itself.
        const Value copy = values[other];
        const Tree copiedModel = models[other];
        const Twin place = someList({&values[one], &models[one]}, generator);
        const auto number = static_cast<Whole>(generator() % 10);
        switch (generator() % 5) {
        case 0:
            append(*place.value, copy, HERE);
            place.model->parts.push_back(copiedModel);
            break;
        case 1:
            append(*place.value, number, HERE);
            place.model->parts.push_back({number});
            break;
        case 2:
            *place.value = copy;
            *place.model = copiedModel;
            break;
        case 3:
            if (!place.model->parts.empty()) {
                removeFrom(*place.value, get(*place.value, 0, HERE), HERE);
                place.model->parts.erase(place.model->parts.begin());
            }
            break;
        default:
            if (!place.model->parts.empty()) {
                slot(*place.value, 0, HERE) = number;
                place.model->parts[0] = {number};
            }
        }
        if (models[one].form().size() > LARGEST) {
            values[one] = makeList();
            models[one] = Tree{0, true};
        }
        for (std::size_t i = 0; i < COUNT; ++i) {
            ASSERT_EQ(form(values[i]), models[i].form()) << "step " << step;
        }
    }
}

} // namespace

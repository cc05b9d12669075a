#include "engine_support.h"

#include "engine/function_block.h"
#include "engine/list.h"
#include "engine/operations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>

using namespace pozhil::engine;

namespace {

constexpr Place HERE = "1:0-1";
constexpr Whole LARGEST = std::numeric_limits<Whole>::max();
constexpr Whole SMALLEST = std::numeric_limits<Whole>::min();

Value nested(int depth, Value innermost) {
    for (; depth > 0; --depth) {
        Value outer = makeList(1);
        appendTo(listBlock(outer), std::move(innermost));
        innermost = std::move(outer);
    }
    return innermost;
}

TEST(Equality, IsThatOfNumbers) {
    EXPECT_TRUE(equal(Value(2), Value(2)));
    EXPECT_TRUE(equal(Value(2), Value(2.0)));
    EXPECT_TRUE(equal(Value(2.0), Value(2)));
    EXPECT_TRUE(equal(Value(0.0), Value(-0.0)));
    EXPECT_FALSE(equal(Value(2), Value(2.5)));
    EXPECT_FALSE(equal(Value(std::nan("")), Value(std::nan(""))));
    EXPECT_FALSE(equal(Value(1), Value(std::nan(""))));
}

TEST(Equality, TellsKindsApart) {
    EXPECT_FALSE(equal(Value(1), text("1")));
    EXPECT_FALSE(equal(Value(1), Value(true)));
    EXPECT_FALSE(equal(Value(0), Value()));
    EXPECT_FALSE(equal(text(""), Value()));
    EXPECT_FALSE(equal(list({}), map({}, HERE)));
    EXPECT_TRUE(equal(Value(), Value()));
    EXPECT_TRUE(equal(Value(true), Value(true)));
    EXPECT_FALSE(equal(Value(true), Value(false)));
}

TEST(Equality, LooksIntoTextsListsAndMaps) {
    EXPECT_TRUE(equal(text("அம்மா"), makeText("அம்மா")));
    EXPECT_FALSE(equal(text("அம்மா"), text("அம்மா ")));
    EXPECT_TRUE(equal(makeText("க\u0BC6\u0BBE"), text("கொ")));
    EXPECT_TRUE(equal(list({1, text("அ"), list({})}), list({1.0, text("அ"), list({})})));
    EXPECT_FALSE(equal(list({1, 2}), list({1, 2, 3})));
    EXPECT_FALSE(equal(list({list({1}), 2}), list({list({3}), 2})));
    EXPECT_TRUE(equal(map({{text("அ"), 1}, {2, 3}}, HERE), map({{2, 3}, {text("அ"), 1}}, HERE)));
    EXPECT_FALSE(equal(map({{text("அ"), 1}}, HERE), map({{text("ஆ"), 1}}, HERE)));
    EXPECT_FALSE(equal(map({{text("அ"), list({1})}}, HERE), map({{text("அ"), list({2})}}, HERE)));
    EXPECT_TRUE(equal(list({map({{1, list({2})}}, HERE)}), list({map({{1, list({2})}}, HERE)})));
}

TEST(Equality, OfTimesIsThatOfTheMoment) {
    const Value time = now(HERE);
    EXPECT_TRUE(equal(time, Value(time)));
}

TEST(Equality, OfFunctionsIsDoingTheSame) {
    static const FunctionInfo info = {"செயல்", [](const Closure&, Value*, Place) { return Value(); }, 0, 0};
    static const FunctionInfo other = info;
    EXPECT_TRUE(equal(function(info), function(info)));
    EXPECT_FALSE(equal(function(info), function(other)));
    const Shared first;
    const Shared second;
    EXPECT_TRUE(equal(function(info, {first.cell()}), function(info, {first.cell()})));
    EXPECT_FALSE(equal(function(info, {first.cell()}), function(info, {second.cell()})));
    EXPECT_FALSE(equal(function(info, {first.cell()}), function(info)));
}

TEST(Equality, OfMethodsIsBeingThoseOfTheSameObject) {
    static const FunctionInfo info = {"செயல்", [](const Closure&, Value*, Place) { return Value(); }, 1, 0};
    const Value first = list({});
    const Value second = list({});
    EXPECT_TRUE(equal(boundMethod(info, first), boundMethod(info, first)));
    EXPECT_FALSE(equal(boundMethod(info, first), boundMethod(info, second)));
    EXPECT_FALSE(equal(boundMethod(info, first), function(info)));
}

TEST(Equality, GoesAsDeepAsListsDo) {
    constexpr int DEEP = 300'000;
    EXPECT_TRUE(equal(nested(DEEP, 1), nested(DEEP, 1)));
    EXPECT_FALSE(equal(nested(DEEP, 1), nested(DEEP, 2)));
    EXPECT_FALSE(equal(nested(DEEP, 1), nested(DEEP + 1, 1)));
}

TEST(Order, IsThatOfNumbers) {
    EXPECT_TRUE(less(Value(1), Value(2), HERE));
    EXPECT_FALSE(less(Value(2), Value(2), HERE));
    EXPECT_TRUE(lessEqual(Value(2), Value(2.0), HERE));
    EXPECT_TRUE(less(Value(2), Value(2.5), HERE));
    EXPECT_TRUE(greater(Value(-1.5), Value(-2), HERE));
    EXPECT_TRUE(greaterEqual(Value(3), Value(3), HERE));
    EXPECT_FALSE(greaterEqual(Value(-3), Value(-2.5), HERE));
}

TEST(Order, OfAWholeNumberAndADecimalIsExact) {
    // As a decimal, the one on the left would be the one on the right.
    EXPECT_FALSE(equal(Value((1LL << 53) + 1), Value(9007199254740992.0)));
    EXPECT_TRUE(greater(Value((1LL << 53) + 1), Value(9007199254740992.0), HERE));
    EXPECT_TRUE(less(Value(LARGEST), Value(9223372036854775808.0), HERE));
    EXPECT_TRUE(less(9223372036854774784.0, LARGEST, HERE));
    EXPECT_TRUE(equal(SMALLEST, -9223372036854775808.0));
    EXPECT_TRUE(less(-std::numeric_limits<double>::infinity(), SMALLEST, HERE));
    EXPECT_TRUE(less(LARGEST, std::numeric_limits<double>::infinity(), HERE));
}

TEST(Order, OfAWholeNumberAndADecimalAgreesWithWiderNumbers) {
    std::mt19937_64 random(8);
    for (int round = 0; round < 100'000; ++round) {
        const auto left = static_cast<Whole>(random()) >> (random() % 64);
        const int shift = static_cast<int>(random() % 64);
        const double right =
            std::ldexp(static_cast<double>(static_cast<Whole>(random()) >> shift), -static_cast<int>(random() % 4)) +
            (round % 2 == 0 ? 0 : static_cast<double>(left));
        // 64 bits of mantissa hold either exactly.
        const auto wideLeft = static_cast<long double>(left);
        const auto wideRight = static_cast<long double>(right);
        const int expected = wideLeft < wideRight ? -1 : wideLeft > wideRight ? 1 : 0;
        ASSERT_EQ(compareNumbers(left, right), expected) << left << " " << right;
        ASSERT_EQ(compareNumbers(right, left), -expected) << left << " " << right;
        ASSERT_EQ(compareValues(Value(left), Value(right), HERE), expected);
        ASSERT_EQ(equal(Value(right), Value(left)), expected == 0);
    }
}

TEST(Order, HasNoPlaceForWhatIsNoNumber) {
    const double none = std::nan("");
    for (const Value& number : {Value(1), Value(1.5), Value(none)}) {
        EXPECT_FALSE(less(number, none, HERE));
        EXPECT_FALSE(less(none, number, HERE));
        EXPECT_FALSE(lessEqual(number, none, HERE));
        EXPECT_FALSE(greater(number, none, HERE));
        EXPECT_FALSE(greaterEqual(none, number, HERE));
    }
    EXPECT_FALSE(less(Whole{1}, none, HERE));
    EXPECT_FALSE(greaterEqual(Whole{1}, none, HERE));
    EXPECT_FALSE(equal(none, Whole{1}));
}

TEST(Order, IsForNumbersAndTexts) {
    EXPECT_TRUE(less(text("அணில்"), text("ஆடு"), HERE));
    EXPECT_EQ(faultOf([] { less(Value(5), text("6"), HERE); }), 605);
    EXPECT_EQ(faultOf([] { lessEqual(list({}), list({}), HERE); }), 605);
    EXPECT_EQ(faultOf([] { greater(Value(true), Value(false), HERE); }), 605);
    EXPECT_EQ(faultOf([] { greaterEqual(Value(), Value(1), HERE); }), 605);
    const auto told = toldBy([] { less(Value(5), text("6"), HERE); });
    EXPECT_EQ(told.message, "எண், உரை ஆகியவற்றில் எது பெரியது என்று ஒப்பிட முடியாது.");
    EXPECT_NE(told.suggestion.find("எண்(…)"), std::string::npos);
    EXPECT_EQ(toldBy([] { less(Value(5), list({}), HERE); }).suggestion, "");
}

} // namespace

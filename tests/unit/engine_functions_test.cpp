#include "engine/function_block.h"
#include "engine/running_faults.h"
#include "engine_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;

constexpr Place HERE = "1:0-1";

Value sumOf(const Closure& /*own*/, Value* arguments, Place place) {
    return add(arguments[0], arguments[1], place);
}
constexpr FunctionInfo SUM = {"கூட்டல்", sumOf, 2, 0};

/// Counts in the variable that it shares.
Value countUp(const Closure& own, Value* /*none*/, Place place) {
    Value& count = captured(own, 0)->value();
    count = add(count, 1, place);
    return count;
}
constexpr FunctionInfo COUNTER = {"எண்ணி", countUp, 0, 0};

/// செயல்(மாற்று அ, ஆ)
Value doubleFirst(const Closure& /*own*/, Value* arguments, Place place) {
    arguments[0] = multiply(arguments[0], 2, place);
    arguments[1] = 99;
    return Value();
}
constexpr FunctionInfo DOUBLE_FIRST = {"இரட்டி", doubleFirst, 2, 1};

Value sixOf(const Closure& /*own*/, Value* arguments, Place place) {
    Value sum = 0;
    for (int i = 0; i < 6; ++i) {
        sum = add(sum, arguments[i], place);
    }
    return sum;
}
constexpr FunctionInfo SIX = {"ஆறு", sixOf, 6, 0};

/// Gives the variable that holds it another value and goes on.
Value dropItself(const Closure& own, Value* /*none*/, Place /*place*/) {
    captured(own, 0)->value() = Value();
    return captured(own, 1)->value();
}
constexpr FunctionInfo DROPS_ITSELF = {"மறைவு", dropItself, 0, 0};

TEST(Functions, AreCalled) {
    const Value sum = function(SUM);
    EXPECT_EQ(form(call(sum, {1, 2}, HERE)), "3");
    EXPECT_EQ(form(call(function(SIX), {1, 2, 3, 4, 5, 6}, HERE)), "21");
    EXPECT_EQ(form(sum), "[வினை]");
}

TEST(Functions, CountTheirArguments) {
    const Value sum = function(SUM);
    EXPECT_EQ(faultOf([&] { call(sum, {1}, HERE); }), WRONG_COUNT);
    EXPECT_EQ(faultOf([&] { call(sum, {}, HERE); }), WRONG_COUNT);
    EXPECT_THAT(messageOf([&] {
                    call(sum, {1, 2, 3}, HERE);
                }),
                HasSubstr("'கூட்டல்' செயலுக்கு வேண்டிய உள்ளீடுகளின் எண்ணிக்கை 2; கொடுத்தவை 3."));
}

TEST(Functions, OtherValuesAreNoFunctions) {
    for (const Value& value : {Value(5), Value(), list({}), text("செயல்")}) {
        EXPECT_EQ(faultOf([&] { call(value, {}, HERE); }), NOT_A_FUNCTION);
        EXPECT_EQ(mutableParameters(value), 0U);
    }
    EXPECT_THAT(messageOf([] { call(text("செயல்"), {}, HERE); }), HasSubstr("உரை"));
}

TEST(Functions, ShareVariables) {
    const Shared count(Value(10));
    const Value one = function(COUNTER, {count.cell()});
    const Value other = function(COUNTER, {count.cell()});
    call(one, {}, HERE);
    EXPECT_EQ(form(call(other, {}, HERE)), "12");
    count.value() = 0;
    EXPECT_EQ(form(call(one, {}, HERE)), "1");
}

TEST(Functions, KeepTheirVariablesAlive) {
    const Value held = list({1});
    Value counter;
    {
        const Shared count(Value(0));
        const Shared unrelated(held);
        counter = function(COUNTER, {count.cell(), unrelated.cell()});
        EXPECT_EQ(holders(held), 2);
    }
    call(counter, {}, HERE);
    EXPECT_EQ(form(call(counter, {}, HERE)), "2");
    EXPECT_EQ(holders(held), 2);
    counter = Value();
    EXPECT_EQ(holders(held), 1);
}

TEST(Functions, ShareUnsetVariables) {
    const Shared later;
    EXPECT_TRUE(later.value().is(Tag::Unset));
    const Shared copy(later);
    copy.value() = 5;
    EXPECT_EQ(form(later.value()), "5");
}

TEST(Functions, GiveBackMutableArguments) {
    const Value twice = function(DOUBLE_FIRST);
    EXPECT_EQ(mutableParameters(twice), 1U);
    Value arguments[] = {21, 5};
    callValue(twice, arguments, 2, HERE);
    EXPECT_EQ(form(arguments[0]), "42");
}

TEST(Functions, LiveWhileTheyRun) {
    const Shared self;
    const Shared other(text("நலம்"));
    self.value() = function(DROPS_ITSELF, {self.cell(), other.cell()});
    EXPECT_EQ(form(call(self.value(), {}, HERE)), "நலம்");
    EXPECT_TRUE(self.value().is(Tag::Nothing));
}

TEST(Functions, SeeAPlaceThatIsLentToThemUntilTheCallEnds) {
    Value place = 1;
    Value counter;
    {
        const SharedPlace shared(place);
        counter = function(COUNTER, {shared.cell()});
        place = 5;
        EXPECT_EQ(form(call(counter, {}, HERE)), "6");
        EXPECT_EQ(form(place), "6");
    }
    EXPECT_EQ(form(call(counter, {}, HERE)), "7");
    EXPECT_EQ(form(place), "6");
}

TEST(Functions, MethodsAreBoundToTheirObject) {
    const Value object = text("கிளி");
    const Value method = boundMethod(SUM, object);
    EXPECT_EQ(form(call(method, {text("கள்")}, HERE)), "கிளிகள்");
    EXPECT_EQ(faultOf([&] { call(method, {1, 2}, HERE); }), WRONG_COUNT);
    EXPECT_THAT(messageOf([&] { call(method, {}, HERE); }), HasSubstr("எண்ணிக்கை 1; கொடுத்தவை 0"));

    // The object is no argument, so the places move up by one.
    constexpr FunctionInfo CHANGES_SECOND = {"மாற்றி", sumOf, 2, 2};
    EXPECT_EQ(mutableParameters(boundMethod(CHANGES_SECOND, object)), 1U);
}

TEST(Functions, ArgumentsComeBackFromAFault) {
    Value arguments[] = {list({})};
    EXPECT_NE(faultOf([&] { callValue(boundMethod(SUM, 5), arguments, 1, HERE); }), 0);
    EXPECT_EQ(form(arguments[0]), "[]");
    EXPECT_EQ(holders(arguments[0]), 1);
}

} // namespace

#include "engine_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace pozhil::engine;

namespace {

constexpr Place HERE = "1:0-1";
constexpr Whole LARGEST = std::numeric_limits<Whole>::max();
constexpr Whole SMALLEST = std::numeric_limits<Whole>::min();

TEST(Mathematics, TakesBothKindsOfNumbers) {
    EXPECT_EQ(squareRoot(16, HERE), 4.0);
    EXPECT_EQ(squareRoot(2.25, HERE), 1.5);
    EXPECT_EQ(power(2, 10, HERE), 1024.0);
    EXPECT_EQ(power(2.5, 2, HERE), 6.25);
    EXPECT_EQ(power(2, -1, HERE), 0.5);
    EXPECT_EQ(power(0, 0, HERE), 1.0);
    EXPECT_EQ(power(-8, 3, HERE), -512.0);
    EXPECT_EQ(sine(0, HERE), 0.0);
    EXPECT_DOUBLE_EQ(sine(0.5, HERE), std::sin(0.5));
    EXPECT_DOUBLE_EQ(cosine(1, HERE), std::cos(1.0));
    EXPECT_DOUBLE_EQ(tangent(1, HERE), std::tan(1.0));
    EXPECT_DOUBLE_EQ(logarithm(10, HERE), std::log(10.0));
}

TEST(Mathematics, HasNoAnswerToSomeQuestions) {
    EXPECT_EQ(faultOf([] { squareRoot(-1, HERE); }), 619);
    EXPECT_EQ(messageOf([] { squareRoot(-2.5, HERE); }), "-2.5 என்ற குறை எண்ணுக்கு வர்க்கமூலம் இல்லை.");
    EXPECT_EQ(faultOf([] { logarithm(0, HERE); }), 620);
    EXPECT_EQ(faultOf([] { logarithm(-1.5, HERE); }), 620);
    EXPECT_EQ(faultOf([] { power(-8, 0.5, HERE); }), 621);
    EXPECT_EQ(faultOf([] { power(10, 400, HERE); }), 622);
    EXPECT_EQ(faultOf([] { power(0, -1, HERE); }), 603);
}

TEST(AbsoluteValues, KeepTheKind) {
    EXPECT_EQ(form(absolute(Value(-5), HERE)), "5");
    EXPECT_TRUE(absolute(Value(-5), HERE).is(Tag::Whole));
    EXPECT_EQ(form(absolute(Value(-2.5), HERE)), "2.5");
    EXPECT_EQ(absolute(Whole{-5}, HERE), 5);
    EXPECT_EQ(absolute(LARGEST, HERE), LARGEST);
    EXPECT_EQ(absolute(-2.5, HERE), 2.5);
    EXPECT_EQ(faultOf([] { absolute(SMALLEST, HERE); }), 602);
    EXPECT_EQ(faultOf([] { absolute(Value(SMALLEST), HERE); }), 602);
}

TEST(Rounding, GivesWholeNumbers) {
    EXPECT_EQ(roundUp(2.1, HERE), 3);
    EXPECT_EQ(roundUp(-2.9, HERE), -2);
    EXPECT_EQ(roundDown(2.9, HERE), 2);
    EXPECT_EQ(roundDown(-2.1, HERE), -3);
    EXPECT_EQ(roundUp(2.0, HERE), 2);
    // Not by way of a decimal.
    EXPECT_EQ(roundDown(LARGEST, HERE), LARGEST);
    EXPECT_EQ(roundUp(SMALLEST, HERE), SMALLEST);
    EXPECT_EQ(faultOf([] { roundUp(1e19, HERE); }), 609);
    EXPECT_EQ(faultOf([] { roundDown(-1e300, HERE); }), 609);
}

TEST(Mathematics, IsForNumbersOnly) {
    EXPECT_EQ(faultOf([] { squareRoot(text("16"), HERE); }), 615);
    EXPECT_EQ(faultOf([] { power(2, text("2"), HERE); }), 615);
    EXPECT_EQ(faultOf([] { absolute(list({}), HERE); }), 615);
    EXPECT_EQ(faultOf([] { roundUp(true, HERE); }), 615);
    EXPECT_EQ(faultOf([] { sine(Value(), HERE); }), 615);
    EXPECT_EQ(messageOf([] { logarithm(text("1"), HERE); }), "'மடக்கு' செயலுக்கு எண் வேண்டும்; கிடைத்தது உரை.");
}

} // namespace

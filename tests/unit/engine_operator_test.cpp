#include "engine_support.h"

#include "engine/operations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace pozhil::engine;

namespace {

constexpr Whole LARGEST = std::numeric_limits<Whole>::max();
constexpr Whole SMALLEST = std::numeric_limits<Whole>::min();
constexpr Place HERE = "1:0-1";

using Operation = Value (*)(const Value&, const Value&);
Value sum(const Value& left, const Value& right) {
    return add(left, right, HERE);
}
Value difference(const Value& left, const Value& right) {
    return subtract(left, right, HERE);
}
Value product(const Value& left, const Value& right) {
    return multiply(left, right, HERE);
}
Value rest(const Value& left, const Value& right) {
    return remainder(left, right, HERE);
}
Value quotient(const Value& left, const Value& right) {
    return divide(left, right, HERE);
}

TEST(Arithmetic, OfWholeNumbersIsWhole) {
    EXPECT_TRUE(sum(2, 3).is(Tag::Whole));
    EXPECT_EQ(form(sum(2, 3)), "5");
    EXPECT_EQ(form(difference(2, 3)), "-1");
    EXPECT_EQ(form(product(-2, 3)), "-6");
    EXPECT_EQ(form(rest(7, 3)), "1");
    EXPECT_TRUE(rest(7, 3).is(Tag::Whole));
}

TEST(Arithmetic, MixesWholeNumbersAndDecimals) {
    EXPECT_TRUE(sum(2, 3.0).is(Tag::Decimal));
    EXPECT_EQ(form(sum(2, 0.5)), "2.5");
    EXPECT_EQ(form(difference(0.5, 2)), "-1.5");
    EXPECT_EQ(form(product(4, 2.5)), "10");
    EXPECT_EQ(form(quotient(7, 2)), "3.5");
    EXPECT_EQ(form(quotient(6, 2)), "3");
    EXPECT_EQ(form(rest(5.5, 2)), "1.5");
    // The kinds that are certain before the program runs do the same.
    EXPECT_EQ(add(Whole{2}, 0.5, HERE), 2.5);
    EXPECT_EQ(divide(Whole{7}, Whole{2}, HERE), 3.5);
    EXPECT_EQ(remainder(5.5, Whole{2}, HERE), 1.5);
}

TEST(Arithmetic, KeepsTheSignOfTheLeftSideInRemainders) {
    EXPECT_EQ(form(rest(-7, 3)), "-1");
    EXPECT_EQ(form(rest(7, -3)), "1");
    EXPECT_EQ(form(rest(-5.5, 2)), "-1.5");
    EXPECT_EQ(form(rest(5.5, -2.0)), "1.5");
}

TEST(Arithmetic, TellsWhatDoesNotFit) {
    EXPECT_EQ(faultOf([] { sum(LARGEST, 1); }), 602);
    EXPECT_EQ(faultOf([] { difference(SMALLEST, 1); }), 602);
    EXPECT_EQ(faultOf([] { product(LARGEST, 2); }), 602);
    EXPECT_EQ(faultOf([] { minus(Value(SMALLEST), HERE); }), 602);
    EXPECT_EQ(faultOf([] { add(LARGEST, Whole{1}, HERE); }), 602);
    EXPECT_EQ(faultOf([] { subtract(SMALLEST, Whole{1}, HERE); }), 602);
    EXPECT_EQ(faultOf([] { multiply(SMALLEST, Whole{-1}, HERE); }), 602);
    EXPECT_EQ(faultOf([] { minus(SMALLEST, HERE); }), 602);
    EXPECT_EQ(form(sum(LARGEST, 1.0)), "9.22337203685478e+18");
    EXPECT_EQ(form(sum(LARGEST, SMALLEST)), "-1");
}

TEST(Arithmetic, TellsDivisionByZero) {
    EXPECT_EQ(faultOf([] { quotient(1, 0); }), 603);
    EXPECT_EQ(faultOf([] { quotient(1.5, 0.0); }), 603);
    EXPECT_EQ(faultOf([] { quotient(0, -0.0); }), 603);
    EXPECT_EQ(faultOf([] { rest(1, 0); }), 603);
    EXPECT_EQ(faultOf([] { rest(1.5, 0); }), 603);
    EXPECT_EQ(faultOf([] { divide(Whole{1}, Whole{0}, HERE); }), 603);
    EXPECT_EQ(faultOf([] { remainder(Whole{1}, Whole{0}, HERE); }), 603);
    EXPECT_EQ(messageOf([] { quotient(1, 0); }), "சுழியத்தால் (0) வகுக்க முடியாது!");
    // What the machine can't divide, though the answer is simple.
    EXPECT_EQ(form(rest(SMALLEST, -1)), "0");
    EXPECT_EQ(form(quotient(SMALLEST, -1)), "9.22337203685478e+18");
}

TEST(Arithmetic, AgreesWithWiderNumbers) {
    std::mt19937_64 random(7);
    const Whole edges[] = {0,        1,           -1,           2,         3,         LARGEST,
                           SMALLEST, LARGEST - 1, SMALLEST + 1, 1LL << 31, 1LL << 32, 3037000500LL};
    const auto next = [&]() -> Whole {
        const std::uint64_t bits = random();
        return bits % 3 == 0 ? edges[bits / 3 % std::size(edges)] : static_cast<Whole>(random() >> (bits % 64));
    };
    __extension__ typedef __int128 Wide;
    const auto check = [](Operation operation, Whole left, Whole right, Wide expected) {
        if (expected < SMALLEST || expected > LARGEST) {
            ASSERT_EQ(faultOf([&] { operation(left, right); }), 602) << left << " " << right;
        } else {
            ASSERT_EQ(operation(left, right).whole(), static_cast<Whole>(expected)) << left << " " << right;
        }
    };
    for (int round = 0; round < 50'000; ++round) {
        const Whole left = next();
        const Whole right = next();
        check(sum, left, right, static_cast<Wide>(left) + right);
        check(difference, left, right, static_cast<Wide>(left) - right);
        check(product, left, right, static_cast<Wide>(left) * right);
        if (right != 0) {
            check(rest, left, right, static_cast<Wide>(left) % right);
        }
    }
}

TEST(Arithmetic, IsForNumbersOnly) {
    EXPECT_EQ(faultOf([] { difference(text("5"), 1); }), 601);
    EXPECT_EQ(faultOf([] { product(list({}), 2); }), 601);
    EXPECT_EQ(faultOf([] { quotient(true, 2); }), 601);
    EXPECT_EQ(faultOf([] { rest(Value(), 2); }), 601);
    EXPECT_EQ(faultOf([] { sum(list({}), 1); }), 601);
    EXPECT_EQ(faultOf([] { sum(true, 1); }), 601);
    EXPECT_EQ(faultOf([] { sum(map({}, HERE), map({}, HERE)); }), 601);
    EXPECT_EQ(faultOf([] { minus(text("5"), HERE); }), 604);
    EXPECT_EQ(faultOf([] { plus(list({}), HERE); }), 604);
    EXPECT_EQ(messageOf([] { difference(list({}), 1.5); }),
              "பட்டியல், தசம எண் ஆகிய இரண்டுக்கும் இடையே 'கழி' என்பதைப் பயன்படுத்த முடியாது.");
    EXPECT_NE(toldBy([] { difference(text("5"), 1); }).suggestion.find("எண்(…)"), std::string::npos);
    EXPECT_EQ(toldBy([] { difference(list({}), 1); }).suggestion, "");
}

TEST(Signs, AreThoseOfNumbers) {
    EXPECT_EQ(form(minus(Value(5), HERE)), "-5");
    EXPECT_EQ(form(minus(Value(-2.5), HERE)), "2.5");
    EXPECT_EQ(form(plus(Value(-5), HERE)), "-5");
    EXPECT_TRUE(plus(Value(2.0), HERE).is(Tag::Decimal));
}

TEST(Joining, TakesTextFormsOfAnything) {
    EXPECT_EQ(form(join(1, 2.5, HERE)), "12.5");
    EXPECT_EQ(form(join({text("க\u0BC6"), text("\u0BBE"), 5, list({1})}, HERE)), "கொ5[1]");
    EXPECT_EQ(form(join({}, HERE)), "");
    EXPECT_EQ(form(join(list({1}), Value(), HERE)), "[1][தெரியாத வகை]");
    EXPECT_TRUE(join(1, 2, HERE).is(Tag::Text));
    EXPECT_EQ(form(sum(text("அ"), 1)), "அ1");
    EXPECT_EQ(form(sum(1, text("அ"))), "1அ");
    EXPECT_EQ(form(sum(text("அ"), list({1, text("ஆ")}))), "அ[1, ஆ]");
    EXPECT_EQ(form(sum(true, text(""))), "மெய்");
}

TEST(Adding, JoinsLists) {
    const Value left = list({1, 2});
    const Value right = list({text("அ")});
    EXPECT_EQ(form(sum(left, right)), "[1, 2, அ]");
    EXPECT_EQ(form(left), "[1, 2]");
    EXPECT_EQ(form(sum(left, left)), "[1, 2, 1, 2]");
    EXPECT_EQ(form(sum(list({}), list({}))), "[]");
}

TEST(AddingTo, ChangesTheTargetAlone) {
    Value target = list({1});
    const Value before = target;
    addTo(target, list({2, 3}), HERE);
    EXPECT_EQ(form(target), "[1, 2, 3]");
    EXPECT_EQ(form(before), "[1]");
    addTo(target, target, HERE);
    EXPECT_EQ(form(target), "[1, 2, 3, 1, 2, 3]");
    Value number = 5;
    addTo(number, number, HERE);
    EXPECT_EQ(form(number), "10");
    Value mixed = 5;
    addTo(mixed, text("அ"), HERE);
    EXPECT_EQ(form(mixed), "5அ");
    EXPECT_EQ(faultOf([] {
                  Value truth = true;
                  addTo(truth, 1, HERE);
              }),
              601);
}

TEST(AddingTo, GrowsAListWhereItIs) {
    Value target = list({});
    int moves = 0;
    const Value* elements = nullptr;
    for (int round = 0; round < 100'000; ++round) {
        addTo(target, list({round}), HERE);
        const Value* const now = &element(target, Whole{0}, HERE);
        moves += now == elements ? 0 : 1;
        elements = now;
    }
    EXPECT_EQ(length(target, HERE), 100'000);
    EXPECT_LE(moves, 25);
}

TEST(Bits, AreThoseOfWholeNumbers) {
    EXPECT_EQ(bitAnd(12, 10, HERE), 8);
    EXPECT_EQ(bitOr(12, 10, HERE), 14);
    EXPECT_EQ(bitXor(12, 10, HERE), 6);
    EXPECT_EQ(bitNot(0, HERE), -1);
    EXPECT_EQ(bitAnd(12.0, 10, HERE), 8);
    EXPECT_EQ(shiftLeft(3, 4, HERE), 48);
    EXPECT_EQ(shiftLeft(-3, 4, HERE), -48);
    EXPECT_EQ(shiftRight(-48, 4, HERE), -3);
    EXPECT_EQ(shiftLeft(1, 62, HERE), 1LL << 62);
    EXPECT_EQ(shiftLeft(-1, 63, HERE), SMALLEST);
    EXPECT_EQ(shiftRight(LARGEST, 63, HERE), 0);
}

TEST(Bits, TellWhatIsLost) {
    EXPECT_EQ(faultOf([] { shiftLeft(1, 63, HERE); }), 602);
    EXPECT_EQ(faultOf([] { shiftLeft(LARGEST, 1, HERE); }), 602);
    EXPECT_EQ(faultOf([] { shiftLeft(1, 64, HERE); }), 610);
    EXPECT_EQ(faultOf([] { shiftRight(1, -1, HERE); }), 610);
    EXPECT_EQ(faultOf([] { bitAnd(1.5, 1, HERE); }), 608);
    EXPECT_EQ(faultOf([] { bitOr(1, text("1"), HERE); }), 607);
    EXPECT_EQ(faultOf([] { bitNot(1e19, HERE); }), 609);
    EXPECT_EQ(faultOf([] { bitXor(true, 1, HERE); }), 607);
}

TEST(Conditions, TakeTruthValuesOnly) {
    EXPECT_TRUE(truth(Value(true), HERE));
    EXPECT_FALSE(truth(Value(false), HERE));
    for (const Value& value : {Value(0), Value(1), Value(1.0), Value(), text("மெய்"), list({})}) {
        EXPECT_EQ(faultOf([&] { truth(value, HERE); }), 606) << form(value);
    }
    EXPECT_EQ(messageOf([] { truth(Value(1), HERE); }), "இங்கே மெய் அல்லது பொய் வேண்டும்; கிடைத்தது எண்.");
}

TEST(WholePlaces, TakeDecimalsWithoutAFraction) {
    EXPECT_EQ(whole(Value(4.0), HERE), 4);
    EXPECT_EQ(whole(Value(-0.0), HERE), 0);
    EXPECT_EQ(whole(Value(-9223372036854775808.0), HERE), SMALLEST);
    EXPECT_EQ(faultOf([] { whole(Value(9223372036854775808.0), HERE); }), 609);
    EXPECT_EQ(faultOf([] { whole(Value(0.5), HERE); }), 608);
    EXPECT_EQ(faultOf([] { whole(Value(std::nan("")), HERE); }), 607);
    EXPECT_EQ(faultOf([] { whole(Value(std::numeric_limits<double>::infinity()), HERE); }), 609);
}

TEST(Variables, AreSetBeforeTheyAreRead) {
    const Value unset = Value::unset();
    EXPECT_EQ(faultOf([&] { checked(unset, "அ", HERE); }), 611);
    EXPECT_EQ(messageOf([&] { checked(unset, "அ", HERE); }), "'அ' மாறிக்கு இன்னும் மதிப்பு வைக்கவில்லை.");
    const Value set = 5;
    EXPECT_EQ(&checked(set, "அ", HERE), &set);
    EXPECT_EQ(faultOf([] { checked(Value(), "அ", HERE); }), 0);
}

} // namespace

// Arithmetic, comparison and conversion of values whose kind is known only at run time.

#include "generator/first/runtime/runtime.h"

#include <gtest/gtest.h>

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;
using std::any;

std::string text(const char* literal) {
    return literal;
}

/// The message of the exception that \p action throws.
template <class Action> std::string message_of(Action action) {
    try {
        action();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "nothing was thrown";
}

const std::vector<std::string> all_operators = {
    "==", "!=", ">", "<", ">=", "<=", "சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};

/// The operators, symbols and words, that hold between two values.
std::vector<std::string> holding(const any& left, const any& right) {
    std::vector<std::string> result;
    for (const std::string& op : all_operators) {
        if (fn_compare_any(left, right, op)) {
            result.push_back(op);
        }
    }
    return result;
}

const std::vector<std::string> when_equal = {"==", ">=", "<=", "சமம்", "பெரிதுசமம்", "சிறிதுசமம்"};
const std::vector<std::string> when_greater = {"!=", ">", ">=", "சமமில்லை", "பெரிது", "பெரிதுசமம்"};
const std::vector<std::string> when_less = {"!=", "<", "<=", "சமமில்லை", "சிறிது", "சிறிதுசமம்"};
const std::vector<std::string> only_equal = {"==", "சமம்"};
const std::vector<std::string> only_unequal = {"!=", "சமமில்லை"};
const std::vector<std::string> never = {};

TEST(NumberRead, EveryNumberKind) {
    EXPECT_EQ(fn_get_double(any(7LL)), 7.0L);
    EXPECT_EQ(fn_get_double(any(-3)), -3.0L);
    EXPECT_EQ(fn_get_double(any(0.1L)), 0.1L) << "in full precision";
    EXPECT_EQ(fn_get_double(any(1.25)), 1.25L);
}

TEST(NumberRead, AnythingElseIsZero) {
    EXPECT_EQ(fn_get_double(any()), 0.0L);
    EXPECT_EQ(fn_get_double(any(text("5"))), 0.0L);
    EXPECT_EQ(fn_get_double(any(true)), 0.0L);
    EXPECT_EQ(fn_get_double(any(List{any(1LL)})), 0.0L);
}

TEST(Comparison, NumbersOfAllKindsMix) {
    const std::vector<any> ones = {any(1LL), any(1), any(1.0L), any(1.0)};
    const std::vector<any> twos = {any(2LL), any(2), any(2.0L), any(2.0)};
    for (const any& one : ones) {
        for (const any& other : ones) {
            EXPECT_EQ(holding(one, other), when_equal) << one.type().name() << " " << other.type().name();
        }
        for (const any& two : twos) {
            EXPECT_EQ(holding(one, two), when_less) << one.type().name() << " " << two.type().name();
            EXPECT_EQ(holding(two, one), when_greater) << two.type().name() << " " << one.type().name();
        }
    }
}

TEST(Comparison, TextViewsAreEqualOrNotAndHaveNoOrder) {
    EXPECT_EQ(holding(any(text("அ")), any(text("அ"))), only_equal);
    EXPECT_EQ(holding(any(text("அ")), any(text("ஆ"))), only_unequal);
    EXPECT_EQ(holding(any(text("b")), any(text("a"))), only_unequal);
    EXPECT_EQ(holding(any(_PozhilChar{"அ"}), any(text("அ"))), only_equal);
    EXPECT_EQ(holding(any(text("a")), any('a')), only_equal);
    EXPECT_EQ(holding(any('a'), any(_PozhilChar{"a"})), only_equal);
    EXPECT_EQ(holding(any('a'), any('b')), only_unequal);
    EXPECT_EQ(holding(any(text("")), any(_PozhilChar{""})), only_equal);
}

TEST(Comparison, Truths) {
    EXPECT_EQ(holding(any(true), any(true)), only_equal);
    EXPECT_EQ(holding(any(true), any(false)), only_unequal);
}

TEST(Comparison, MixedKindsAreNeitherEqualNorUnequal) {
    const any object = std::make_shared<_StructBase>();
    EXPECT_EQ(holding(any(1LL), any(text("1"))), never);
    EXPECT_EQ(holding(any(text("1")), any(1LL)), never);
    EXPECT_EQ(holding(any(true), any(1LL)), never);
    EXPECT_EQ(holding(any(text("மெய்")), any(true)), never);
    EXPECT_EQ(holding(any(), any()), never);
    EXPECT_EQ(holding(any(), any(0LL)), never);
    EXPECT_EQ(holding(any(List{}), any(List{})), never);
    EXPECT_EQ(holding(any(Map{}), any(Map{})), never);
    EXPECT_EQ(holding(object, object), never) << "not even to itself";
}

TEST(Comparison, UnknownOperatorIsFalse) {
    EXPECT_FALSE(fn_compare_any(any(1LL), any(1LL), "==="));
    EXPECT_FALSE(fn_compare_any(any(text("a")), any(text("a")), ""));
    for (const char* word : {"=", "!", "=!", "=>", "><", "abcdefghijkl", "சிறிதா", "சமம்சமம்", "பெரிதுசமமா"}) {
        EXPECT_FALSE(fn_compare_any(any(1LL), any(1LL), word)) << word;
        EXPECT_FALSE(fn_compare_any(any(1LL), any(2LL), word)) << word;
        EXPECT_FALSE(fn_compare_any(any(2LL), any(1LL), word)) << word;
    }
}

TEST(Comparison, TakesNativeValues) {
    EXPECT_TRUE(fn_compare_any(5LL, std::any(5LL), "=="));
    EXPECT_TRUE(fn_compare_any(std::string(u8"அ"), std::any(_PozhilChar{std::string(u8"அ")}), "சமம்"));
}

TEST(IndexValue, NumbersAreTruncatedTowardZero) {
    EXPECT_EQ(fn_index(9000000000LL), 9000000000LL);
    EXPECT_EQ(fn_index(-4), -4LL);
    EXPECT_EQ(fn_index(any(3LL)), 3LL);
    EXPECT_EQ(fn_index(any(3)), 3LL);
    EXPECT_EQ(fn_index(any(2.9L)), 2LL);
    EXPECT_EQ(fn_index(any(-2.9L)), -2LL);
    EXPECT_EQ(fn_index(fn_add_any(any(1LL), any(2LL))), 3LL);
}

TEST(IndexValue, AnythingElseThrows) {
    for (const any& value : {any(), any(text("1")), any(true), any(_PozhilChar{"1"}), any(List{})}) {
        EXPECT_EQ(message_of([&] { fn_index(value); }), "பொருந்தாத தரவு வகை (Type Mismatch)!");
        EXPECT_THROW(fn_index(value), std::runtime_error);
    }
}

TEST(Division, WholeNumbersGiveWholeNumbers) {
    EXPECT_EQ(std::any_cast<long long>(fn_div_any(any(7LL), any(2LL))), 3);
    EXPECT_EQ(std::any_cast<long long>(fn_div_any(any(-7LL), any(2LL))), -3);
    EXPECT_EQ(std::any_cast<long long>(fn_div_any(any(1LL), any(2LL))), 0);
}

TEST(Division, EveryOtherPairGivesADecimal) {
    const std::vector<any> sevens = {any(7LL), any(7), any(7.0L), any(7.0)};
    const std::vector<any> twos = {any(2LL), any(2), any(2.0L), any(2.0)};
    for (const any& seven : sevens) {
        for (const any& two : twos) {
            if (seven.type() == typeid(long long) && two.type() == typeid(long long)) {
                continue;
            }
            EXPECT_EQ(std::any_cast<long double>(fn_div_any(seven, two)), 3.5L)
                << seven.type().name() << " " << two.type().name();
        }
    }
}

TEST(Division, ByZeroThrowsWhateverIsOnTheLeft) {
    for (const any& zero : {any(0LL), any(0), any(0.0L), any(-0.0L), any(0.0)}) {
        for (const any& left : {any(1LL), any(1.0L), any(0LL), any(text("அ")), any()}) {
            EXPECT_EQ(message_of([&] { fn_div_any(left, zero); }), "சுழியத்தால் (0) வகுக்க முடியாது!");
            EXPECT_THROW(fn_div_any(left, zero), std::runtime_error);
        }
    }
}

TEST(Division, OfNonNumbersIsAFailedCast) {
    EXPECT_THROW(fn_div_any(any(text("6")), any(2LL)), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(any(6LL), any(text("2"))), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(any(6LL), any(false)), std::bad_any_cast);
    EXPECT_THROW(fn_div_any(any(), any()), std::bad_any_cast);
}

TEST(Addition, WholeNumbersStayWhole) {
    EXPECT_EQ(std::any_cast<long long>(fn_add_any(any(2LL), any(3LL))), 5);
}

TEST(Addition, EveryOtherNumberPairGivesADecimal) {
    const std::vector<any> twos = {any(2LL), any(2), any(2.0L), any(2.0)};
    for (const any& left : twos) {
        for (const any& right : twos) {
            if (left.type() == typeid(long long) && right.type() == typeid(long long)) {
                continue;
            }
            EXPECT_EQ(std::any_cast<long double>(fn_add_any(left, right)), 4.0L)
                << left.type().name() << " " << right.type().name();
        }
    }
}

TEST(Addition, AnythingElseIsJoinedAsText) {
    const auto joined = [](const any& left, const any& right) {
        return std::any_cast<std::string>(fn_add_any(left, right));
    };
    EXPECT_EQ(joined(any(text("வயது ")), any(5LL)), "வயது 5");
    EXPECT_EQ(joined(any(5LL), any(text(" வயது"))), "5 வயது");
    EXPECT_EQ(joined(any(text("அ")), any(text("ஆ"))), "அஆ");
    EXPECT_EQ(joined(any(_PozhilChar{"அ"}), any(_PozhilChar{"ஆ"})), "அஆ");
    EXPECT_EQ(joined(any(true), any(1LL)), "மெய்1");
    EXPECT_EQ(joined(any(), any(text("அ"))), "[தெரியாத வகை]அ");
    EXPECT_EQ(joined(any(List{any(1LL)}), any(2.5L)), "[1]2.500000");
}

TEST(ToNumber, WholeTextOfAnInteger) {
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(any(text("42")), 1)), 42);
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(any(text("-7")), 1)), -7);
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(any(text(" 42")), 1)), 42);
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(any(text("9223372036854775807")), 1)), 9223372036854775807LL);
}

TEST(ToNumber, WholeTextOfADecimal) {
    EXPECT_EQ(std::any_cast<long double>(fn_cast_to_number(any(text("2.5")), 1)), 2.5L);
    EXPECT_EQ(std::any_cast<long double>(fn_cast_to_number(any(text("1e3")), 1)), 1000.0L);
    EXPECT_EQ(std::any_cast<long double>(fn_cast_to_number(any(text("9223372036854775808")), 1)),
              9223372036854775808.0L)
        << "too large for a whole number";
}

TEST(ToNumber, NumbersStayAsTheyAre) {
    EXPECT_EQ(std::any_cast<long long>(fn_cast_to_number(any(5LL), 1)), 5);
    EXPECT_EQ(std::any_cast<int>(fn_cast_to_number(any(5), 1)), 5);
    EXPECT_EQ(std::any_cast<long double>(fn_cast_to_number(any(0.5L), 1)), 0.5L);
}

TEST(LogicalNot, TrueOfEmptyAndZeroScalars) {
    for (const any& value : {any(false), any(_PozhilChar{""}), any('\0'), any(0LL), any(0), any(0.0L), any(text(""))}) {
        EXPECT_TRUE(std::any_cast<bool>(fn_logic_not(value))) << value.type().name();
    }
}

TEST(LogicalNot, FalseOfAllElse) {
    for (const any& value :
         {any(true), any(_PozhilChar{"அ"}), any('0'), any(1LL), any(-1), any(0.5L), any(text("0"))}) {
        EXPECT_FALSE(std::any_cast<bool>(fn_logic_not(value))) << value.type().name();
    }
    EXPECT_FALSE(std::any_cast<bool>(fn_logic_not(any()))) << "an empty value is not false";
    EXPECT_FALSE(std::any_cast<bool>(fn_logic_not(any(List{})))) << "an empty list is not false";
    EXPECT_FALSE(std::any_cast<bool>(fn_logic_not(any(Map{}))));
}

} // namespace

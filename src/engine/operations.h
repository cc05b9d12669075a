#pragma once

#include "engine/value.h"

#include <initializer_list>

/// The operators of the language. Of each there is one for values of any kind, and those for numbers whose kind is certain,
/// which the compiler picks by the types of the operands.

namespace pozhil::engine {

[[noreturn]] void wholeOverflow(Place place);
[[noreturn]] void divisionByZero(Place place);

/// கூட்டு: the sum of two numbers; texts and lists are joined end to end, and a text takes any other value in its text
/// form.
Value addValues(const Value& left, const Value& right, Place place);
Value subtractValues(const Value& left, const Value& right, Place place);
Value multiplyValues(const Value& left, const Value& right, Place place);
Decimal divideValues(const Value& left, const Value& right, Place place);
Value remainderValues(const Value& left, const Value& right, Place place);
Decimal decimalRemainder(Decimal left, Decimal right, Place place);

inline Whole add(Whole left, Whole right, Place place) {
    Whole result;
    if (__builtin_add_overflow(left, right, &result)) {
        wholeOverflow(place);
    }
    return result;
}
inline Whole subtract(Whole left, Whole right, Place place) {
    Whole result;
    if (__builtin_sub_overflow(left, right, &result)) {
        wholeOverflow(place);
    }
    return result;
}
inline Whole multiply(Whole left, Whole right, Place place) {
    Whole result;
    if (__builtin_mul_overflow(left, right, &result)) {
        wholeOverflow(place);
    }
    return result;
}
/// The sign is that of the left side, as in C++.
inline Whole remainder(Whole left, Whole right, Place place) {
    if (right == 0) {
        divisionByZero(place);
    }
    return right == -1 ? 0 : left % right;
}
inline Decimal add(Decimal left, Decimal right, Place) {
    return left + right;
}
inline Decimal subtract(Decimal left, Decimal right, Place) {
    return left - right;
}
inline Decimal multiply(Decimal left, Decimal right, Place) {
    return left * right;
}
inline Decimal remainder(Decimal left, Decimal right, Place place) {
    return decimalRemainder(left, right, place);
}
/// வகு always gives a decimal.
inline Decimal divide(Decimal left, Decimal right, Place place) {
    if (right == 0) {
        divisionByZero(place);
    }
    return left / right;
}
inline Decimal divide(Whole left, Whole right, Place place) {
    return divide(static_cast<Decimal>(left), static_cast<Decimal>(right), place);
}

// A decimal and a whole number.
inline Decimal add(Decimal left, Whole right, Place) {
    return left + static_cast<Decimal>(right);
}
inline Decimal add(Whole left, Decimal right, Place) {
    return static_cast<Decimal>(left) + right;
}
inline Decimal subtract(Decimal left, Whole right, Place) {
    return left - static_cast<Decimal>(right);
}
inline Decimal subtract(Whole left, Decimal right, Place) {
    return static_cast<Decimal>(left) - right;
}
inline Decimal multiply(Decimal left, Whole right, Place) {
    return left * static_cast<Decimal>(right);
}
inline Decimal multiply(Whole left, Decimal right, Place) {
    return static_cast<Decimal>(left) * right;
}
inline Decimal divide(Decimal left, Whole right, Place place) {
    return divide(left, static_cast<Decimal>(right), place);
}
inline Decimal divide(Whole left, Decimal right, Place place) {
    return divide(static_cast<Decimal>(left), right, place);
}
inline Decimal remainder(Decimal left, Whole right, Place place) {
    return decimalRemainder(left, static_cast<Decimal>(right), place);
}
inline Decimal remainder(Whole left, Decimal right, Place place) {
    return decimalRemainder(static_cast<Decimal>(left), right, place);
}

// Values of any kind; two whole numbers take the short way.
inline Value add(const Value& left, const Value& right, Place place) {
    Whole result;
    if (left.is(Tag::Whole) && right.is(Tag::Whole) && !__builtin_add_overflow(left.whole(), right.whole(), &result)) {
        return result;
    }
    return addValues(left, right, place);
}
inline Value subtract(const Value& left, const Value& right, Place place) {
    Whole result;
    if (left.is(Tag::Whole) && right.is(Tag::Whole) && !__builtin_sub_overflow(left.whole(), right.whole(), &result)) {
        return result;
    }
    return subtractValues(left, right, place);
}
inline Value multiply(const Value& left, const Value& right, Place place) {
    Whole result;
    if (left.is(Tag::Whole) && right.is(Tag::Whole) && !__builtin_mul_overflow(left.whole(), right.whole(), &result)) {
        return result;
    }
    return multiplyValues(left, right, place);
}
inline Decimal divide(const Value& left, const Value& right, Place place) {
    if (left.is(Tag::Whole) && right.is(Tag::Whole)) {
        return divide(left.whole(), right.whole(), place);
    }
    return divideValues(left, right, place);
}
inline Value remainder(const Value& left, const Value& right, Place place) {
    if (left.is(Tag::Whole) && right.is(Tag::Whole)) {
        return remainder(left.whole(), right.whole(), place);
    }
    return remainderValues(left, right, place);
}

/// Type is \p Result for whole numbers, and nothing else has one: C++ would make whole numbers of decimals and truth values.
template <class Number, class Result> struct IfWhole {};
template <class Result> struct IfWhole<Whole, Result> { using Type = Result; };

// A value of any kind and a whole number, most often one that stands in the program: decimals take a short way too.
template <class Number> inline typename IfWhole<Number, Value>::Type add(const Value& left, Number right, Place place) {
    return left.is(Tag::Decimal) ? Value(add(left.decimal(), right, place)) : add(left, Value(right), place);
}
template <class Number>
inline typename IfWhole<Number, Value>::Type subtract(const Value& left, Number right, Place place) {
    return left.is(Tag::Decimal) ? Value(subtract(left.decimal(), right, place)) : subtract(left, Value(right), place);
}
template <class Number>
inline typename IfWhole<Number, Value>::Type multiply(const Value& left, Number right, Place place) {
    return left.is(Tag::Decimal) ? Value(multiply(left.decimal(), right, place)) : multiply(left, Value(right), place);
}
template <class Number>
inline typename IfWhole<Number, Decimal>::Type divide(const Value& left, Number right, Place place) {
    return left.is(Tag::Decimal) ? divide(left.decimal(), right, place) : divide(left, Value(right), place);
}
template <class Number>
inline typename IfWhole<Number, Value>::Type remainder(const Value& left, Number right, Place place) {
    return left.is(Tag::Decimal) ? Value(remainder(left.decimal(), right, place))
                                 : remainder(left, Value(right), place);
}

/// இணை: the text forms of both, end to end.
Value join(const Value& left, const Value& right, Place place);
/// Of many, in one text.
Value join(std::initializer_list<Value> pieces, Place place);

/// target = target கூட்டு value and so on; a text or list that nobody else holds grows where it is.
void addValueTo(Value& target, const Value& value, Place place);
inline void addTo(Value& target, const Value& value, Place place) {
    if (target.is(Tag::Whole) && value.is(Tag::Whole)) {
        target = add(target.whole(), value.whole(), place);
    } else {
        addValueTo(target, value, place);
    }
}
void joinTo(Value& target, const Value& value, Place place);

/// 2 to the 53rd: up to it, of either sign, every whole number is a decimal.
constexpr Whole EXACT_DECIMALS = Whole{1} << 53;

/// Whether there surely is a decimal that is this number, neither more nor less.
constexpr bool isExactDecimal(Whole number) {
    return -EXACT_DECIMALS <= number && number <= EXACT_DECIMALS;
}

/// சமம். Values of different kinds are unequal, but whole numbers and decimals compare as numbers. Lists and maps are equal
/// when their contents are, objects when they are the same, functions when they also use the same variables and object.
bool equalValues(const Value& left, const Value& right);
inline bool equal(const Value& left, const Value& right) {
    return left.is(Tag::Whole) && right.is(Tag::Whole) ? left.whole() == right.whole() : equalValues(left, right);
}
template <class Number> inline typename IfWhole<Number, bool>::Type equal(const Value& left, Number right) {
    if (left.is(Tag::Whole)) {
        return left.whole() == right;
    }
    return left.is(Tag::Decimal) && isExactDecimal(right) ? left.decimal() == static_cast<Decimal>(right)
                                                          : equalValues(left, right);
}
template <class Number> inline typename IfWhole<Number, bool>::Type equal(Number left, const Value& right) {
    return equal(right, left);
}
inline bool equal(Whole left, Whole right) {
    return left == right;
}
inline bool equal(Decimal left, Decimal right) {
    return left == right;
}
inline bool equal(bool left, bool right) {
    return left == right;
}

/// A whole number with a decimal, exactly: below 0, 0 or above 0, which it also is if the decimal is no number.
int compareNumbers(Whole left, Decimal right);
int compareNumbers(Decimal left, Whole right);
inline bool equal(Whole left, Decimal right) {
    return compareNumbers(left, right) == 0;
}
inline bool equal(Decimal left, Whole right) {
    return compareNumbers(left, right) == 0;
}

/// Below 0, 0 or above 0. Numbers with numbers, texts with texts in the order of a Tamil dictionary; anything else is a
/// fault.
int compareValues(const Value& left, const Value& right, Place place);
inline bool less(const Value& left, const Value& right, Place place) {
    return left.is(Tag::Whole) && right.is(Tag::Whole) ? left.whole() < right.whole()
                                                       : compareValues(left, right, place) < 0;
}
inline bool lessEqual(const Value& left, const Value& right, Place place) {
    return left.is(Tag::Whole) && right.is(Tag::Whole) ? left.whole() <= right.whole()
                                                       : compareValues(left, right, place) <= 0;
}
inline bool greater(const Value& left, const Value& right, Place place) {
    return less(right, left, place);
}
inline bool greaterEqual(const Value& left, const Value& right, Place place) {
    return lessEqual(right, left, place);
}
inline bool less(Whole left, Whole right, Place) {
    return left < right;
}
inline bool lessEqual(Whole left, Whole right, Place) {
    return left <= right;
}
inline bool greater(Whole left, Whole right, Place) {
    return left > right;
}
inline bool greaterEqual(Whole left, Whole right, Place) {
    return left >= right;
}
inline bool less(Decimal left, Decimal right, Place) {
    return left < right;
}
inline bool lessEqual(Decimal left, Decimal right, Place) {
    return left <= right;
}
inline bool greater(Decimal left, Decimal right, Place) {
    return left > right;
}
inline bool greaterEqual(Decimal left, Decimal right, Place) {
    return left >= right;
}

// A decimal and a whole number.
inline bool less(Whole left, Decimal right, Place) {
    return compareNumbers(left, right) < 0;
}
inline bool less(Decimal left, Whole right, Place) {
    return compareNumbers(left, right) < 0;
}
inline bool lessEqual(Whole left, Decimal right, Place) {
    return compareNumbers(left, right) <= 0;
}
inline bool lessEqual(Decimal left, Whole right, Place) {
    return compareNumbers(left, right) <= 0;
}
inline bool greater(Whole left, Decimal right, Place place) {
    return less(right, left, place);
}
inline bool greater(Decimal left, Whole right, Place place) {
    return less(right, left, place);
}
inline bool greaterEqual(Whole left, Decimal right, Place place) {
    return lessEqual(right, left, place);
}
inline bool greaterEqual(Decimal left, Whole right, Place place) {
    return lessEqual(right, left, place);
}

/// Of whole numbers, and decimals without a fraction.
Whole bitAnd(const Value& left, const Value& right, Place place);
Whole bitOr(const Value& left, const Value& right, Place place);
Whole bitXor(const Value& left, const Value& right, Place place);
Whole shiftLeft(const Value& left, const Value& right, Place place);
Whole shiftRight(const Value& left, const Value& right, Place place);
Whole bitNot(const Value& value, Place place);
Value minus(const Value& value, Place place);
inline Whole minus(Whole value, Place place) {
    return subtract(Whole{0}, value, place);
}
inline Decimal minus(Decimal value, Place) {
    return -value;
}
/// மிகை: the number itself.
Value plus(const Value& value, Place place);
inline Whole plus(Whole value, Place) {
    return value;
}
inline Decimal plus(Decimal value, Place) {
    return value;
}

/// A truth value as C++ has it; anything else is a fault that says what it is.
bool truthOf(const Value& value, Place place);
inline bool truth(const Value& value, Place place) {
    return value.is(Tag::Truth) ? value.truth() : truthOf(value, place);
}
inline bool truth(bool value, Place) {
    return value;
}
/// The same of what stands after இல்லை and before a comparison, and of the condition of a choice whose first value is a
/// comparison: what is told of anything else differs.
bool deniedTruth(const Value& value, Place place);
bool choiceTruth(const Value& value, Place place);

/// A whole number, also out of a decimal without a fraction; anything else is a fault.
Whole wholeOf(const Value& value, Place place);
inline Whole whole(const Value& value, Place place) {
    return value.is(Tag::Whole) ? value.whole() : wholeOf(value, place);
}
inline Whole whole(Whole value, Place) {
    return value;
}

/// What a variable holds that may not have a value yet.
[[noreturn]] void unsetVariable(const char* name, Place place);
inline const Value& checked(const Value& value, const char* name, Place place) {
    if (value.is(Tag::Unset)) {
        unsetVariable(name, place);
    }
    return value;
}
inline Value& checked(Value& value, const char* name, Place place) {
    if (value.is(Tag::Unset)) {
        unsetVariable(name, place);
    }
    return value;
}

} // namespace pozhil::engine

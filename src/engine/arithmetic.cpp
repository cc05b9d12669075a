#include "engine/joining.h"
#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/value_faults.h"
#include "report/remedies.h"

#include <cmath>
#include <cstdint>
#include <string_view>

namespace pozhil::engine {
namespace {

/// Processors take long to divide, less so for half as long numbers, and not at all for powers of two.
Whole wholeRemainder(Whole dividend, Whole divisor) {
    if ((divisor & (divisor - 1)) == 0) {
        return dividend & (divisor - 1);
    }
    if (dividend <= UINT32_MAX && divisor <= UINT32_MAX) {
        return static_cast<std::uint32_t>(dividend) % static_cast<std::uint32_t>(divisor);
    }
    return dividend % divisor;
}

bool areWhole(const Value& left, const Value& right) {
    return left.is(Tag::Whole) && right.is(Tag::Whole);
}

/// \param operation as the program writes it
[[noreturn]] void raiseWrongOperands(const char* operation, const Value& left, const Value& right, Place place) {
    const bool mixed = (isNumber(left) && right.is(Tag::Text)) || (left.is(Tag::Text) && isNumber(right));
    raise(WRONG_OPERANDS, place, {operation, kindWord(left), kindWord(right)},
          mixed ? "உரையில் உள்ள எண்ணோடு கணக்கிட 'எண்(…)' என்று எழுது." : "",
          mixed && std::string_view(operation) == "பெருக்கு" ? report::remedy::REPEATED_TEXT : "");
}

void checkNumbers(const char* operation, const Value& left, const Value& right, Place place) {
    if (!isNumber(left) || !isNumber(right)) {
        raiseWrongOperands(operation, left, right, place);
    }
}

void checkNumber(const char* operation, const Value& value, Place place) {
    if (!isNumber(value)) {
        raise(WRONG_OPERAND, place, {operation, kindWord(value)});
    }
}

} // namespace

void wholeOverflow(Place place) {
    raise(WHOLE_OVERFLOW, place);
}

void divisionByZero(Place place) {
    raise(DIVISION_BY_ZERO, place);
}

Value addValues(const Value& left, const Value& right, Place place) {
    if (areWhole(left, right)) {
        return add(left.whole(), right.whole(), place);
    }
    if (isNumber(left) && isNumber(right)) {
        return decimalOf(left) + decimalOf(right);
    }
    if (left.is(Tag::Text) || right.is(Tag::Text)) {
        return join(left, right, place);
    }
    if (!left.is(Tag::List) || !right.is(Tag::List)) {
        raiseWrongOperands("கூட்டு", left, right, place);
    }
    return joinLists(left, right, place);
}

Value subtractValues(const Value& left, const Value& right, Place place) {
    checkNumbers("கழி", left, right, place);
    if (areWhole(left, right)) {
        return subtract(left.whole(), right.whole(), place);
    }
    return decimalOf(left) - decimalOf(right);
}

Value multiplyValues(const Value& left, const Value& right, Place place) {
    checkNumbers("பெருக்கு", left, right, place);
    if (areWhole(left, right)) {
        return multiply(left.whole(), right.whole(), place);
    }
    return decimalOf(left) * decimalOf(right);
}

Decimal divideValues(const Value& left, const Value& right, Place place) {
    checkNumbers("வகு", left, right, place);
    return divide(decimalOf(left), decimalOf(right), place);
}

Value remainderValues(const Value& left, const Value& right, Place place) {
    checkNumbers("மீதி", left, right, place);
    if (areWhole(left, right)) {
        return remainder(left.whole(), right.whole(), place);
    }
    return decimalRemainder(decimalOf(left), decimalOf(right), place);
}

Decimal decimalRemainder(Decimal left, Decimal right, Place place) {
    if (right == 0) {
        divisionByZero(place);
    }
    // Most decimals that come here are whole numbers, which divide far faster as such; only the sign of a 0 would be lost.
    constexpr auto MANY = static_cast<Decimal>(EXACT_DECIMALS);
    if (left > 0 && left < MANY && right > 0 && right < MANY) {
        const auto dividend = static_cast<Whole>(left);
        const auto divisor = static_cast<Whole>(right);
        if (static_cast<Decimal>(dividend) == left && static_cast<Decimal>(divisor) == right) {
            return static_cast<Decimal>(wholeRemainder(dividend, divisor));
        }
    }
    return std::fmod(left, right);
}

Value minus(const Value& value, Place place) {
    checkNumber("குறை", value, place);
    if (value.is(Tag::Whole)) {
        return minus(value.whole(), place);
    }
    return -value.decimal();
}

Value plus(const Value& value, Place place) {
    checkNumber("மிகை", value, place);
    return value;
}

} // namespace pozhil::engine

#include "engine/library.h"
#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/value_faults.h"

#include <cmath>

namespace pozhil::engine {
namespace {

/// The number that a function was given.
/// \param function its name, for the fault if it is something else
Decimal numberFor(const char* function, const Value& value, Place place) {
    if (!isNumber(value)) {
        raise(NUMBER_WANTED, place, {function, kindWord(value)});
    }
    return decimalOf(value);
}

Whole rounded(const char* function, const Value& value, Decimal (*round)(Decimal), Place place) {
    if (value.is(Tag::Whole)) {
        return value.whole();
    }
    return wholeOf(round(numberFor(function, value, place)), place);
}

} // namespace

Decimal squareRoot(const Value& value, Place place) {
    const Decimal number = numberFor("வர்க்கமூலம்", value, place);
    if (number < 0) {
        raise(NEGATIVE_ROOT, place, {textForm(value)});
    }
    return std::sqrt(number);
}

Decimal power(const Value& base, const Value& exponent, Place place) {
    const Decimal result = std::pow(numberFor("அடுக்கு", base, place), numberFor("அடுக்கு", exponent, place));
    if (std::isnan(result)) {
        raise(NO_POWER, place, {textForm(base), textForm(exponent)});
    }
    if (std::isinf(result) && decimalOf(base) == 0) {
        divisionByZero(place);
    }
    if (std::isinf(result)) {
        raise(POWER_TOO_LARGE, place, {textForm(base), textForm(exponent)});
    }
    return result;
}

Value absolute(const Value& value, Place place) {
    const Decimal number = numberFor("தனிமதிப்பு", value, place);
    if (value.is(Tag::Whole)) {
        return absolute(value.whole(), place);
    }
    return std::fabs(number);
}

Whole absolute(Whole value, Place place) {
    return value < 0 ? minus(value, place) : value;
}

Decimal absolute(Decimal value, Place) {
    return std::fabs(value);
}

Whole roundUp(const Value& value, Place place) {
    return rounded("மேல்எண்", value, std::ceil, place);
}

Whole roundDown(const Value& value, Place place) {
    return rounded("கீழ்எண்", value, std::floor, place);
}

Decimal sine(const Value& value, Place place) {
    return std::sin(numberFor("சைன்", value, place));
}

Decimal cosine(const Value& value, Place place) {
    return std::cos(numberFor("காஸ்", value, place));
}

Decimal tangent(const Value& value, Place place) {
    return std::tan(numberFor("டேன்", value, place));
}

Decimal logarithm(const Value& value, Place place) {
    const Decimal number = numberFor("மடக்கு", value, place);
    if (number <= 0) {
        raise(NO_LOGARITHM, place, {textForm(value)});
    }
    return std::log(number);
}

} // namespace pozhil::engine

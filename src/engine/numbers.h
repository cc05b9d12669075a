#pragma once

#include "engine/value.h"

/// What operators and functions ask of the numbers that they are given.

namespace pozhil::engine {

inline bool isNumber(const Value& value) {
    return value.is(Tag::Whole) || value.is(Tag::Decimal);
}

/// Of a number.
inline Decimal decimalOf(const Value& number) {
    return number.is(Tag::Whole) ? static_cast<Decimal>(number.whole()) : number.decimal();
}

/// Whether a decimal lies among the whole numbers.
inline bool fitsWhole(Decimal decimal) {
    constexpr Decimal LIMIT = 9223372036854775808.0;
    return decimal >= -LIMIT && decimal < LIMIT;
}

} // namespace pozhil::engine

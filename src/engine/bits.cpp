#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/value_faults.h"

#include <string>

namespace pozhil::engine {
namespace {

constexpr Whole BITS = 64;

/// How far to shift.
int checkedShift(const Value& value, Place place) {
    const Whole count = whole(value, place);
    if (count < 0 || count >= BITS) {
        raise(WRONG_SHIFT, place, {std::to_string(count)});
    }
    return static_cast<int>(count);
}

} // namespace

Whole bitAnd(const Value& left, const Value& right, Place place) {
    return whole(left, place) & whole(right, place);
}

Whole bitOr(const Value& left, const Value& right, Place place) {
    return whole(left, place) | whole(right, place);
}

Whole bitXor(const Value& left, const Value& right, Place place) {
    return whole(left, place) ^ whole(right, place);
}

Whole bitNot(const Value& value, Place place) {
    return ~whole(value, place);
}

Whole shiftLeft(const Value& left, const Value& right, Place place) {
    const Whole number = whole(left, place);
    const int count = checkedShift(right, place);
    const auto shifted = static_cast<Whole>(static_cast<unsigned long long>(number) << count);
    // What is lost at the top would be lost without a word.
    if (shifted >> count != number) {
        wholeOverflow(place);
    }
    return shifted;
}

Whole shiftRight(const Value& left, const Value& right, Place place) {
    const Whole number = whole(left, place);
    return number >> checkedShift(right, place);
}

} // namespace pozhil::engine

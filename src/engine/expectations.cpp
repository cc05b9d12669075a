#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/value_faults.h"
#include "report/remedies.h"

#include <cmath>

/// What a place of the program asks of the value that comes to it: to be a truth value, to be whole, to be there.

namespace pozhil::engine {

bool truthOf(const Value& value, Place place) {
    if (!value.is(Tag::Truth)) {
        const bool isContainer = value.is(Tag::Text) || value.is(Tag::List) || value.is(Tag::Map);
        raise(NO_TRUTH, place, {kindWord(value)}, "", isContainer ? report::remedy::CONTAINER_AS_CONDITION : "");
    }
    return value.truth();
}

bool deniedTruth(const Value& value, Place place) {
    if (!value.is(Tag::Truth)) {
        raise(NO_TRUTH, place, {kindWord(value)}, "", report::remedy::DENIED_VALUE);
    }
    return value.truth();
}

bool choiceTruth(const Value& value, Place place) {
    if (!value.is(Tag::Truth)) {
        raise(NO_TRUTH, place, {kindWord(value)}, "", report::remedy::REVERSED_CHOICE);
    }
    return value.truth();
}

Whole wholeOf(const Value& value, Place place) {
    if (value.is(Tag::Whole)) {
        return value.whole();
    }
    if (!value.is(Tag::Decimal)) {
        raise(NO_WHOLE, place, {kindWord(value)});
    }
    const Decimal decimal = value.decimal();
    if (std::isnan(decimal)) {
        raise(NO_WHOLE, place, {textForm(value)});
    }
    if (decimal != std::trunc(decimal)) {
        raise(HAS_FRACTION, place, {textForm(value)});
    }
    if (!fitsWhole(decimal)) {
        raise(DECIMAL_TOO_LARGE, place, {textForm(value)});
    }
    return static_cast<Whole>(decimal);
}

void unsetVariable(const char* name, Place place) {
    raise(UNSET_VARIABLE, place, {name});
}

} // namespace pozhil::engine

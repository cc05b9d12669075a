#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/value_faults.h"
#include "report/remedies.h"

#include <cmath>

/// What a place of the program asks of the value that comes to it: to be a truth value, to be whole, to be there.

namespace pozhil::engine {

namespace {

/// \param remedy what is told of a value that is none; empty for what the catalogue says
bool truthOr(const Value& value, Place place, const char* remedy) {
    if (!value.is(Tag::Truth)) {
        raise(NO_TRUTH, place, {kindWord(value)}, "", remedy);
    }
    return value.truth();
}

} // namespace

bool truthOf(const Value& value, Place place) {
    const bool hasLength = value.is(Tag::Text) || value.is(Tag::List) || value.is(Tag::Map);
    return truthOr(value, place, hasLength ? report::remedy::CONTAINER_AS_CONDITION : "");
}

bool deniedTruth(const Value& value, Place place) {
    return truthOr(value, place, report::remedy::DENIED_VALUE);
}

bool choiceTruth(const Value& value, Place place) {
    return truthOr(value, place, report::remedy::REVERSED_CHOICE);
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

#include "engine/counting.h"
#include "engine/library.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/text.h"
#include "engine/told_value.h"

#include <algorithm>
#include <limits>

/// The functions of the language for lists and maps.

namespace pozhil::engine {
namespace {

/// Where the first equal element of a list is; its size if there is none.
std::size_t findElement(const List& list, const Value& value) {
    const Value* const begin = list.elements;
    const Value* const found =
        std::find_if(begin, begin + list.size, [&](const Value& element) { return equal(element, value); });
    return static_cast<std::size_t>(found - begin);
}

void removeElement(Value& list, const Value& value, Place place) {
    const std::size_t index = findElement(listBlock(list), value);
    if (index == listBlock(list).size) {
        raise(NOT_IN_LIST, place, {toldValue(value)});
    }
    removeAt(ownList(list), index);
}

void removeEntry(Value& map, const Value& key, Place place) {
    if (findKey(mapBlock(map), key) == nullptr) {
        raise(NO_SUCH_KEY, place, {toldValue(key)});
    }
    removeKey(ownMap(map), key);
}

Value rangeList(Counting numbers, Place place) {
    noteGrowth(place);
    if (numbers.left() > std::numeric_limits<std::size_t>::max()) {
        raiseOutOfMemory(); // where addresses are short
    }
    Value list = makeList(static_cast<std::size_t>(numbers.left()));
    while (numbers.hasNext()) {
        appendTo(listBlock(list), numbers.next());
    }
    return list;
}

} // namespace

Value appendValue(Value& list, const Value& value, Place place) {
    if (!list.is(Tag::List)) {
        raise(WRONG_CONTAINER, place, {"சேர்", "பட்டியல்", kindWord(list)});
    }
    noteGrowth(place);
    // A copy, since the list may be appended to itself.
    Value copy = value;
    appendTo(ownList(list), static_cast<Value&&>(copy));
    return Value();
}

Value removeFrom(Value& container, const Value& value, Place place) {
    if (container.is(Tag::List)) {
        removeElement(container, value, place);
    } else if (container.is(Tag::Map)) {
        removeEntry(container, value, place);
    } else {
        raise(WRONG_CONTAINER, place, {"நீக்கு", "பட்டியல் அல்லது அகராதி", kindWord(container)});
    }
    return Value();
}

bool contains(const Value& container, const Value& value, Place place) {
    switch (container.tag()) {
    case Tag::List: return findElement(listBlock(container), value) < listBlock(container).size;
    case Tag::Map: return findKey(mapBlock(container), value) != nullptr;
    case Tag::Text: return value.is(Tag::Text) && textContains(textBlock(container).bytes, textBlock(value).bytes);
    default: raise(WRONG_CONTAINER, place, {"கொண்டுள்ளது", "உரை, பட்டியல் அல்லது அகராதி", kindWord(container)});
    }
}

Whole checkedStep(const Value& step, Place place) {
    const Whole number = whole(step, place);
    if (number == 0) {
        raise(STEP_OF_ZERO, place);
    }
    return number;
}

Value range(const Value& end, Place place) {
    return rangeList({0, whole(end, place), 1}, place);
}

Value range(const Value& begin, const Value& end, Place place) {
    return rangeList({whole(begin, place), whole(end, place), 1}, place);
}

Value range(const Value& begin, const Value& end, const Value& step, Place place) {
    const Whole first = whole(begin, place);
    const Whole last = whole(end, place);
    return rangeList({first, last, checkedStep(step, place)}, place);
}

} // namespace pozhil::engine

#include "engine/collections.h"
#include "engine/library.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/memory.h"
#include "engine/nearest_names.h"
#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/text.h"
#include "engine/told_value.h"
#include "report/remedies.h"

#include <string>
#include <vector>

/// Reading and writing elements of lists, values of keys, and letters of texts.

namespace pozhil::engine {
namespace {

/// Which element a value means. A decimal that is no whole number tells that itself.
Whole indexOf(const Value& index, Place place) {
    if (!isNumber(index)) {
        raise(NO_INDEX, place, {kindWord(index)});
    }
    return whole(index, place);
}

/// \p index if there are so many elements that it is one of them.
std::size_t checkedIndex(Whole index, std::size_t length, RunningFault fault, Place place) {
    if (index < 0 || static_cast<unsigned long long>(index) >= length) {
        raise(fault, place, {std::to_string(index), std::to_string(length)});
    }
    return static_cast<std::size_t>(index);
}

void checkKey(const Value& key, Place place) {
    if (!canBeKey(key)) {
        raise(NO_KEY, place, {kindWord(key)});
    }
}

/// A sentence with the key that may have been meant; empty if none is near. Large maps aren't looked through: a program
/// may catch the fault many times.
std::string nearKey(Map& map, const Value& key) {
    constexpr std::size_t MOST_KEYS = 100;
    if (!key.is(Tag::Text) || mapSize(map) > MOST_KEYS) {
        return "";
    }
    std::vector<std::string> keys;
    for (std::size_t index = 0; index < mapSize(map); ++index) {
        if (keyAt(map, index).is(Tag::Text)) {
            keys.emplace_back(textOf(keyAt(map, index)));
        }
    }
    const std::string_view word = textOf(key);
    return suggestionFor(word, nearestFirst(word, keys));
}

[[noreturn]] void raiseMissingKey(const Value& map, const Value& key, Place place) {
    raise(NO_SUCH_KEY, place, {toldValue(key)}, nearKey(mapBlock(map), key));
}

Value& elementOfList(Value& list, const Value& index, Place place) {
    const Whole asked = indexOf(index, place);
    const std::size_t length = listBlock(list).size;
    if (asked == static_cast<Whole>(length)) {
        raise(NO_SUCH_INDEX, place, {std::to_string(asked), std::to_string(length)}, "",
              report::remedy::WRITTEN_AFTER_END);
    }
    const std::size_t position = checkedIndex(asked, length, NO_SUCH_INDEX, place);
    return ownList(list).elements[position];
}

[[noreturn]] void raiseNotWritable(const Value& container, Place place) {
    if (container.is(Tag::Text)) {
        raise(LETTERS_STAY, place);
    }
    raise(HAS_NO_ELEMENTS, place, {kindWord(container)});
}

Value letterOf(const Value& text, Whole index, Place place) {
    Text& block = textBlock(text);
    return normalText(std::string(letterAt(block, checkedIndex(index, letterCount(block), NO_SUCH_LETTER, place))));
}

Value valueOfKey(const Value& map, const Value& key, Place place) {
    checkKey(key, place);
    const Value* const value = findKey(mapBlock(map), key);
    if (value == nullptr) {
        raiseMissingKey(map, key, place);
    }
    return *value;
}

} // namespace

Value list(std::initializer_list<Value> elements) {
    Value list = makeList(elements.size());
    addElements(list, elements);
    return list;
}

void addElements(Value& list, std::initializer_list<Value> elements) {
    for (const Value& element : elements) {
        appendTo(listBlock(list), element);
    }
}

Value map(std::initializer_list<Entry> entries, Place place) {
    Value map = makeMap();
    addEntries(map, entries, place);
    return map;
}

void addEntries(Value& map, std::initializer_list<Entry> entries, Place place) {
    for (const Entry& entry : entries) {
        checkKey(entry.key, place);
        placeOfKey(mapBlock(map), entry.key) = entry.value;
    }
}

Value getValue(const Value& container, const Value& index, Place place) {
    if (container.is(Tag::Map)) {
        return valueOfKey(container, index, place);
    }
    if (container.is(Tag::List) || container.is(Tag::Text)) {
        return getValue(container, indexOf(index, place), place);
    }
    raise(HAS_NO_ELEMENTS, place, {kindWord(container)});
}

Value getValue(const Value& container, Whole index, Place place) {
    if (container.is(Tag::List)) {
        const List& list = listBlock(container);
        return list.elements[checkedIndex(index, list.size, NO_SUCH_INDEX, place)];
    }
    if (container.is(Tag::Text)) {
        return letterOf(container, index, place);
    }
    return getValue(container, Value(index), place);
}

Value& elementPlace(Value& container, const Value& index, Place place) {
    if (container.is(Tag::List)) {
        return elementOfList(container, index, place);
    }
    if (!container.is(Tag::Map)) {
        raiseNotWritable(container, place);
    }
    checkKey(index, place);
    Value* const value = findKey(ownMap(container), index);
    if (value == nullptr) {
        raiseMissingKey(container, index, place);
    }
    return *value;
}

Value& slotPlace(Value& container, const Value& index, Place place) {
    if (!container.is(Tag::Map)) {
        return elementPlace(container, index, place);
    }
    checkKey(index, place);
    noteGrowth(place);
    return placeOfKey(ownMap(container), index);
}

Value put(Value& container, const Value& index, const Value& value, Place place) {
    // A copy comes first, since the container itself may be put into it.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): writing to the container may change the value
    Value result = value;
    slot(container, index, place) = result;
    return result;
}

} // namespace pozhil::engine

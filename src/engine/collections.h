#pragma once

#include "engine/list.h"
#include "engine/value.h"

#include <initializer_list>

/// Texts, lists and maps as the emitted text makes, reads and writes them.

namespace pozhil::engine {

/// A text of a literal: UTF-8 in NFC, with a zero byte at its end.
Value text(const char* bytes, unsigned long length);
template <unsigned long size> Value text(const char (&bytes)[size]) {
    return text(bytes, size - 1);
}

/// A list of these elements.
Value list(std::initializer_list<Value> elements);
/// Appends further elements to a list that nobody else holds.
void addElements(Value& list, std::initializer_list<Value> elements);

struct Entry {
    Value key;
    Value value;
};

/// A map of these entries; of equal keys the last one counts. A key is a text, a whole number or a truth value.
Value map(std::initializer_list<Entry> entries, Place place);
/// Adds further entries to a map that nobody else holds.
void addEntries(Value& map, std::initializer_list<Entry> entries, Place place);

/// container[index], read: an element, the value of a key, or a letter.
Value getValue(const Value& container, const Value& index, Place place);
Value getValue(const Value& container, Whole index, Place place);

[[gnu::always_inline]] inline Value get(const Value& container, Whole index, Place place) {
    const Value* const element = elementOf(container, index);
    return element != nullptr ? *element : getValue(container, index, place);
}
inline Value get(const Value& container, const Value& index, Place place) {
    return index.is(Tag::Whole) ? get(container, index.whole(), place) : getValue(container, index, place);
}
inline Value get(const Value& container, int index, Place place) {
    return get(container, Whole{index}, place);
}
// C++ would make whole numbers of these.
inline Value get(const Value& container, Decimal index, Place place) {
    return get(container, Value(index), place);
}
inline Value get(const Value& container, bool index, Place place) {
    return get(container, Value(index), place);
}

/// Whether it is a list or a map, which may hold other values.
inline bool isContainer(const Value& value) {
    return value.is(Tag::List) || value.is(Tag::Map);
}

/// The place of container[index] for writing into what it holds: it must be there.
Value& elementPlace(Value& container, const Value& index, Place place);
inline Value& element(Value& container, const Value& index, Place place) {
    Value* const own = index.is(Tag::Whole) ? ownElementOf(container, index.whole()) : nullptr;
    return own != nullptr ? *own : elementPlace(container, index, place);
}
/// The same for assigning to it: a key of a map need not be there.
Value& slotPlace(Value& container, const Value& index, Place place);
inline Value& slot(Value& container, const Value& index, Place place) {
    Value* const own = index.is(Tag::Whole) ? ownElementOf(container, index.whole()) : nullptr;
    return own != nullptr ? *own : slotPlace(container, index, place);
}

/// Goes over the elements of a list, the keys of a map in their order, or the letters of a text, as they are at the
/// beginning.
class Each {
public:
    Each(const Value& iterable, Place place) : held_(iterable) {
        if (!iterable.is(Tag::List)) {
            checkIterable(place);
        }
    }
    ~Each() = default;
    Each(const Each&) = delete;
    Each& operator=(const Each&) = delete;

    /// Puts the next one into \p variable.
    /// \return false if there is none; the variable then stays as it is
    bool next(Value& variable) {
        if (const Value* const element = elementOf(held_, static_cast<Whole>(position_))) {
            variable = *element;
            ++position_;
            return true;
        }
        return nextValue(variable);
    }

private:
    void checkIterable(Place place) const;
    bool nextValue(Value& variable);

    /// Holds on to what is gone over, so that writing to the variable makes a copy.
    Value held_;
    unsigned long position_ = 0;
};

} // namespace pozhil::engine

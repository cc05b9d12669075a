#pragma once

#include "engine/value.h"

#include <cstddef>

namespace pozhil::engine {

/// The block of a list. Grows by doubling; 16 bytes an element.
struct List : Counted {
    Value* elements = nullptr;
    std::size_t size = 0;
    std::size_t capacity = 0;
};

/// The block of a value with Tag::List.
inline List& listBlock(const Value& value) {
    return *static_cast<List*>(value.block());
}

/// The element of a list that has one there; null for anything else.
inline const Value* elementOf(const Value& container, Whole index) {
    if (!container.is(Tag::List)) {
        return nullptr;
    }
    const List& list = listBlock(container);
    // A negative index is a very large one without its sign. Where addresses are short, an index may be larger than any.
    return static_cast<unsigned long long>(index) < list.size ? list.elements + index : nullptr;
}

/// The same for writing: null also if others hold the list.
inline Value* ownElementOf(const Value& container, Whole index) {
    if (!container.is(Tag::List)) {
        return nullptr;
    }
    const List& list = listBlock(container);
    const bool isOwn = list.references == 1 && static_cast<unsigned long long>(index) < list.size;
    return isOwn ? list.elements + index : nullptr;
}

/// An empty list with room for so many elements.
Value makeList(std::size_t capacity = 0);
/// The block for writing: a copy first if others hold it too.
List& ownList(Value& list);
/// Appends to a block that only one value holds.
void appendTo(List& list, Value value);
/// Takes an element out of a block that only one value holds; those after it move up.
void removeAt(List& list, std::size_t index);

} // namespace pozhil::engine

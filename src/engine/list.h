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

/// An empty list with room for so many elements.
Value makeList(std::size_t capacity = 0);
/// The block for writing: a copy first if others hold it too.
List& ownList(Value& list);
/// Appends to a block that only one value holds.
void appendTo(List& list, Value value);
/// Takes an element out of a block that only one value holds; those after it move up.
void removeAt(List& list, std::size_t index);

} // namespace pozhil::engine

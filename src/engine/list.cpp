#include "engine/list.h"

#include "engine/blocks.h"
#include "engine/memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace pozhil::engine {
namespace {

constexpr std::size_t FIRST_CAPACITY = 4;

/// Values have no address of their own, so they may be moved as bytes.
void setCapacity(List& list, std::size_t capacity) {
    list.elements = static_cast<Value*>(reallocate(static_cast<void*>(list.elements), capacity, sizeof(Value)));
    list.capacity = capacity;
}

} // namespace

Value makeList(std::size_t capacity) {
    Value value(Tag::List, new List);
    if (capacity > 0) {
        setCapacity(listBlock(value), capacity);
    }
    return value;
}

List& ownList(Value& list) {
    const List& shared = listBlock(list);
    if (shared.references > 1) {
        Value copy = makeList(shared.size);
        List& own = listBlock(copy);
        for (; own.size < shared.size; ++own.size) {
            new (own.elements + own.size) Value(shared.elements[own.size]);
        }
        list.swap(copy);
    }
    return listBlock(list);
}

void appendTo(List& list, Value value) {
    if (list.size == list.capacity) {
        setCapacity(list, std::max(FIRST_CAPACITY, 2 * list.capacity));
    }
    new (list.elements + list.size) Value(static_cast<Value&&>(value));
    ++list.size;
}

void removeAt(List& list, std::size_t index) {
    const Value removed(static_cast<Value&&>(list.elements[index]));
    std::move(list.elements + index + 1, list.elements + list.size, list.elements + index);
    --list.size;
    list.elements[list.size].~Value();
}

void freeList(Counted* block) noexcept {
    auto* const list = static_cast<List*>(block);
    for (std::size_t i = 0; i < list->size; ++i) {
        list->elements[i].~Value();
    }
    std::free(static_cast<void*>(list->elements));
    delete list;
}

} // namespace pozhil::engine

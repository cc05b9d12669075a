#include "engine/joining.h"

#include "engine/collections.h"
#include "engine/list.h"
#include "engine/memory.h"
#include "engine/operations.h"
#include "engine/text.h"

namespace pozhil::engine {
namespace {

/// Appends to a list that only one value holds.
void appendAll(List& list, Value elements) {
    // As many as there are now: the two may be the same list.
    const std::size_t count = listBlock(elements).size;
    for (std::size_t index = 0; index < count; ++index) {
        appendTo(list, Value(listBlock(elements).elements[index]));
    }
}

/// Appends the text form to a text that only one value holds.
void appendForm(Text& text, const Value& value) {
    if (value.is(Tag::Text)) {
        appendToText(text, textOf(value));
    } else {
        // Of anything else it begins with what leaves the end of the text as it is.
        appendTextForm(text.bytes, value);
    }
}

} // namespace

Value joinLists(const Value& left, const Value& right, Place place) {
    noteGrowth(place);
    Value joined = makeList(listBlock(left).size + listBlock(right).size);
    appendAll(listBlock(joined), left);
    appendAll(listBlock(joined), right);
    return joined;
}

Value join(const Value& left, const Value& right, Place place) {
    noteGrowth(place);
    Value joined = text("", 0);
    Text& block = textBlock(joined);
    if (left.is(Tag::Text) && right.is(Tag::Text)) {
        block.bytes.reserve(textOf(left).size() + textOf(right).size());
    }
    appendForm(block, left);
    appendForm(block, right);
    return joined;
}

Value join(std::initializer_list<Value> pieces, Place place) {
    noteGrowth(place);
    Value joined = text("", 0);
    for (const Value& piece : pieces) {
        appendForm(textBlock(joined), piece);
    }
    return joined;
}

void joinTo(Value& target, const Value& value, Place place) {
    noteGrowth(place);
    if (target.is(Tag::Text) && target.block()->references == 1) {
        appendForm(textBlock(target), value);
    } else {
        target = join(target, value, place);
    }
}

void addValueTo(Value& target, const Value& value, Place place) {
    if (target.is(Tag::Text)) {
        joinTo(target, value, place);
    } else if (target.is(Tag::List) && value.is(Tag::List)) {
        noteGrowth(place);
        appendAll(ownList(target), value);
    } else {
        target = addValues(target, value, place);
    }
}

} // namespace pozhil::engine

#include "engine/collections.h"
#include "engine/library.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/number_form.h"
#include "engine/text.h"

namespace pozhil::engine {
namespace {

/// A list or map that is being written, and how far it is.
struct Open {
    const Value* container;
    std::size_t next;
};

void appendSimple(std::string& out, const Value& value) {
    switch (value.tag()) {
    case Tag::Truth: out += value.truth() ? "மெய்" : "பொய்"; return;
    case Tag::Whole: return appendWhole(out, value.whole());
    case Tag::Decimal: return appendDecimal(out, value.decimal());
    case Tag::Text: out += textOf(value); return;
    case Tag::Object: out += "[பொருள்]"; return;
    case Tag::Function: out += "[வினை]"; return;
    case Tag::Time: out += textOf(dateAndClockText(value, nullptr)); return;
    default: out += "[தெரியாத வகை]"; return;
    }
}

void appendKey(std::string& out, const Value& key) {
    const char* const quote = key.is(Tag::Text) ? "\"" : "";
    out += quote;
    appendSimple(out, key);
    out += quote;
    out += ": ";
}

std::size_t sizeOf(const Value& container) {
    return container.is(Tag::List) ? listBlock(container).size : mapSize(mapBlock(container));
}

/// The next element, after its key and what sets it apart from the one before it.
const Value& appendNext(std::string& out, Open& open) {
    const std::size_t index = open.next++;
    if (index > 0) {
        out += ", ";
    }
    if (open.container->is(Tag::List)) {
        return listBlock(*open.container).elements[index];
    }
    Map& map = mapBlock(*open.container);
    appendKey(out, keyAt(map, index));
    return valueAt(map, index);
}

} // namespace

void appendTextForm(std::string& out, const Value& value) {
    if (!isContainer(value)) {
        appendSimple(out, value);
        return;
    }
    // A stack of our own: lists may nest deeper than calls.
    std::vector<Open> stack;
    const auto begin = [&](const Value& container) {
        out += container.is(Tag::List) ? '[' : '{';
        stack.push_back({&container, 0});
    };
    begin(value);
    while (!stack.empty()) {
        Open& innermost = stack.back();
        if (innermost.next == sizeOf(*innermost.container)) {
            out += innermost.container->is(Tag::List) ? ']' : '}';
            stack.pop_back();
            continue;
        }
        const Value& element = appendNext(out, innermost);
        if (isContainer(element)) {
            begin(element);
        } else {
            appendSimple(out, element);
        }
    }
}

std::string textForm(const Value& value) {
    std::string form;
    appendTextForm(form, value);
    return form;
}

} // namespace pozhil::engine

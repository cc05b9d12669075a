#include "engine/collections.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/text.h"
#include "report/width.h"

#include <string_view>

namespace pozhil::engine {

void Each::checkIterable(Place place) const {
    if (!held_.is(Tag::Map) && !held_.is(Tag::Text)) {
        raise(NOT_ITERABLE, place, {kindWord(held_)});
    }
}

bool Each::nextValue(Value& variable) {
    if (held_.is(Tag::List)) {
        return false; // at its end
    }
    if (held_.is(Tag::Map)) {
        Map& map = mapBlock(held_);
        if (position_ == mapSize(map)) {
            return false;
        }
        variable = keyAt(map, position_++);
        return true;
    }
    // In bytes: the first question for a letter by its number would measure the whole text.
    const std::string_view rest = std::string_view(textBlock(held_).bytes).substr(position_);
    const std::size_t size = report::firstLetterSize(rest);
    if (size > 0) {
        variable = normalText(std::string(rest.substr(0, size)));
        position_ += size;
    }
    return size > 0;
}

} // namespace pozhil::engine

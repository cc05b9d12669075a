#include "engine/told_value.h"

#include "engine/text.h"
#include "engine/text_scan.h"

namespace pozhil::engine {

std::string toldValue(const Value& value) {
    const std::string form = shortened(textForm(value));
    return value.is(Tag::Text) ? '"' + form + '"' : form;
}

} // namespace pozhil::engine

#include "generator/web/write/presence.h"

#include <stdexcept>

namespace pozhil {

void Presence::refuseElements() {
    throw std::logic_error("an edition without lists of widgets is asked for their elements");
}

void Presence::refuseWrapping() {
    throw std::logic_error("an edition whose texts are of one line is asked where they wrap");
}

std::string Presence::wrappedText(const WidgetNode&, const std::string&) {
    refuseWrapping();
}

Extent Presence::wrappedSize(const WidgetNode&, const char*) {
    refuseWrapping();
}

Extent Presence::sumOverElements(const EachNode&, const Extent&) {
    refuseElements();
}

Extent Presence::largestOfElements(const EachNode&, const Extent&) {
    refuseElements();
}

} // namespace pozhil

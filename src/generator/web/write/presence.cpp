#include "generator/web/write/presence.h"

#include <stdexcept>

namespace pozhil {

void Presence::refuseElements() {
    throw std::logic_error("an edition without lists of widgets is asked for their elements");
}

Extent Presence::sumOverElements(const EachNode&, const Extent&) {
    refuseElements();
}

Extent Presence::largestOfElements(const EachNode&, const Extent&) {
    refuseElements();
}

} // namespace pozhil

#include "generator/web/write/presence.h"

#include <stdexcept>

namespace pozhil {
namespace {

[[noreturn]] void refuse() {
    throw std::logic_error("an edition without lists of widgets is asked for their elements");
}

} // namespace

Extent Presence::sumOverElements(const EachNode&, const Extent&) {
    refuse();
}

Extent Presence::largestOfElements(const EachNode&, const Extent&) {
    refuse();
}

} // namespace pozhil

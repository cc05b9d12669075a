#include "generator/web/write/edition.h"

#include <stdexcept>

namespace pozhil {
namespace {

[[noreturn]] void refuse() {
    throw std::logic_error("an edition without lists of widgets is asked for their elements");
}

} // namespace

void Edition::writeEach(WidgetWriter&, const EachNode&, const Filling&, const Course*) {
    refuse();
}

std::string Edition::elementScope(const EachNode&, const std::string&) {
    refuse();
}

Filling Edition::elementState(const std::string&, const std::string&, const Filling&) const {
    refuse();
}

std::string Edition::elementKey(const std::string&) const {
    refuse();
}

std::string Edition::elementName(const std::string&) const {
    refuse();
}

} // namespace pozhil

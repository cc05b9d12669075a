#include "generator/web/write/edition_writer.h"

#include <stdexcept>

namespace pozhil {
namespace {

[[noreturn]] void refuse() {
    throw std::logic_error("an edition without lists of widgets is asked for their elements");
}

} // namespace

void EditionWriter::writeEach(WidgetWriter&, const EachNode&, const Filling&, const Course*) {
    refuse();
}

std::string EditionWriter::elementScope(const EachNode&, const std::string&) {
    refuse();
}

Filling EditionWriter::elementState(const std::string&, const std::string&, const Filling&) const {
    refuse();
}

std::string EditionWriter::elementKey(const std::string&) const {
    refuse();
}

std::string EditionWriter::elementName(const std::string&) const {
    refuse();
}

} // namespace pozhil

#include "generator/web/write/edition_writer.h"

#include "generator/web/write/sizes.h"

namespace pozhil {

const Layering& EditionWriter::layering() const {
    static const Layering NONE;
    return NONE;
}

std::string EditionWriter::sizeText(const Expression* size, const std::string& base) {
    return processPercentage(*this, size, base);
}

void EditionWriter::writeEach(WidgetWriter&, const EachNode&, const std::string&, const Filling&, const Course*) {
    refuseElements();
}

std::string EditionWriter::elementScope(const std::string&) const {
    refuseElements();
}

Filling EditionWriter::elementState(const std::string&, const std::string&, const Filling&) const {
    refuseElements();
}

std::string EditionWriter::elementKey(const std::string&) const {
    refuseElements();
}

std::string EditionWriter::elementName(const std::string&) const {
    refuseElements();
}

} // namespace pozhil

#include "generator/web/literals.h"

#include "generator/web/emitted_block.h"
#include "generator/web/metrics.h"
#include "generator/web/widget_writer.h"

namespace pozhil {

std::string textOf(const Expression* value) {
    const auto* text = nodeCast<StringLiteral>(value);
    return text == nullptr ? "" : text->value;
}

std::string numberConstant(const WidgetNode& widget, std::initializer_list<const char*> names, float usual) {
    return floatConstant(numberOf(findProperty(widget, names)).value_or(usual));
}

Colour colourProperty(const WidgetNode& widget, std::initializer_list<const char*> names, const char* usual) {
    return colourOf(findProperty(widget, names)).value_or(styleColour(usual));
}

} // namespace pozhil

#include "generator/web/write/text_value.h"

#include "base/number_text.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

constexpr const char* WIDGET_WITHOUT_TEXT = "std::string(u8\"[விட்ஜெட்]\")";

} // namespace

Filling textValue(WidgetWriter& widget, const Expression* value, const char* otherwise) {
    if (const WidgetNode* inner = asWidget(value)) {
        return widget.edition().text(findProperty(*inner, {"உரை"}), WIDGET_WITHOUT_TEXT);
    }
    return widget.edition().shownText(value, otherwise);
}

Filling textArgument(WidgetWriter& widget, const Expression* value) {
    const auto* literal = nodeCast<StringLiteral>(value);
    if (value == nullptr || literal != nullptr) {
        return widget.edition().literal(textOf(value));
    }
    return Filling(std::vector<Filling>{textValue(widget, value, ""), ".c_str()"});
}

Filling numberValue(WidgetWriter& widget, const Expression* value, float usual) {
    const std::optional<float> constant = value == nullptr ? usual : constantOf(value);
    if (constant) {
        return floatConstant(*constant);
    }
    return Filling(std::vector<Filling>{"(float)", widget.edition().number(*value)});
}

Filling truthValue(WidgetWriter& widget, const Expression* value) {
    if (value == nullptr || nodeCast<BooleanLiteral>(value) != nullptr) {
        return isTrue(value) ? "true" : "false";
    }
    return widget.edition().truth(*value);
}

float fontSizeOf(const TextStyle& style) {
    constexpr float USUAL = 16.0F;
    return style.size > 0 ? style.size : USUAL;
}

std::string weightOf(const TextStyle& style) {
    return style.weight.empty() ? "400" : toAsciiDigits(style.weight);
}

} // namespace pozhil

#include "generator/web/write/literals.h"

#include "base/number_text.h"
#include "emit/emitted_block.h"
#include "generator/web/write/widget_properties.h"
#include "language/property_words.h"

namespace pozhil {

std::string textOf(const Expression* value) {
    const auto* text = nodeCast<StringLiteral>(value);
    return text == nullptr ? "" : text->value;
}

std::string pageNameIn(const WidgetNode& widget) {
    const auto* name = nodeCast<StringLiteral>(findProperty(widget, {"பக்கம்"}));
    return name == nullptr ? language::property::UNNAMED_PAGE : name->value;
}

std::string pictureFile(const WidgetNode& picture) {
    const auto* path = nodeCast<StringLiteral>(findProperty(picture, {"பாதை"}));
    return path == nullptr ? "logo.png" : path->value;
}

bool isTrue(const Expression* value) {
    const auto* truth = nodeCast<BooleanLiteral>(value);
    return truth != nullptr && truth->value == "மெய்";
}

std::optional<float> numberOf(const Expression* expression) {
    const auto* number = nodeCast<NumberLiteral>(expression);
    return number == nullptr ? std::nullopt : std::optional(floatOf(number->value));
}

std::optional<float> constantOf(const Expression* value) {
    if (const auto* sign = nodeCast<UnaryExpression>(value)) {
        const bool isMinus = sign->op.type == TokenType::UNARY_MINUS || sign->op.value == "கழி";
        const std::optional<float> number = constantOf(sign->right.get());
        return isMinus && number ? std::optional(-*number) : std::nullopt;
    }
    const auto* fraction = nodeCast<DoubleLiteral>(value);
    return fraction == nullptr ? numberOf(value) : floatOf(fraction->value);
}

std::string numberConstant(const WidgetNode& widget, std::initializer_list<const char*> names, float usual) {
    return floatConstant(constantOf(findProperty(widget, names)).value_or(usual));
}

Colour colourProperty(const WidgetNode& widget, std::initializer_list<const char*> names, const char* usual) {
    return colourOf(findProperty(widget, names)).value_or(styleColour(usual));
}

} // namespace pozhil

#include "generator/web/widgets/button_label.h"

#include "generator/web/write/literals.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace pozhil {
namespace {

/// The text of a style entry, whether the source wrote a text, a number or a word.
std::string wordOf(const Expression* value) {
    if (const auto* text = nodeCast<StringLiteral>(value)) {
        return text->value;
    }
    if (const auto* number = nodeCast<NumberLiteral>(value)) {
        return number->value;
    }
    const auto* variable = nodeCast<VariableAccess>(value);
    return variable == nullptr ? "" : variable->name;
}

/// A style record among the label's children overrides what the label's own style says.
void applyStyleRecord(const WidgetNode& label, TextStyle& style, Colour& colour) {
    const WidgetNode* record = childOfKind(label, "உரைபாணி");
    if (record == nullptr) {
        return;
    }
    colour = colourOf(findProperty(*record, {"நிறம்"})).value_or(colour);
    style.size = constantOf(findProperty(*record, {"அளவு"})).value_or(style.size);
    for (const auto& [name, field] : {std::pair{"எழுத்துரு", &style.font}, std::pair{"தடிமன்", &style.weight}}) {
        const std::string word = wordOf(findProperty(*record, {name}));
        *field = word.empty() ? *field : word;
    }
}

} // namespace

ButtonLabel buttonLabel(const WidgetNode& button) {
    constexpr Colour WHITE = {1.0F, 1.0F, 1.0F, 1.0F};
    if (const WidgetNode* text = childOfKind(button, language::widget::TEXT)) {
        ButtonLabel label = {findProperty(*text, {"உரை"}), text->style, styleColour(text->style.color)};
        applyStyleRecord(*text, label.style, label.colour);
        return label;
    }
    TextStyle style;
    style.weight = "400";
    return {findProperty(button, {"உரை"}), style,
            colourOf(findProperty(button, {"style_எழுத்து_நிறம்"})).value_or(WHITE)};
}

std::string faceOf(const TextStyle& style) {
    constexpr long HEAVIEST_LIGHT = 29;
    constexpr std::array<std::string_view, 5> BOLD = {"700", "800", "900", "தடிமனான", "bold"};
    if (!style.font.empty()) {
        return style.font;
    }
    const std::string weight = weightOf(style);
    char* end = nullptr;
    const long number = std::strtol(weight.c_str(), &end, 10);
    const bool isHeavy = *end == '\0' && number > HEAVIEST_LIGHT;
    const bool isBold = isHeavy || std::find(BOLD.begin(), BOLD.end(), weight) != BOLD.end();
    return isBold ? "tamil_font" : "sans";
}

} // namespace pozhil

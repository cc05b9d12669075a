#include "generator/web/measure/metric_rules.h"

#include "generator/web/write/literals.h"
#include "generator/web/write/widget_properties.h"

#include <algorithm>

namespace pozhil {

std::optional<float> fixedSize(const Expression* expression) {
    return nodeCast<PercentageLiteral>(expression) != nullptr ? 0.0F : numberOf(expression);
}

std::optional<float> givenSize(const Measure& measure) {
    return fixedSize(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name}));
}

std::optional<float> plainSize(const Measure& measure) {
    return fixedSize(findProperty(measure.widget, {measure.axis.name}));
}

float numberProperty(const WidgetNode& widget, const char* name, float usual) {
    return numberOf(findProperty(widget, {name})).value_or(usual);
}

float largestChild(const Measure& measure) {
    float largest = 0.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        largest = std::max(largest, measure.of(child));
    }
    return largest;
}

float firstChild(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    return children.empty() ? 0.0F : measure.of(children.front());
}

float lineOfChildren(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    float sum = 0.0F;
    for (const WidgetNode* child : children) {
        sum += measure.of(child);
    }
    const float gaps = children.size() > 1 ? static_cast<float>(children.size() - 1) : 0.0F;
    return sum + gaps * numberProperty(measure.widget, "இடைவெளி", 0.0F);
}

float labelWidth(const WidgetNode& widget, float size) {
    constexpr float NARROWEST = 80.0F;
    constexpr float PADDING = 32.0F;
    constexpr float PER_CODE_POINT = 0.45F;
    const auto* text = nodeCast<StringLiteral>(findProperty(widget, {"உரை"}));
    const std::size_t count = text == nullptr ? 0 : countCodePoints(text->value);
    return std::max(NARROWEST, PADDING + static_cast<float>(count) * PER_CODE_POINT * size);
}

std::size_t countCodePoints(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace pozhil

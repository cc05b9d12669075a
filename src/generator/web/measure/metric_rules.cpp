/// Sizes of single widgets: what the source gives, what a text takes, or what is usual.

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_properties.h"

#include <algorithm>

namespace pozhil {
namespace {

constexpr float USUAL_TEXT_SIZE = 16.0F;
constexpr float CHECK_BOX = 24.0F;

/// A Tamil letter may have several code points.
std::size_t countCodePoints(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// How wide a label is, by a rough width per code point.
float labelWidth(const WidgetNode& widget, float size) {
    constexpr float NARROWEST = 80.0F;
    constexpr float PADDING = 32.0F;
    constexpr float PER_CODE_POINT = 0.45F;
    const auto* text = nodeCast<StringLiteral>(findProperty(widget, {"உரை"}));
    const std::size_t count = text == nullptr ? 0 : countCodePoints(text->value);
    return std::max(NARROWEST, PADDING + static_cast<float>(count) * PER_CODE_POINT * size);
}

/// A card is as large as its first child with the space around it.
float cardSize(const Measure& measure, float usual) {
    constexpr float BOTH_SIDES = 20.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? usual : firstChild(measure) + BOTH_SIDES;
}

} // namespace

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

float textButtonWidth(const Measure& measure) {
    return labelWidth(measure.widget, numberProperty(measure.widget, "style_அளவு", USUAL_TEXT_SIZE));
}

float buttonWidth(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? *given : labelWidth(measure.widget, USUAL_TEXT_SIZE);
}

float textWidth(const Measure& measure) {
    constexpr std::size_t UNKNOWN_LENGTH = 10;
    constexpr float PER_CODE_POINT = 0.65F;
    const float styleSize = measure.widget.style.size;
    const float size = styleSize > 0 ? styleSize : numberProperty(measure.widget, "style_அளவு", USUAL_TEXT_SIZE);
    std::size_t count = UNKNOWN_LENGTH;
    for (const auto& property : measure.widget.properties) {
        if (const auto* text = nodeCast<StringLiteral>(property.second.get())) {
            count = countCodePoints(text->value);
            break;
        }
    }
    return static_cast<float>(count) * PER_CODE_POINT * size;
}

float textHeight(const Measure& measure) {
    constexpr float USUAL_HEIGHT = 20.0F;
    return measure.widget.style.size > 0 ? measure.widget.style.size : USUAL_HEIGHT;
}

float paddingSize(const Measure& measure) {
    constexpr float BOTH_SIDES = 20.0F;
    const auto* padding = dynamic_cast<const PaddingNode*>(&measure.widget);
    return firstChild(measure) + (padding == nullptr ? BOTH_SIDES : 2 * padding->padding);
}

float checkBoxWidth(const Measure& measure) {
    constexpr float GAP = 12.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? CHECK_BOX : CHECK_BOX + GAP + firstChild(measure);
}

float checkBoxHeight(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? *given : std::max(CHECK_BOX, firstChild(measure));
}

float boxSize(const Measure& measure) {
    constexpr float USUAL = 100.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        if (child->kind == "பெட்டி_பாணி") {
            const std::optional<float> size = plainSize({measure.metrics, *child, measure.axis});
            if (size) {
                return *size;
            }
        }
    }
    return givenSize(measure).value_or(USUAL);
}

float cardWidth(const Measure& measure) {
    constexpr float USUAL = 350.0F;
    return cardSize(measure, USUAL);
}

float cardHeight(const Measure& measure) {
    constexpr float USUAL = 200.0F;
    return cardSize(measure, USUAL);
}

float spinnerSize(const Measure& measure) {
    constexpr float USUAL = 40.0F;
    return numberProperty(measure.widget, "style_அளவு", USUAL);
}

float tileHeight(const Measure& measure) {
    constexpr float ONE_LINE = 56.0F;
    constexpr float TWO_LINES = 72.0F;
    const bool hasSubtitle = findProperty(measure.widget, {"துணைத்_தலைப்பு"}) != nullptr;
    return plainSize(measure).value_or(hasSubtitle ? TWO_LINES : ONE_LINE);
}

} // namespace pozhil

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

Extent largestChild(const Measure& measure) {
    return measure.roomOf(childWidgets(measure.widget)).largest;
}

Extent firstChild(const Measure& measure) {
    auto children = childWidgets(measure.widget);
    children.resize(std::min<std::size_t>(children.size(), 1));
    return measure.roomOf(children).sum;
}

Extent lineOfChildren(const Measure& measure) {
    const Room room = measure.roomOf(childWidgets(measure.widget));
    return room.sum + gapsBetween(room.number) * numberProperty(measure.widget, "இடைவெளி", 0.0F);
}

OfferedRoom roomOfOwnWidth(const std::string& given) {
    return {"pozhil_own_width(" + given + ")"};
}

OfferedRoom roomOfLayout(const Measure& measure, const WidgetNode&) {
    const std::optional<float> given =
        numberOf(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name}));
    return given ? OfferedRoom{Extent(*given).text()} : OfferedRoom();
}

OfferedRoom sameRoom(const Measure&, const WidgetNode&) {
    OfferedRoom room;
    room.imposed = "pozhil_imposed_width";
    return room;
}

OfferedRoom roomOfWindow(const Measure&, const WidgetNode&) {
    return {"winWidth"};
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

#include "language/second/animations.h"

#include "language/curves.h"
#include "language/property_words.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language::second {
namespace {

constexpr std::string_view TRIGGERS[] = {"தானாக", "auto", "hover", "சுட்டி_மேல்", "மவுஸ்_மேலே"};
constexpr std::string_view TEXTS[] = {widget::TEXT};
constexpr std::string_view BUTTONS[] = {widget::BUTTON};
constexpr std::string_view BOXES[] = {widget::BUTTON, widget::CONTAINER};

/// Something that an animation of some widgets changes.
struct Target {
    Rows<std::string_view> widgets;
    WidgetProperty property;
};

// clang-format off
constexpr WidgetProperty PROPERTIES[] = {
    {"நிலைமை", "", ValueKind::Text, {"எப்போது தொடங்கும்", "when it starts"}, TRIGGERS},
    {property::DURATION, "", ValueKind::Number, {"எத்தனை மில்லிவினாடி", "how many milliseconds it takes"}},
    {ANIMATION_CURVE, "", ValueKind::Value, {"எந்த வளைவில்", "along which curve"}},
};

constexpr Target TARGETS[] = {
    {BOXES, {property::WIDTH, "", ValueKind::Number, {"அகலம்", "width"}}},
    {BOXES, {property::HEIGHT, "", ValueKind::Number, {"உயரம்", "height"}}},
    {BOXES, {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}}},
    {BOXES, {"விரிவு", "", ValueKind::Number, {"எத்தனை மடங்கு", "how many times as large"}}},
    {BOXES, {"கி_நகர்வு", "", ValueKind::Number, {"வலமாக", "to the right"}}},
    {BOXES, {"நெ_நகர்வு", "", ValueKind::Number, {"கீழாக", "down"}}},
    {BOXES, {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}}},
    {BOXES, {property::BOX_BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}}},
    {BUTTONS, {property::BUTTON_BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}}},
    {TEXTS, {"மங்குநழுவு", "", ValueKind::Number, {"கீழிருந்து எழுந்து தெளியும்", "fades in while rising"}}},
    {TEXTS, {"மதிப்பு", "", ValueKind::Number, {"உரையில் உள்ள எண் அதுவரை எண்ணும்", "the number in the text counts up to it"}}},
};
// clang-format on

} // namespace

Rows<WidgetProperty> animationProperties() {
    return PROPERTIES;
}

std::vector<const WidgetProperty*> animationTargets(const Widget& widget) {
    std::vector<const WidgetProperty*> found;
    for (const Target& row : TARGETS) {
        if (std::find(row.widgets.begin(), row.widgets.end(), widget.word) != row.widgets.end()) {
            found.push_back(&row.property);
        }
    }
    return found;
}

std::vector<std::string_view> curveNames() {
    std::vector<std::string_view> names;
    const Rows<Curve> rows = curves();
    std::transform(rows.begin(), rows.end(), std::back_inserter(names), [](const Curve& row) { return row.name; });
    return names;
}

} // namespace pozhil::language::second

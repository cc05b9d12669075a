#include "language/second/written_values.h"

#include "language/property_words.h"
#include "language/second/animations.h"
#include "language/second/application_words.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language::second {
namespace {

constexpr std::string_view ANY = "";

enum class Number { Any, Whole };

/// Properties of one bracket, or of all that have none of their own row.
struct Written {
    std::string_view owner;
    std::string_view property;
    Number number = Number::Any;
};

// Rows of one owner come before those of all.
constexpr Written WRITTEN[] = {
    {application::HEADER, ANY},
    {application::FIREBASE_CONFIG, ANY},
    {property::TEXT_STYLE, ANY},
    {property::ANIMATION, property::DURATION},
    {ANIMATION_TARGETS, ANY},
    {widget::COLUMN, property::WIDTH, Number::Whole},
    {widget::COLUMN, property::HEIGHT, Number::Whole},
    {widget::ROW, property::WIDTH, Number::Whole},
    {widget::ROW, property::HEIGHT, Number::Whole},
    {widget::PADDING, property::SIZE, Number::Whole},
    {widget::TEXT, property::WRAP},
    {widget::TEXT_FIELD, property::WIDTH},
    {widget::TEXT_FIELD, property::HEIGHT},
    {widget::PASSWORD_FIELD, property::WIDTH},
    {widget::PASSWORD_FIELD, property::HEIGHT},
    {widget::TEXT_BUTTON, property::TEXT},
    {widget::AVATAR, property::WIDTH},
    {widget::GRID_VIEW, property::WIDTH},

    {ANY, property::GAP, Number::Whole},
    {ANY, widget::SHARE, Number::Whole},
    {ANY, "cols", Number::Whole},
    {ANY, "குறுக்கு_எண்ணிக்கை", Number::Whole},
    {ANY, "கி_இவெ"},
    {ANY, "நெ_இவெ"},
    {ANY, "நகர்வு_X"},
    {ANY, "நகர்வு_Y"},
    {ANY, property::RADIUS},
    {ANY, property::SHADOW},
    {ANY, property::BORDER_SIZE},
    {ANY, property::SIZE},
    {ANY, property::WEIGHT},
    {ANY, "எலிவேஷன்"},
    {ANY, "எழுத்தளவு"},
    {ANY, "குறிப்பு"},
    {ANY, "தேடல்_குறிப்பு"},
    {ANY, "உருளும்பட்டை"},
    {ANY, "பலவரி"},
};

/// The row of a property, null if it has none.
const Written* rowOf(std::string_view owner, const WidgetProperty& property) {
    const auto* const row = std::find_if(std::begin(WRITTEN), std::end(WRITTEN), [&](const Written& one) {
        return (one.owner == ANY || one.owner == owner) && (one.property == ANY || one.property == property.name);
    });
    return row == std::end(WRITTEN) ? nullptr : row;
}

} // namespace

bool isWritten(std::string_view owner, const WidgetProperty& property) {
    switch (property.kind) {
    case ValueKind::Path:
    case ValueKind::Variable:
    case ValueKind::Colour:
    case ValueKind::Alignment: return true;
    default: return property.choices.size() != 0 || rowOf(owner, property) != nullptr;
    }
}

bool isWhole(std::string_view owner, const WidgetProperty& property) {
    const Written* const row = rowOf(owner, property);
    return row != nullptr && row->number == Number::Whole;
}

} // namespace pozhil::language::second

#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;

// clang-format off
constexpr WidgetProperty DIVIDER_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::COLOUR, "", ValueKind::Colour, {"கோட்டின் நிறம்", "colour of the line"}},
};

constexpr WidgetProperty PROGRESS_BAR_PROPERTIES[] = {
    {"மதிப்பு", "", ValueKind::Number, {"0–100; இல்லையெனில் அசையும்", "0 to 100; moving without it"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::COLOUR, "", ValueKind::Colour, {"நிறம்", "colour"}},
};

constexpr WidgetProperty SPINNER_PROPERTIES[] = {
    {property::SIZE, property::DIALOG_STYLE, ValueKind::Number, {"அளவு", "size"}},
    {property::COLOUR, property::DIALOG_STYLE, ValueKind::Colour, {"நிறம்", "colour"}},
};

constexpr WidgetProperty INFO_PILL_PROPERTIES[] = {
    {property::MESSAGE, "", ValueKind::Value, {"எப்போதும் தெரியும் செய்தி", "a message that stays"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

constexpr Widget WIDGETS[] = {
    {widget::DIVIDER, TokenType::IDENTIFIER, false, Start::Nothing, Form::General, Role::Widget, DIVIDER_PROPERTIES,
     {"உயரத்தின் நடுவில் ஒரு கோடு", "a line in the middle of its height"}},
    {widget::PROGRESS_BAR, TokenType::IDENTIFIER, false, Start::Nothing, Form::General, Role::Widget, PROGRESS_BAR_PROPERTIES,
     {"எவ்வளவு முடிந்தது என்று காட்டும்", "shows how much is done"}},
    {widget::SPINNER, TokenType::IDENTIFIER, false, Start::Nothing, Form::General, Role::Widget, SPINNER_PROPERTIES,
     {"சுழலும் காட்டி", "a turning indicator"}},
    {widget::INFO_PILL, TokenType::IDENTIFIER, false, Start::Nothing, Form::General, Role::Widget, INFO_PILL_PROPERTIES,
     {"எப்போதும் தெரியும் செய்தி", "a message that stays"}},
};
// clang-format on

} // namespace

Rows<Widget> indicatorWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language

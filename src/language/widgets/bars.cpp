#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;
using Children = WidgetChildren;

// clang-format off
constexpr WidgetProperty DIALOG_PROPERTIES[] = {
    {property::VISIBILITY, "", ValueKind::Variable, {"மாறியின் பெயர், உரையாக", "name of the variable, as a text"}},
    {property::WIDTH, property::DIALOG_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, property::DIALOG_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {property::BACKGROUND, property::DIALOG_STYLE, ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::RADIUS, property::DIALOG_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::SHADOW, property::DIALOG_STYLE, ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
};

constexpr WidgetProperty SNACK_BAR_PROPERTIES[] = {
    {property::MESSAGE, "", ValueKind::Value, {"உரை, கோவை அல்லது `உரை` விட்ஜெட்", "text, expression or text widget"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

constexpr WidgetProperty TAB_BAR_PROPERTIES[] = {
    {property::BACKGROUND, property::TEXT_STYLE, ValueKind::Colour, {"பட்டையின் நிறம்", "colour of the bar"}},
    {"தத்தல்_தேர்வு", "", ValueKind::Number, {"தொடக்கத் தேர்வு, 0 முதல்", "selected at first, from 0"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty TAB_ITEM_PROPERTIES[] = {
    {property::TEXT, "", ValueKind::Text, {"எழுத்து", "label"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty BOTTOM_NAVIGATION_PROPERTIES[] = {
    {property::BACKGROUND, property::TEXT_STYLE, ValueKind::Colour, {"பட்டையின் நிறம்", "colour of the bar"}},
    {"அடிப்பகுதிதேர்வு", "", ValueKind::Number, {"தேர்வு, 0 முதல்", "selected, from 0"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty BOTTOM_ITEM_PROPERTIES[] = {
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty PAGE_PROPERTIES[] = {
    {property::PAGE, "", ValueKind::Text, {"பெயர்", "name"}},
};

constexpr Widget WIDGETS[] = {
    {widget::DIALOG, TokenType::ALERT, true, Start::Kind, Form::Dialog, Role::Widget, DIALOG_PROPERTIES,
     {"பக்கத்தின் மேல் ஓர் உரையாடல் பெட்டி", "a dialog above the page"}, Children::Any},
    {widget::SNACK_BAR, TokenType::SNACKBAR, true, Start::KindOrName, Form::SnackBar, Role::Widget, SNACK_BAR_PROPERTIES,
     {"மேலிருந்து வந்து 2.5 வினாடியில் போகும் செய்தி", "a message that slides in from the top and goes after 2.5 seconds"}},
    {widget::TAB_BAR, TokenType::TAB, true, Start::Kind, Form::General, Role::Widget, TAB_BAR_PROPERTIES,
     {"சாளரத்தின் அகலத்தில் தத்தல்கள்", "a tab bar as wide as the window"}, Children::TabItems},
    {widget::TAB_ITEM, TokenType::TAB_ITEM, true, Start::Kind, Form::General, Role::Item, TAB_ITEM_PROPERTIES,
     {"தத்தலின் ஓர் உருப்படி", "an item of a tab bar"}, Children::Text},
    {widget::BOTTOM_NAVIGATION, TokenType::BOTTOM_NAV, true, Start::Kind, Form::General, Role::Widget, BOTTOM_NAVIGATION_PROPERTIES,
     {"சாளரத்தின் அடியில் ஒரு பட்டை", "a bar at the bottom of the window"}, Children::BottomItems},
    {widget::BOTTOM_NAVIGATION_ITEM, TokenType::BOTTOM_NAV_ITEM, true, Start::Kind, Form::General, Role::Item, BOTTOM_ITEM_PROPERTIES,
     {"அடிப்பகுதியின் ஓர் உருப்படி", "an item of the bar at the bottom"}, Children::TextOrImage},
    {widget::PAGE, TokenType::PAGE, true, Start::Nothing, Form::General, Role::Widget, PAGE_PROPERTIES,
     {"இப்போதைய பக்கமாக இருக்கும்போது சாளரம் முழுவதையும் மூடும்", "covers the window while it is the current page"}, Children::Any},
};
// clang-format on

} // namespace

Rows<Widget> barWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language

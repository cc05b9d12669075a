#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;
using Children = WidgetChildren;

// clang-format off
constexpr WidgetProperty TEXT_FIELD_PROPERTIES[] = {
    {property::ID, "", ValueKind::Variable, {"பெயர்; படிக்க வேண்டுமெனில் கட்டாயம்", "name, needed to read it"}},
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {property::WIDTH, "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {property::HEIGHT, "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {"பலவரி", "", ValueKind::Truth, {"பல வரிகள்", "several lines"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::TEXT_COLOUR, "", ValueKind::Colour, {"எழுத்தின் நிறம்", "colour of the text"}},
    {property::BORDER_COLOUR, "", ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {property::BORDER_SIZE, "", ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"முன்னணி", "", ValueKind::Widget, {"முன்னால் நிற்கும் சின்னம்", "a widget in front"}},
};

constexpr WidgetProperty PASSWORD_FIELD_PROPERTIES[] = {
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {property::WIDTH, "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {property::HEIGHT, "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::TEXT_COLOUR, "", ValueKind::Colour, {"எழுத்தின் நிறம்", "colour of the text"}},
    {property::COLOUR, "", ValueKind::Colour, {"இவ்விரு நிறங்களில் இல்லாததற்கு", "stands in for either colour"}},
};

constexpr WidgetProperty SEARCH_BAR_PROPERTIES[] = {
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {"தேடல்_குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {property::WIDTH, widget::SEARCH_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, widget::SEARCH_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {"களப்பின்னணி", widget::SEARCH_STYLE, ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::RADIUS, widget::SEARCH_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"எழுத்தளவு", widget::SEARCH_STYLE, ValueKind::Number, {"எழுத்தின் அளவு", "text size"}},
    {"தேடல்_படம்", "", ValueKind::Path, {"தேடல் சின்னத்தின் கோப்பு", "file of the icon in front"}},
    {"அழி_படம்", "", ValueKind::Path, {"அழிக்கும் சின்னத்தின் கோப்பு", "file of the icon that clears"}},
};

constexpr WidgetProperty SEARCH_STYLE_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {"களப்பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::RADIUS, "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"எழுத்தளவு", "", ValueKind::Number, {"எழுத்தின் அளவு", "text size"}},
};

constexpr WidgetProperty CHECKBOX_PROPERTIES[] = {
    {property::ID, "", ValueKind::Variable, {"மாறியின் பெயர்", "name of the variable"}},
    {"தேர்வுபெட்டிநிலை", "", ValueKind::Truth, {"தொடக்க நிலை", "at first"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {"தேர்வு_நிறம்", "", ValueKind::Colour, {"தேர்வானதன் நிறம்", "colour when selected"}},
    {"தேர்வற்ற_நிறம்", "", ValueKind::Colour, {"தேர்வாகாததன் நிறம்", "colour when not selected"}},
};

constexpr WidgetProperty RADIO_PROPERTIES[] = {
    {property::TEXT, "", ValueKind::Text, {"எழுத்து, உரையாக மட்டும்", "label, a literal text"}},
    {"மதிப்பு", "", ValueKind::Value, {"இதன் மதிப்பு", "its value"}},
    {"குழு_மதிப்பு", "", ValueKind::Value, {"குழுவின் மதிப்பு", "the value of the group"}},
    {"மாறியதால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"தேர்வு_நிறம்", "", ValueKind::Colour, {"தேர்வானதன் நிறம்", "colour when selected"}},
    {"தேர்வற்ற_நிறம்", "", ValueKind::Colour, {"தேர்வாகாததன் நிறம்", "colour when not selected"}},
};

constexpr WidgetProperty SWITCH_PROPERTIES[] = {
    {"ஆரம்ப_நிலை", "", ValueKind::Truth, {"தொடக்க நிலை", "at first"}},
    {"இயங்கும்_நிறம்", "", ValueKind::Colour, {"இயங்கும்போது நிறம்", "colour when on"}},
    {"முடங்கிய_நிறம்", "", ValueKind::Colour, {"முடங்கியபோது நிறம்", "colour when off"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

constexpr WidgetProperty SLIDER_PROPERTIES[] = {
    {"குறைந்தபட்சம்", "", ValueKind::Number, {"கீழ் எல்லை", "lower bound"}},
    {"அதிகபட்சம்", "", ValueKind::Number, {"மேல் எல்லை", "upper bound"}},
    {"மதிப்பு", "", ValueKind::Number, {"தொடக்க மதிப்பு", "first value"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

constexpr WidgetProperty DROPDOWN_PROPERTIES[] = {
    {"பட்டியல்", "", ValueKind::List, {"தேர்வுகள், உரைகளாக மட்டும்", "the choices, literal texts"}},
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

constexpr Widget WIDGETS[] = {
    {widget::TEXT_FIELD, TokenType::TEXT_FIELD, true, Start::Kind, Form::General, Role::Widget, TEXT_FIELD_PROPERTIES,
     {"தட்டச்சு செய்யும் பெட்டி", "a field to type in"}},
    {widget::PASSWORD_FIELD, TokenType::IDENTIFIER, true, Start::Nothing, Form::General, Role::Widget, PASSWORD_FIELD_PROPERTIES,
     {"தட்டச்சு செய்யும் பெட்டி; எழுதுவது மறைக்கப்படாது", "a field to type in; what is typed can be seen"}},
    {widget::SEARCH_BAR, TokenType::SEARCH_BAR, true, Start::KindOrName, Form::General, Role::Widget, SEARCH_BAR_PROPERTIES,
     {"தேடல் பட்டை", "a search bar"}},
    {widget::SEARCH_FIELD, TokenType::TEXT_FIELD, true, Start::KindOrName, Form::General, Role::Widget, SEARCH_BAR_PROPERTIES,
     {"`தேடல்_பட்டை` போன்றது", "as `தேடல்_பட்டை`"}},
    {widget::SEARCH_STYLE, TokenType::SEARCH_STYLE, true, Start::Name, Form::General, Role::Style, SEARCH_STYLE_PROPERTIES,
     {"தேடல் பட்டையின் தோற்றம்", "the look of a search bar"}},
    {widget::CHECKBOX, TokenType::CHECKBOX, true, Start::Kind, Form::General, Role::Widget, CHECKBOX_PROPERTIES,
     {"`மெய்` அல்லது `பொய்` என்று தேர்வு செய்யும் பெட்டி", "a box to tick"}, Children::Text},
    {widget::RADIO, TokenType::RADIO, true, Start::Kind, Form::General, Role::Widget, RADIO_PROPERTIES,
     {"`மதிப்பு`, `குழு_மதிப்பு` இரண்டும் சமமானால் தேர்வு", "selected while `மதிப்பு` equals `குழு_மதிப்பு`"}},
    {widget::SWITCH, TokenType::TOGGLE, true, Start::Kind, Form::General, Role::Widget, SWITCH_PROPERTIES,
     {"இயங்கும், முடங்கும் மாற்றி", "a switch, on or off"}},
    {widget::SLIDER, TokenType::SLIDER, true, Start::Kind, Form::General, Role::Widget, SLIDER_PROPERTIES,
     {"இரு எல்லைகளுக்கு நடுவே ஒரு மதிப்பு", "a value between two bounds"}},
    {widget::DROPDOWN, TokenType::UNDERLINE, true, Start::Kind, Form::General, Role::Widget, DROPDOWN_PROPERTIES,
     {"பட்டியலிலிருந்து ஒரு தேர்வு", "a choice out of a list"}},
};
// clang-format on

} // namespace

Rows<Widget> inputWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language

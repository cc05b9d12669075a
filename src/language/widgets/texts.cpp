#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;
using Children = WidgetChildren;

constexpr std::string_view WEIGHTS[] = {"தடிமனான", "bold"};
constexpr std::string_view TEXT_ALIGNMENTS[] = {"இடது", "மையம்", "வலது", "left", "center", "right"};

// clang-format off
constexpr WidgetProperty TEXT_PROPERTIES[] = {
    {property::TEXT, "", ValueKind::Value, {"காட்ட வேண்டியது; முதல் மதிப்பாகவும் வரலாம்", "what to show; also as the first value"}},
    {property::COLOUR, property::TEXT_STYLE, ValueKind::Colour, {"எழுத்தின் நிறம்", "colour"}},
    {property::SIZE, property::TEXT_STYLE, ValueKind::Number, {"எழுத்தின் அளவு", "size"}},
    {property::WEIGHT, property::TEXT_STYLE, ValueKind::Value, {"100–900, அல்லது `\"தடிமனான\"`", "weight, or `\"bold\"`"}, WEIGHTS},
    {property::ALIGNMENT, property::TEXT_STYLE, ValueKind::Value, {"`\"மையம்\"`: அளந்த நடுவைச் சுற்றி", "`\"மையம்\"`: about the measured middle"}, TEXT_ALIGNMENTS},
    {property::UNDERLINE, property::TEXT_STYLE, ValueKind::Truth, {"மேற்பகுதிக்கு 5 படவணு கீழே ஒரு கோடு", "a line, 5 pixels below the top"}},
    {property::FONT, property::TEXT_STYLE, ValueKind::Path, {"எழுத்துருக் கோப்பு", "font file"}},
};

constexpr WidgetProperty BUTTON_PROPERTIES[] = {
    {property::TEXT, "", ValueKind::Text, {"குழந்தை இல்லாத எழுத்து", "label without a child"}},
    {property::BUTTON_BACKGROUND, property::BUTTON_STYLE, ValueKind::Colour, {"பின்னணி", "background"}},
    {property::TEXT_COLOUR, property::BUTTON_STYLE, ValueKind::Colour, {"குழந்தை இல்லாதபோது எழுத்தின் நிறம்", "label colour without a child"}},
    {property::HOVER_COLOUR, property::BUTTON_STYLE, ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
    {property::WIDTH, property::BUTTON_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, property::BUTTON_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {property::RADIUS, property::BUTTON_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {property::SHADOW, property::BUTTON_STYLE, ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {property::BORDER_COLOUR, property::BUTTON_STYLE, ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {property::BORDER_SIZE, property::BUTTON_STYLE, ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr WidgetProperty TEXT_BUTTON_PROPERTIES[] = {
    {property::TEXT, "", ValueKind::Text, {"எழுத்து, உரையாக மட்டும்", "label, a literal text"}},
    {property::COLOUR, property::TEXT_BUTTON_STYLE, ValueKind::Colour, {"நிறம்", "colour"}},
    {property::HOVER_COLOUR, property::TEXT_BUTTON_STYLE, ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
    {property::SIZE, property::TEXT_BUTTON_STYLE, ValueKind::Number, {"எழுத்தின் அளவு; சாளரத்தோடு மாறாது", "size, the same in all windows"}},
    {property::ON_PRESS, "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

constexpr Widget WIDGETS[] = {
    {widget::TEXT, TokenType::TEXT, true, Start::KindOrName, Form::General, Role::Widget, TEXT_PROPERTIES,
     {"ஒரு வரி; மாறியைத் தந்தால் அதன் மதிப்பைத் தொடரும்", "a line of text; given a variable, it follows its value"}},
    {widget::BUTTON, TokenType::BUTTON, true, Start::Kind, Form::General, Role::Widget, BUTTON_PROPERTIES,
     {"அழுத்தும் பொத்தான்", "a button"}, Children::Text},
    {widget::TEXT_BUTTON, TokenType::TEXT_BUTTON, true, Start::KindOrName, Form::TextButton, Role::Widget, TEXT_BUTTON_PROPERTIES,
     {"கரையும் பின்னணியும் இல்லாத பொத்தான்", "a button without border and background"}},
};
// clang-format on

} // namespace

Rows<Widget> textWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language

#include "language/property_words.h"
#include "language/widgets/families.h"

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;
using Children = WidgetChildren;

// clang-format off
constexpr WidgetProperty LINE_PROPERTIES[] = {
    {property::GAP, "", ValueKind::Number, {"குழந்தைகளுக்கு நடுவே", "between children"}},
    {property::ALIGNMENT, "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
    {property::WIDTH, "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {property::HEIGHT, "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {"உருளும்பட்டை", "", ValueKind::Truth, {"உருளும்; சாளரத்தின் உயரத்தை (கிடைவரிசை: அகலத்தை) எடுக்கும்", "scrolls, and takes the height (a row the width) of the window"}},
};

constexpr WidgetProperty STACK_PROPERTIES[] = {
    {property::ALIGNMENT, "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
};

constexpr WidgetProperty WRAP_PROPERTIES[] = {
    {property::GAP, "", ValueKind::Number, {"குழந்தைகளுக்கு நடுவே", "between children"}},
};

constexpr WidgetProperty LIST_VIEW_PROPERTIES[] = {
    {property::ID, "", ValueKind::Variable, {"`நகர்த்து` உருட்டும் இடத்தின் பெயர்", "a name for `நகர்த்து`"}},
};

constexpr WidgetProperty GRID_VIEW_PROPERTIES[] = {
    {"cols", "", ValueKind::Number, {"நிரல்கள்", "columns"}},
    {"குறுக்கு_எண்ணிக்கை", "", ValueKind::Number, {"நிரல்கள்", "columns"}},
    {property::WIDTH, "", ValueKind::Number, {"எல்லா நிரல்களும் சேர்ந்து", "of all columns"}},
    {"கி_இவெ", "", ValueKind::Number, {"நிரல்களுக்கு நடுவே", "between columns"}},
    {"நெ_இவெ", "", ValueKind::Number, {"வரிசைகளுக்கு நடுவே", "between rows"}},
    {property::WIDTH, widget::GAP, ValueKind::Number, {"நிரல்களுக்கு நடுவே", "between columns"}},
    {property::HEIGHT, widget::GAP, ValueKind::Number, {"வரிசைகளுக்கு நடுவே", "between rows"}},
};

constexpr WidgetProperty FLEX_PROPERTIES[] = {
    {"பங்கு", "", ValueKind::Number, {"எஞ்சும் இடத்தில் எத்தனை பங்கு", "how many shares of what is left"}},
};

constexpr WidgetProperty GAP_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"கிடைவரிசையில் விடும் இடம்", "room in a row"}},
    {property::HEIGHT, "", ValueKind::Size, {"நெடுவரிசையில் விடும் இடம்", "room in a column"}},
};

constexpr WidgetProperty PADDING_PROPERTIES[] = {
    {property::SIZE, "", ValueKind::Number, {"குழந்தையை எத்தனை படவணு உள்ளே தள்ளும்", "by how many pixels the child is inset"}},
};

constexpr Widget WIDGETS[] = {
    {widget::COLUMN, TokenType::COLUMN, true, Start::Kind, Form::Column, Role::Widget, LINE_PROPERTIES,
     {"குழந்தைகள் மேலிருந்து கீழாக", "children from top to bottom"}, Children::Any},
    {widget::ROW, TokenType::ROW, true, Start::Kind, Form::Row, Role::Widget, LINE_PROPERTIES,
     {"குழந்தைகள் இடமிருந்து வலமாக", "children from left to right"}, Children::Any},
    {widget::STACK, TokenType::STACK, true, Start::Kind, Form::PlainLayout, Role::Widget, STACK_PROPERTIES,
     {"குழந்தைகள் ஒன்றன்மேல் ஒன்றாக", "children on top of each other"}, Children::Any},
    {widget::WRAP, TokenType::WRAP, false, Start::KindOrName, Form::PlainLayout, Role::Widget, WRAP_PROPERTIES,
     {"இடமிருந்து வலமாக; சாளரத்தின் அகலம் நிறைந்ததும் அடுத்த வரி", "from left to right, on to the next line at the window's width"}, Children::Any},
    {widget::LIST_VIEW, TokenType::LIST_VIEW, true, Start::KindOrName, Form::ListView, Role::Widget, LIST_VIEW_PROPERTIES,
     {"சாளரத்தின் அளவில் உருளும் பட்டியல்", "a scrolling list as large as the window"}, Children::Any},
    {widget::GRID_VIEW, TokenType::GRID_VIEW, true, Start::KindOrName, Form::GridView, Role::Widget, GRID_VIEW_PROPERTIES,
     {"குழந்தைகள் வரிசையும் நிரலுமாக", "children in rows and columns"}, Children::Any},
    {widget::EXPANDED, TokenType::EXPANDED, true, Start::KindOrName, Form::Expanded, Role::Widget, FLEX_PROPERTIES,
     {"எஞ்சும் இடத்தில் ஒரு பங்கு", "one share of what is left in a row or column"}, Children::One},
    {widget::FLEXIBLE, TokenType::FLEXIBLE, true, Start::KindOrName, Form::Flexible, Role::Widget, FLEX_PROPERTIES,
     {"எஞ்சும் இடத்தில் `பங்கு` சொல்லும் அளவு", "as many shares of what is left as `பங்கு` says"}, Children::One},
    {widget::SHARE, TokenType::FLEX_SHARE, true, Start::Nothing, Form::Flexible, Role::Key, {},
     {"எஞ்சும் இடத்தில் எத்தனை பங்கு", "how many shares of what is left"}},
    {widget::SPACER, TokenType::SPACER, true, Start::KindOrName, Form::Spacer, Role::Widget, FLEX_PROPERTIES,
     {"எதையும் வரையாமல் எஞ்சும் இடத்தை எடுக்கும்", "takes what is left and draws nothing"}},
    {widget::GAP, TokenType::PADDING, true, Start::Kind, Form::General, Role::Widget, GAP_PROPERTIES,
     {"ஓர் இடைவெளி", "a gap"}},
    {widget::PADDING, TokenType::INNER_PADDING, true, Start::KindOrName, Form::Padding, Role::Widget, PADDING_PROPERTIES,
     {"குழந்தையை உள்ளே தள்ளும்", "insets its child"}, Children::One},
    {widget::PADDING_MISSPELT, TokenType::INNER_PADDING, true, Start::KindOrName, Form::Padding, Role::Widget, PADDING_PROPERTIES,
     {"`உள்_இவெ`-யின் எழுத்துப் பிழை; எதையும் வரையாது", "a misspelling of `உள்_இவெ`; draws nothing"}, Children::One},
};
// clang-format on

} // namespace

Rows<Widget> layoutWidgets() {
    return WIDGETS;
}

} // namespace pozhil::language

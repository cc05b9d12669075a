#include "language/widgets.h"

#include "language/widget_properties.h"

#include <unordered_map>

namespace pozhil::language {
namespace {

using Start = WidgetStart;
using Form = WidgetForm;
using Role = WidgetRole;

// clang-format off
constexpr Widget WIDGETS[] = {
    {widget::TEXT, TokenType::TEXT, true, Start::KindOrName, Form::General, Role::Widget, TEXT_PROPERTIES,
     {"ஒரு வரி; மாறியைத் தந்தால் அதன் மதிப்பைத் தொடரும்", "a line of text; given a variable, it follows its value"}},
    {widget::BUTTON, TokenType::BUTTON, true, Start::Kind, Form::General, Role::Widget, BUTTON_PROPERTIES,
     {"அழுத்தும் பொத்தான்", "a button"}},
    {widget::TEXT_BUTTON, TokenType::TEXT_BUTTON, true, Start::KindOrName, Form::TextButton, Role::Widget, TEXT_BUTTON_PROPERTIES,
     {"கரையும் பின்னணியும் இல்லாத பொத்தான்", "a button without border and background"}},
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
     {"`மெய்` அல்லது `பொய்` என்று தேர்வு செய்யும் பெட்டி", "a box to tick"}},
    {widget::RADIO, TokenType::RADIO, true, Start::Kind, Form::General, Role::Widget, RADIO_PROPERTIES,
     {"`மதிப்பு`, `குழு_மதிப்பு` இரண்டும் சமமானால் தேர்வு", "selected while `மதிப்பு` equals `குழு_மதிப்பு`"}},
    {widget::SWITCH, TokenType::TOGGLE, true, Start::Kind, Form::General, Role::Widget, SWITCH_PROPERTIES,
     {"இயங்கும், முடங்கும் மாற்றி", "a switch, on or off"}},
    {widget::SLIDER, TokenType::SLIDER, true, Start::Kind, Form::General, Role::Widget, SLIDER_PROPERTIES,
     {"இரு எல்லைகளுக்கு நடுவே ஒரு மதிப்பு", "a value between two bounds"}},
    {widget::DROPDOWN, TokenType::UNDERLINE, true, Start::Kind, Form::General, Role::Widget, DROPDOWN_PROPERTIES,
     {"பட்டியலிலிருந்து ஒரு தேர்வு", "a choice out of a list"}},

    {widget::COLUMN, TokenType::COLUMN, true, Start::Kind, Form::Column, Role::Widget, LINE_PROPERTIES,
     {"குழந்தைகள் மேலிருந்து கீழாக", "children from top to bottom"}},
    {widget::ROW, TokenType::ROW, true, Start::Kind, Form::Row, Role::Widget, LINE_PROPERTIES,
     {"குழந்தைகள் இடமிருந்து வலமாக", "children from left to right"}},
    {widget::STACK, TokenType::STACK, true, Start::Kind, Form::PlainLayout, Role::Widget, STACK_PROPERTIES,
     {"குழந்தைகள் ஒன்றன்மேல் ஒன்றாக", "children on top of each other"}},
    {widget::WRAP, TokenType::WRAP, false, Start::KindOrName, Form::PlainLayout, Role::Widget, WRAP_PROPERTIES,
     {"இடமிருந்து வலமாக; சாளரத்தின் அகலம் நிறைந்ததும் அடுத்த வரி", "from left to right, on to the next line at the window's width"}},
    {widget::LIST_VIEW, TokenType::LIST_VIEW, true, Start::KindOrName, Form::ListView, Role::Widget, LIST_VIEW_PROPERTIES,
     {"சாளரத்தின் அளவில் உருளும் பட்டியல்", "a scrolling list as large as the window"}},
    {widget::GRID_VIEW, TokenType::GRID_VIEW, true, Start::KindOrName, Form::GridView, Role::Widget, GRID_VIEW_PROPERTIES,
     {"குழந்தைகள் வரிசையும் நிரலுமாக", "children in rows and columns"}},
    {widget::EXPANDED, TokenType::EXPANDED, true, Start::KindOrName, Form::Expanded, Role::Widget, FLEX_PROPERTIES,
     {"எஞ்சும் இடத்தில் ஒரு பங்கு", "one share of what is left in a row or column"}},
    {widget::FLEXIBLE, TokenType::FLEXIBLE, true, Start::KindOrName, Form::Flexible, Role::Widget, FLEX_PROPERTIES,
     {"எஞ்சும் இடத்தில் `பங்கு` சொல்லும் அளவு", "as many shares of what is left as `பங்கு` says"}},
    {widget::SHARE, TokenType::FLEX_SHARE, true, Start::Nothing, Form::Flexible, Role::Key, {},
     {"எஞ்சும் இடத்தில் எத்தனை பங்கு", "how many shares of what is left"}},
    {widget::SPACER, TokenType::SPACER, true, Start::KindOrName, Form::Spacer, Role::Widget, FLEX_PROPERTIES,
     {"எதையும் வரையாமல் எஞ்சும் இடத்தை எடுக்கும்", "takes what is left and draws nothing"}},
    {widget::GAP, TokenType::PADDING, true, Start::Kind, Form::General, Role::Widget, GAP_PROPERTIES,
     {"ஓர் இடைவெளி", "a gap"}},
    {widget::PADDING, TokenType::INNER_PADDING, true, Start::KindOrName, Form::Padding, Role::Widget, PADDING_PROPERTIES,
     {"குழந்தையை உள்ளே தள்ளும்", "insets its child"}},
    {widget::PADDING_MISSPELT, TokenType::INNER_PADDING, true, Start::KindOrName, Form::Padding, Role::Widget, PADDING_PROPERTIES,
     {"`உள்_இவெ`-யின் எழுத்துப் பிழை; எதையும் வரையாது", "a misspelling of `உள்_இவெ`; draws nothing"}},

    {widget::CONTAINER, TokenType::CONTAINER, true, Start::KindOrName, Form::Container, Role::Widget, CONTAINER_PROPERTIES,
     {"பின்னணி, வளைவு, நிழல், படம் உள்ள பெட்டி", "a box with background, radius, shadow and picture"}},
    {widget::BOX_STYLE, TokenType::BOX_STYLE, true, Start::KindOrName, Form::General, Role::Style, BOX_STYLE_PROPERTIES,
     {"பெட்டியின் தோற்றம்", "the look of a box"}},
    {widget::CARD, TokenType::CARD, true, Start::KindOrName, Form::Card, Role::Widget, CARD_PROPERTIES,
     {"நிழலோடு கூடிய அட்டை", "a card with a shadow"}},
    {widget::CARD_STYLE, TokenType::CARD_STYLE, true, Start::KindOrName, Form::General, Role::Style, CARD_PROPERTIES,
     {"அட்டையின் தோற்றம்", "the look of a card"}},
    {widget::LIST_TILE, TokenType::LIST_TILE, true, Start::KindOrName, Form::ListTile, Role::Widget, LIST_TILE_PROPERTIES,
     {"ஒரு பட்டியலின் வரி", "a line of a list"}},
    {widget::IMAGE, TokenType::IMAGE, true, Start::Kind, Form::General, Role::Widget, IMAGE_PROPERTIES,
     {"ஒரு படம்", "a picture"}},
    {widget::AVATAR, TokenType::CIRCLE_IMAGE, true, Start::Kind, Form::General, Role::Widget, AVATAR_PROPERTIES,
     {"வட்டமான படம் அல்லது முதலெழுத்து", "a round picture or initials"}},

    {widget::DIALOG, TokenType::ALERT, true, Start::Kind, Form::Dialog, Role::Widget, DIALOG_PROPERTIES,
     {"பக்கத்தின் மேல் ஓர் உரையாடல் பெட்டி", "a dialog above the page"}},
    {widget::SNACK_BAR, TokenType::SNACKBAR, true, Start::KindOrName, Form::SnackBar, Role::Widget, SNACK_BAR_PROPERTIES,
     {"மேலிருந்து வந்து 2.5 வினாடியில் போகும் செய்தி", "a message that slides in from the top and goes after 2.5 seconds"}},
    {widget::TAB_BAR, TokenType::TAB, true, Start::Kind, Form::General, Role::Widget, TAB_BAR_PROPERTIES,
     {"சாளரத்தின் அகலத்தில் தத்தல்கள்", "a tab bar as wide as the window"}},
    {widget::TAB_ITEM, TokenType::TAB_ITEM, true, Start::Kind, Form::General, Role::Item, TAB_ITEM_PROPERTIES,
     {"தத்தலின் ஓர் உருப்படி", "an item of a tab bar"}},
    {widget::BOTTOM_NAVIGATION, TokenType::BOTTOM_NAV, true, Start::Kind, Form::General, Role::Widget, BOTTOM_NAVIGATION_PROPERTIES,
     {"சாளரத்தின் அடியில் ஒரு பட்டை", "a bar at the bottom of the window"}},
    {widget::BOTTOM_NAVIGATION_ITEM, TokenType::BOTTOM_NAV_ITEM, true, Start::Kind, Form::General, Role::Item, BOTTOM_ITEM_PROPERTIES,
     {"அடிப்பகுதியின் ஓர் உருப்படி", "an item of the bar at the bottom"}},
    {widget::PAGE, TokenType::PAGE, true, Start::Nothing, Form::General, Role::Widget, PAGE_PROPERTIES,
     {"இப்போதைய பக்கமாக இருக்கும்போது சாளரம் முழுவதையும் மூடும்", "covers the window while it is the current page"}},

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

using WidgetMap = std::unordered_map<std::string_view, const Widget*>;

const WidgetMap& widgetsByWord() {
    static const WidgetMap map = [] {
        WidgetMap byWord;
        for (const Widget& row : WIDGETS) {
            byWord.emplace(row.word, &row);
        }
        return byWord;
    }();
    return map;
}

} // namespace

Rows<Widget> widgets() {
    return WIDGETS;
}

Rows<WidgetProperty> commonProperties() {
    return COMMON_PROPERTIES;
}

const Widget* findWidget(std::string_view word) {
    const auto found = widgetsByWord().find(word);
    return found == widgetsByWord().end() ? nullptr : found->second;
}

} // namespace pozhil::language

#pragma once

#include "language/widgets.h"

/// The properties of each kind of widget; the table of the widgets refers to them.
namespace pozhil::language {

// Words of styles.
inline constexpr std::string_view TEXT_STYLE = "உரைபாணி";
inline constexpr std::string_view BUTTON_STYLE = "பொ_பாணி";
inline constexpr std::string_view TEXT_BUTTON_STYLE = "உரைபொ_பாணி";
inline constexpr std::string_view DIALOG_STYLE = "எச்சரிக்கை_பாணி";

// clang-format off
inline constexpr WidgetProperty COMMON_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"அடையாளம்", "", ValueKind::Variable, {"பெயர்: `நகர்த்து` உருட்டும் இடம்; உள்ளீட்டின் மதிப்பு", "a name, to scroll to and to read inputs by"}},
    {"காட்சி_பெயர்", "", ValueKind::Variable, {"ஒரு மாறியின் பெயர் (உரையாக): அது `பொய்` எனில் மறையும்", "the name of a variable, as a text; hidden while it is `பொய்`"}},
};

inline constexpr WidgetProperty TEXT_PROPERTIES[] = {
    {"உரை", "", ValueKind::Value, {"காட்ட வேண்டியது; முதல் மதிப்பாகவும் வரலாம்", "what to show; also as the first value"}},
    {"நிறம்", TEXT_STYLE, ValueKind::Colour, {"எழுத்தின் நிறம்", "colour"}},
    {"அளவு", TEXT_STYLE, ValueKind::Number, {"எழுத்தின் அளவு", "size"}},
    {"தடிமன்", TEXT_STYLE, ValueKind::Value, {"100–900, அல்லது `\"தடிமனான\"`", "weight, or `\"bold\"`"}},
    {"சீரமைப்பு", TEXT_STYLE, ValueKind::Value, {"`\"மையம்\"`: அளந்த நடுவைச் சுற்றி", "`\"மையம்\"`: about the measured middle"}},
    {"அடிக்குறிப்பு", TEXT_STYLE, ValueKind::Truth, {"மேற்பகுதிக்கு 5 படவணு கீழே ஒரு கோடு", "a line, 5 pixels below the top"}},
    {"எழுத்துரு", TEXT_STYLE, ValueKind::Path, {"எழுத்துருக் கோப்பு", "font file"}},
};

inline constexpr WidgetProperty BUTTON_PROPERTIES[] = {
    {"உரை", "", ValueKind::Text, {"குழந்தை இல்லாத எழுத்து", "label without a child"}},
    {"பொபின்னணி", BUTTON_STYLE, ValueKind::Colour, {"பின்னணி", "background"}},
    {"எழுத்து_நிறம்", BUTTON_STYLE, ValueKind::Colour, {"குழந்தை இல்லாதபோது எழுத்தின் நிறம்", "label colour without a child"}},
    {"மேம்படுத்தப்பட்ட_நிறம்", BUTTON_STYLE, ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
    {"அகலம்", BUTTON_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", BUTTON_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {"வளைவு", BUTTON_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"நிழல்", BUTTON_STYLE, ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {"கரை_நிறம்", BUTTON_STYLE, ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {"கரை_அளவு", BUTTON_STYLE, ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty TEXT_BUTTON_PROPERTIES[] = {
    {"உரை", "", ValueKind::Text, {"எழுத்து, உரையாக மட்டும்", "label, a literal text"}},
    {"நிறம்", TEXT_BUTTON_STYLE, ValueKind::Colour, {"நிறம்", "colour"}},
    {"மேம்படுத்தப்பட்ட_நிறம்", TEXT_BUTTON_STYLE, ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
    {"அளவு", TEXT_BUTTON_STYLE, ValueKind::Number, {"எழுத்தின் அளவு; சாளரத்தோடு மாறாது", "size, the same in all windows"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty LINE_PROPERTIES[] = {
    {"இடைவெளி", "", ValueKind::Number, {"குழந்தைகளுக்கு நடுவே", "between children"}},
    {"சீரமைப்பு", "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
    {"அகலம்", "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {"உயரம்", "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {"உருளும்பட்டை", "", ValueKind::Truth, {"உருளும்; சாளரத்தின் உயரத்தை (கிடைவரிசை: அகலத்தை) எடுக்கும்", "scrolls, and takes the height (a row the width) of the window"}},
};

inline constexpr WidgetProperty FLEX_PROPERTIES[] = {
    {"பங்கு", "", ValueKind::Number, {"எஞ்சும் இடத்தில் எத்தனை பங்கு", "how many shares of what is left"}},
};

inline constexpr WidgetProperty STACK_PROPERTIES[] = {
    {"சீரமைப்பு", "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
};

inline constexpr WidgetProperty WRAP_PROPERTIES[] = {
    {"இடைவெளி", "", ValueKind::Number, {"குழந்தைகளுக்கு நடுவே", "between children"}},
};

inline constexpr WidgetProperty GAP_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"கிடைவரிசையில் விடும் இடம்", "room in a row"}},
    {"உயரம்", "", ValueKind::Size, {"நெடுவரிசையில் விடும் இடம்", "room in a column"}},
};

inline constexpr WidgetProperty PADDING_PROPERTIES[] = {
    {"அளவு", "", ValueKind::Number, {"குழந்தையை எத்தனை படவணு உள்ளே தள்ளும்", "by how many pixels the child is inset"}},
};

inline constexpr WidgetProperty CONTAINER_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"பெட்டிபின்னணி", "", ValueKind::Colour, {"`பின்னணி` போன்றது", "as `பின்னணி`"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"நிழல்", "", ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {"பின்னணிபடம்", "", ValueKind::Path, {"படம், பெட்டி முழுவதும்", "a picture, stretched"}},
    {"சீரமைப்பு", "", ValueKind::Alignment, {"குழந்தைகளின் இடம்", "where its children stand"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty BOX_STYLE_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"பெட்டிபின்னணி", "", ValueKind::Colour, {"`பின்னணி` போன்றது", "as `பின்னணி`"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"நிழல்", "", ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
    {"பின்னணிபடம்", "", ValueKind::Path, {"படம், பெட்டி முழுவதும்", "a picture, stretched"}},
    {"மேம்படுத்தப்பட்ட_நிறம்", "", ValueKind::Colour, {"சுட்டி மேலிருக்கும்போது நிறம்", "colour under the pointer"}},
};

inline constexpr WidgetProperty CARD_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

inline constexpr WidgetProperty TEXT_FIELD_PROPERTIES[] = {
    {"அடையாளம்", "", ValueKind::Variable, {"பெயர்; படிக்க வேண்டுமெனில் கட்டாயம்", "name, needed to read it"}},
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {"அகலம்", "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {"உயரம்", "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {"பலவரி", "", ValueKind::Truth, {"பல வரிகள்", "several lines"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"எழுத்து_நிறம்", "", ValueKind::Colour, {"எழுத்தின் நிறம்", "colour of the text"}},
    {"கரை_நிறம்", "", ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {"கரை_அளவு", "", ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"முன்னணி", "", ValueKind::Widget, {"முன்னால் நிற்கும் சின்னம்", "a widget in front"}},
};

inline constexpr WidgetProperty SEARCH_BAR_PROPERTIES[] = {
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {"தேடல்_குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {"அகலம்", widget::SEARCH_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", widget::SEARCH_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {"களப்பின்னணி", widget::SEARCH_STYLE, ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"வளைவு", widget::SEARCH_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"எழுத்தளவு", widget::SEARCH_STYLE, ValueKind::Number, {"எழுத்தின் அளவு", "text size"}},
    {"தேடல்_படம்", "", ValueKind::Path, {"தேடல் சின்னத்தின் கோப்பு", "file of the icon in front"}},
    {"அழி_படம்", "", ValueKind::Path, {"அழிக்கும் சின்னத்தின் கோப்பு", "file of the icon that clears"}},
};

inline constexpr WidgetProperty SEARCH_STYLE_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"களப்பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"எழுத்தளவு", "", ValueKind::Number, {"எழுத்தின் அளவு", "text size"}},
};

inline constexpr WidgetProperty PASSWORD_FIELD_PROPERTIES[] = {
    {"குறிப்பு", "", ValueKind::Text, {"வெறுமையாக இருக்கும்போது தெரியும் உரை", "shown while empty"}},
    {"அகலம்", "", ValueKind::Number, {"அகலம்; எண் மட்டும்", "width, a number only"}},
    {"உயரம்", "", ValueKind::Number, {"உயரம்; எண் மட்டும்", "height, a number only"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"எழுத்து_நிறம்", "", ValueKind::Colour, {"எழுத்தின் நிறம்", "colour of the text"}},
    {"நிறம்", "", ValueKind::Colour, {"இவ்விரு நிறங்களில் இல்லாததற்கு", "stands in for either colour"}},
};

inline constexpr WidgetProperty CHECKBOX_PROPERTIES[] = {
    {"அடையாளம்", "", ValueKind::Variable, {"மாறியின் பெயர்", "name of the variable"}},
    {"தேர்வுபெட்டிநிலை", "", ValueKind::Truth, {"தொடக்க நிலை", "at first"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"தேர்வு_நிறம்", "", ValueKind::Colour, {"தேர்வானதன் நிறம்", "colour when selected"}},
    {"தேர்வற்ற_நிறம்", "", ValueKind::Colour, {"தேர்வாகாததன் நிறம்", "colour when not selected"}},
};

inline constexpr WidgetProperty RADIO_PROPERTIES[] = {
    {"உரை", "", ValueKind::Text, {"எழுத்து, உரையாக மட்டும்", "label, a literal text"}},
    {"மதிப்பு", "", ValueKind::Value, {"இதன் மதிப்பு", "its value"}},
    {"குழு_மதிப்பு", "", ValueKind::Value, {"குழுவின் மதிப்பு", "the value of the group"}},
    {"மாறியதால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"தேர்வு_நிறம்", "", ValueKind::Colour, {"தேர்வானதன் நிறம்", "colour when selected"}},
    {"தேர்வற்ற_நிறம்", "", ValueKind::Colour, {"தேர்வாகாததன் நிறம்", "colour when not selected"}},
};

inline constexpr WidgetProperty SWITCH_PROPERTIES[] = {
    {"ஆரம்ப_நிலை", "", ValueKind::Truth, {"தொடக்க நிலை", "at first"}},
    {"இயங்கும்_நிறம்", "", ValueKind::Colour, {"இயங்கும்போது நிறம்", "colour when on"}},
    {"முடங்கிய_நிறம்", "", ValueKind::Colour, {"முடங்கியபோது நிறம்", "colour when off"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

inline constexpr WidgetProperty SLIDER_PROPERTIES[] = {
    {"குறைந்தபட்சம்", "", ValueKind::Number, {"கீழ் எல்லை", "lower bound"}},
    {"அதிகபட்சம்", "", ValueKind::Number, {"மேல் எல்லை", "upper bound"}},
    {"மதிப்பு", "", ValueKind::Number, {"தொடக்க மதிப்பு", "first value"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

inline constexpr WidgetProperty DROPDOWN_PROPERTIES[] = {
    {"பட்டியல்", "", ValueKind::List, {"தேர்வுகள், உரைகளாக மட்டும்", "the choices, literal texts"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"செயலிழப்பு", "", ValueKind::Value, {"இருந்தாலே செயல்படாது", "inert if present"}},
    {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது", "on change"}},
};

inline constexpr WidgetProperty LIST_VIEW_PROPERTIES[] = {
    {"அடையாளம்", "", ValueKind::Variable, {"`நகர்த்து` உருட்டும் இடத்தின் பெயர்", "a name for `நகர்த்து`"}},
};

inline constexpr WidgetProperty GRID_VIEW_PROPERTIES[] = {
    {"cols", "", ValueKind::Number, {"நிரல்கள்", "columns"}},
    {"குறுக்கு_எண்ணிக்கை", "", ValueKind::Number, {"நிரல்கள்", "columns"}},
    {"அகலம்", "", ValueKind::Number, {"எல்லா நிரல்களும் சேர்ந்து", "of all columns"}},
    {"கி_இவெ", "", ValueKind::Number, {"நிரல்களுக்கு நடுவே", "between columns"}},
    {"நெ_இவெ", "", ValueKind::Number, {"வரிசைகளுக்கு நடுவே", "between rows"}},
};

inline constexpr WidgetProperty LIST_TILE_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"முன்னணி", "", ValueKind::Widget, {"முன்னால் நிற்கும் விட்ஜெட்", "a widget in front"}},
    {"தலைப்பு", "", ValueKind::Widget, {"தலைப்பாகும் விட்ஜெட்", "the title, a widget"}},
    {"துணைத்_தலைப்பு", "", ValueKind::Widget, {"துணைத் தலைப்பாகும் விட்ஜெட்", "the subtitle, a widget"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty IMAGE_PROPERTIES[] = {
    {"பாதை", "", ValueKind::Path, {"கோப்பு", "file"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"வளைவு", "", ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
};

inline constexpr WidgetProperty AVATAR_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Number, {"விட்டம்", "diameter"}},
    {"வளைவு", "", ValueKind::Number, {"ஆரம்", "radius"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"கரை_நிறம்", "", ValueKind::Colour, {"கரையின் நிறம்", "colour of the border"}},
    {"கரை_அளவு", "", ValueKind::Number, {"கரையின் தடிமன்", "width of the border"}},
};

inline constexpr WidgetProperty DIALOG_PROPERTIES[] = {
    {"காட்சி_பெயர்", "", ValueKind::Variable, {"மாறியின் பெயர், உரையாக", "name of the variable, as a text"}},
    {"அகலம்", DIALOG_STYLE, ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", DIALOG_STYLE, ValueKind::Size, {"உயரம்", "height"}},
    {"பின்னணி", DIALOG_STYLE, ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {"வளைவு", DIALOG_STYLE, ValueKind::Number, {"மூலை வளைவு", "corner radius"}},
    {"நிழல்", DIALOG_STYLE, ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}},
};

inline constexpr WidgetProperty SNACK_BAR_PROPERTIES[] = {
    {"செய்தி", "", ValueKind::Value, {"உரை, கோவை அல்லது `உரை` விட்ஜெட்", "text, expression or text widget"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

inline constexpr WidgetProperty TAB_BAR_PROPERTIES[] = {
    {"பின்னணி", TEXT_STYLE, ValueKind::Colour, {"பட்டையின் நிறம்", "colour of the bar"}},
    {"தத்தல்_தேர்வு", "", ValueKind::Number, {"தொடக்கத் தேர்வு, 0 முதல்", "selected at first, from 0"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty TAB_ITEM_PROPERTIES[] = {
    {"உரை", "", ValueKind::Text, {"எழுத்து", "label"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty BOTTOM_NAVIGATION_PROPERTIES[] = {
    {"பின்னணி", TEXT_STYLE, ValueKind::Colour, {"பட்டையின் நிறம்", "colour of the bar"}},
    {"அடிப்பகுதிதேர்வு", "", ValueKind::Number, {"தேர்வு, 0 முதல்", "selected, from 0"}},
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty BOTTOM_ITEM_PROPERTIES[] = {
    {"அழுத்தினால்", "", ValueKind::Handler, {"அழுத்தும்போது", "on press"}},
};

inline constexpr WidgetProperty DIVIDER_PROPERTIES[] = {
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"நிறம்", "", ValueKind::Colour, {"கோட்டின் நிறம்", "colour of the line"}},
};

inline constexpr WidgetProperty PROGRESS_BAR_PROPERTIES[] = {
    {"மதிப்பு", "", ValueKind::Number, {"0–100; இல்லையெனில் அசையும்", "0 to 100; moving without it"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"நிறம்", "", ValueKind::Colour, {"நிறம்", "colour"}},
};

inline constexpr WidgetProperty SPINNER_PROPERTIES[] = {
    {"அளவு", DIALOG_STYLE, ValueKind::Number, {"அளவு", "size"}},
    {"நிறம்", DIALOG_STYLE, ValueKind::Colour, {"நிறம்", "colour"}},
};

inline constexpr WidgetProperty INFO_PILL_PROPERTIES[] = {
    {"செய்தி", "", ValueKind::Value, {"எப்போதும் தெரியும் செய்தி", "a message that stays"}},
    {"அகலம்", "", ValueKind::Size, {"அகலம்", "width"}},
    {"உயரம்", "", ValueKind::Size, {"உயரம்", "height"}},
    {"பின்னணி", "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
};

inline constexpr WidgetProperty PAGE_PROPERTIES[] = {
    {"பக்கம்", "", ValueKind::Text, {"பெயர்", "name"}},
};
// clang-format on

} // namespace pozhil::language

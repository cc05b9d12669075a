#include "language/second/widgets.h"

#include "language/property_words.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <unordered_set>
#include <utility>

namespace pozhil::language::second {
namespace {

constexpr std::string_view FIELDS[] = {widget::TEXT_FIELD, widget::PASSWORD_FIELD, widget::SEARCH_BAR,
                                       widget::SEARCH_FIELD};
constexpr std::string_view INPUTS[] = {widget::TEXT_FIELD,   widget::PASSWORD_FIELD,   widget::SEARCH_BAR,
                                       widget::SEARCH_FIELD, widget::CHECKBOX,         widget::RADIO,
                                       widget::SWITCH,       widget::SLIDER,           widget::DROPDOWN,
                                       widget::TAB_BAR,      widget::BOTTOM_NAVIGATION};
constexpr std::string_view PRESSED[] = {widget::BUTTON, widget::TEXT_BUTTON, widget::CONTAINER, widget::LIST_TILE};
constexpr std::string_view TEXT_FIELDS[] = {widget::TEXT_FIELD};
constexpr std::string_view TEXTS[] = {widget::TEXT};
constexpr std::string_view DIVIDERS[] = {widget::DIVIDER};
constexpr std::string_view LIST_TILES[] = {widget::LIST_TILE};
constexpr std::string_view CARDS[] = {widget::CARD};

constexpr std::string_view FIELD_KINDS[] = {"உரை", "மின்னஞ்சல்", "எண்", "தொலைபேசி"};

constexpr std::string_view TEXT_SCALES[] = {"மாறும்", STEADY_TEXTS};

/// A property that widgets have in this edition besides those of their own tables.
struct Added {
    Rows<std::string_view> widgets;
    WidgetProperty property;
};

// clang-format off
constexpr Added ADDED[] = {
    {INPUTS, {"மதிப்பு", "", ValueKind::Place, {"இதோடு இணைந்த மாறி: இரண்டும் ஒன்றாக மாறும்", "the variable bound to it, both ways"}}},
    {INPUTS, {"மாறியதால்", "", ValueKind::Handler, {"மாறும்போது; புதிய மதிப்பைப் பெறும்", "on change, given the new value"}}},
    {INPUTS, {"முடக்கு", "", ValueKind::Truth, {"மெய் எனில் செயல்படாது", "inert while it is true"}}},
    {PRESSED, {"முடக்கு", "", ValueKind::Truth, {"மெய் எனில் செயல்படாது", "inert while it is true"}}},
    {FIELDS, {"உள்ளிட்டால்", "", ValueKind::Handler, {"Enter அழுத்தும்போது", "on Enter"}}},
    {TEXT_FIELDS, {"வகை", "", ValueKind::Text, {"விசைப்பலகையின் வகை", "which keyboard"}, FIELD_KINDS}},
    {TEXTS, {property::WRAP, "", ValueKind::Truth, {"இடத்துக்கு ஏற்ப வரி மடியும்", "wraps at the room there is"}}},
    {TEXTS, {property::WIDTH, "", ValueKind::Size, {"மடியும் உரையின் அகலம்", "width of a text that wraps"}}},
    {DIVIDERS, {property::WEIGHT, "", ValueKind::Number, {"கோட்டின் தடிமன்", "thickness of the line"}}},
    {LIST_TILES, {"பின்னணி_விட்ஜெட்", "", ValueKind::Widget, {"பின்னால் நிற்கும் விட்ஜெட்", "a widget at the end"}}},
    {CARDS, {"எலிவேஷன்", "", ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}}},
    {CARDS, {"எலிவேஷன்", widget::CARD_STYLE, ValueKind::Number, {"நிழலின் பரப்பு", "blur of the shadow"}}},
};

constexpr WidgetProperty COMMON_PROPERTIES[] = {
    {property::ALIGNMENT, "", ValueKind::Alignment, {"பெட்டிக்குள் நிற்கும் இடம்", "where it stands in a box"}},
    {"நகர்வு_X", "", ValueKind::Number, {"அடுக்கியில் வலமாக நகர்த்த", "moves it right in a stack"}},
    {"நகர்வு_Y", "", ValueKind::Number, {"அடுக்கியில் கீழாக நகர்த்த", "moves it down in a stack"}},
    {SHOWN, "", ValueKind::Truth, {"பொய் எனில் இடமே எடுக்காது", "takes no room while it is false"}},
};

constexpr WidgetProperty EACH_PROPERTIES[] = {
    {EACH_LIST, "", ValueKind::List, {"எதன் ஒவ்வோர் உறுப்புக்கும்", "what it goes through"}},
    {EACH_ELEMENT, "", ValueKind::Name, {"உறுப்பின் பெயர்", "the name of the element"}},
    {EACH_KEY, "", ValueKind::Value, {"உறுப்பை அடையாளம் காட்டும் மதிப்பு", "what an element is known by"}},
};

constexpr Widget EACH_WIDGET = {
    EACH, TokenType::IDENTIFIER, false, WidgetStart::Nothing, WidgetForm::General, WidgetRole::Widget, EACH_PROPERTIES,
    {"பட்டியலின் ஒவ்வோர் உறுப்புக்கும் அதன் குழந்தைகள்", "its children, once for each element of a list"}, WidgetChildren::Any};

constexpr WidgetProperty HEADER_PROPERTIES[] = {
    {property::PAGE, "", ValueKind::Text, {"பக்கத்தின் பெயர்", "name of the page"}},
    {"ஆரம்ப_பக்கம்", "", ValueKind::Truth, {"இதிலிருந்து தொடங்கும்", "the page to start with"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::BACKGROUND_IMAGE, "", ValueKind::Path, {"படம்", "a picture"}},
    {property::BACKGROUND_VIDEO, "", ValueKind::Path, {"காணொளி", "a video"}},
    {"இணைய_தலைப்பு", "", ValueKind::Text, {"உலாவித் தாவலின் தலைப்பு", "title of the browser's tab"}},
    {"சின்னம்", "", ValueKind::Path, {"தாவலின் சின்னக் கோப்பு", "icon of the tab"}},
    {TEXT_SCALE, "", ValueKind::Text, {"`\"நிலையான\"`: குறுகிய சாளரத்திலும் எழுத்துகள் சிறுக்கா", "`\"நிலையான\"`: texts don't shrink in narrow windows"}, TEXT_SCALES},
    {STATE_KEPT, "", ValueKind::Truth, {"பொய் எனில் திருத்தியதும் நிலை புதிதாகத் தொடங்கும்", "false: state begins anew after each change of the source"}},
};

constexpr WidgetProperty DATABASE_PROPERTIES[] = {
    {"api_key", "", ValueKind::Text, {"திறவு", "key"}},
    {"auth_domain", "", ValueKind::Text, {"நுழைவின் முகவரி", "address to sign in at"}},
    {"database_url", "", ValueKind::Text, {"தரவுத்தளத்தின் முகவரி", "address of the database"}},
    {"project_id", "", ValueKind::Text, {"திட்டத்தின் பெயர்", "name of the project"}},
    {"storage_bucket", "", ValueKind::Text, {"கோப்புகளின் இடம்", "place of files"}},
    {"messaging_sender_id", "", ValueKind::Text, {"செய்திகளின் எண்", "number of who sends messages"}},
    {"app_id", "", ValueKind::Text, {"செயலியின் எண்", "number of the application"}},
};
// clang-format on

bool isAmong(std::string_view word, Rows<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// All rows of properties, whatever widget they belong to.
template <class Visit> void visitProperties(const Visit& visit) {
    for (const Widget& widget : widgets()) {
        std::for_each(widget.properties.begin(), widget.properties.end(), visit);
    }
    for (const Added& row : ADDED) {
        visit(row.property);
    }
    for (const Rows<WidgetProperty>& rows :
         {commonProperties(), Rows<WidgetProperty>(COMMON_PROPERTIES), EACH_WIDGET.properties, headerProperties()}) {
        std::for_each(rows.begin(), rows.end(), visit);
    }
}

/// What propertiesOf tells, worked out.
WidgetProperties collectProperties(const Widget& widget, std::string_view style) {
    WidgetProperties found;
    const auto add = [&](const WidgetProperty& row) {
        const bool isKnown = std::any_of(found.begin(), found.end(),
                                         [&](const WidgetProperty* other) { return other->name == row.name; });
        if (row.style == style && !isKnown) {
            found.push_back(&row);
        }
    };
    std::for_each(widget.properties.begin(), widget.properties.end(), add);
    for (const Added& row : ADDED) {
        if (isAmong(widget.word, row.widgets)) {
            add(row.property);
        }
    }
    if (widget.role != WidgetRole::Style && widget.word != EACH) {
        const Rows<WidgetProperty> common = commonProperties();
        std::for_each(common.begin(), common.end(), add);
        std::for_each(std::begin(COMMON_PROPERTIES), std::end(COMMON_PROPERTIES), add);
    }
    return found;
}

} // namespace

const Widget* findWidget(std::string_view word) {
    if (word == EACH) {
        return &EACH_WIDGET;
    }
    const Widget* const widget = language::findWidget(word);
    const bool isKnown = widget != nullptr && widget->role != WidgetRole::Key && word != widget::PADDING_MISSPELT;
    return isKnown ? widget : nullptr;
}

std::vector<std::string_view> widgetWords() {
    std::vector<std::string_view> words{EACH};
    for (const Widget& widget : widgets()) {
        if (findWidget(widget.word) != nullptr && widget.role != WidgetRole::Style) {
            words.push_back(widget.word);
        }
    }
    return words;
}

const WidgetProperties& propertiesOf(const Widget& widget, std::string_view style) {
    using Place = std::pair<std::string_view, std::string_view>;
    static const std::map<Place, WidgetProperties> all = [] {
        std::map<Place, WidgetProperties> found;
        const auto add = [&](const Widget& one) {
            found[{one.word, ""}] = collectProperties(one, "");
            for (const std::string_view block : stylesOf(one)) {
                found[{one.word, block}] = collectProperties(one, block);
            }
        };
        std::for_each(widgets().begin(), widgets().end(), add);
        add(EACH_WIDGET);
        return found;
    }();
    static const WidgetProperties none;
    const auto found = all.find({widget.word, style});
    return found == all.end() ? none : found->second;
}

const WidgetProperty* findProperty(const Widget& widget, std::string_view style, std::string_view name) {
    const WidgetProperties& properties = propertiesOf(widget, style);
    const auto found = std::find_if(properties.begin(), properties.end(),
                                    [&](const WidgetProperty* property) { return property->name == name; });
    return found == properties.end() ? nullptr : *found;
}

std::vector<std::string_view> stylesOf(const Widget& widget) {
    std::vector<std::string_view> styles;
    for (const WidgetProperty& property : widget.properties) {
        if (!property.style.empty() && std::find(styles.begin(), styles.end(), property.style) == styles.end()) {
            styles.push_back(property.style);
        }
    }
    return styles;
}

bool isHandler(std::string_view name) {
    static const std::unordered_set<std::string_view> names = [] {
        std::unordered_set<std::string_view> found;
        visitProperties([&](const WidgetProperty& property) {
            if (property.kind == ValueKind::Handler) {
                found.insert(property.name);
            }
        });
        return found;
    }();
    return names.count(name) != 0;
}

bool isProperty(std::string_view name) {
    static const std::unordered_set<std::string_view> names = [] {
        std::unordered_set<std::string_view> found;
        visitProperties([&](const WidgetProperty& property) { found.insert(property.name); });
        return found;
    }();
    return names.count(name) != 0;
}

bool isStyle(std::string_view word) {
    static const std::unordered_set<std::string_view> words = [] {
        std::unordered_set<std::string_view> found{STYLE_KEY};
        visitProperties([&](const WidgetProperty& property) { found.insert(property.style); });
        return found;
    }();
    return words.count(word) != 0;
}

Rows<WidgetProperty> headerProperties() {
    return HEADER_PROPERTIES;
}

Rows<WidgetProperty> databaseProperties() {
    return DATABASE_PROPERTIES;
}

} // namespace pozhil::language::second

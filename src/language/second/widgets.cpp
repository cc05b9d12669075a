#include "language/second/widgets.h"

#include "language/property_words.h"

#include <algorithm>
#include <unordered_set>

namespace pozhil::language::second {
namespace {

// clang-format off
/// What a widget may say to the one around it, and the words that hold in this edition only.
constexpr WidgetProperty COMMON_PROPERTIES[] = {
    {property::ALIGNMENT, "", ValueKind::Alignment, {"பெட்டிக்குள் நிற்கும் இடம்", "where it stands in a box"}},
    {"நகர்வு_X", "", ValueKind::Number, {"அடுக்கியில் வலமாக நகர்த்த", "moves it right in a stack"}},
    {"நகர்வு_Y", "", ValueKind::Number, {"அடுக்கியில் கீழாக நகர்த்த", "moves it down in a stack"}},
    {"தெரிய", "", ValueKind::Truth, {"பொய் எனில் இடமே எடுக்காது", "takes no room while it is false"}},
};

constexpr WidgetProperty HEADER_PROPERTIES[] = {
    {property::PAGE, "", ValueKind::Text, {"பக்கத்தின் பெயர்", "name of the page"}},
    {"ஆரம்ப_பக்கம்", "", ValueKind::Truth, {"இதிலிருந்து தொடங்கும்", "the page to start with"}},
    {property::BACKGROUND, "", ValueKind::Colour, {"பின்னணியின் நிறம்", "colour of the background"}},
    {property::BOX_BACKGROUND, "", ValueKind::Colour, {"`பின்னணி` போன்றது", "as `பின்னணி`"}},
    {property::BACKGROUND_IMAGE, "", ValueKind::Path, {"படம்", "a picture"}},
    {property::BACKGROUND_VIDEO, "", ValueKind::Path, {"காணொளி", "a video"}},
    {"இணைய_தலைப்பு", "", ValueKind::Text, {"உலாவித் தாவலின் தலைப்பு", "title of the browser's tab"}},
    {"சின்னம்", "", ValueKind::Path, {"தாவலின் சின்னக் கோப்பு", "icon of the tab"}},
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

} // namespace

const Widget* findWidget(std::string_view word) {
    const Widget* const widget = language::findWidget(word);
    const bool isKnown = widget != nullptr && widget->role != WidgetRole::Key && word != widget::PADDING_MISSPELT;
    return isKnown ? widget : nullptr;
}

std::vector<const WidgetProperty*> propertiesOf(const Widget& widget, std::string_view style) {
    std::vector<const WidgetProperty*> found;
    const auto add = [&](Rows<WidgetProperty> rows) {
        for (const WidgetProperty& row : rows) {
            if (row.style == style) {
                found.push_back(&row);
            }
        }
    };
    add(widget.properties);
    if (style.empty() && widget.role != WidgetRole::Style) {
        add(commonProperties());
        add(COMMON_PROPERTIES);
    }
    return found;
}

const WidgetProperty* findProperty(const Widget& widget, std::string_view style, std::string_view name) {
    const std::vector<const WidgetProperty*> properties = propertiesOf(widget, style);
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
        for (const Widget& widget : widgets()) {
            for (const WidgetProperty& property : widget.properties) {
                if (property.kind == ValueKind::Handler) {
                    found.insert(property.name);
                }
            }
        }
        return found;
    }();
    return names.count(name) != 0;
}

Rows<WidgetProperty> headerProperties() {
    return HEADER_PROPERTIES;
}

Rows<WidgetProperty> databaseProperties() {
    return DATABASE_PROPERTIES;
}

} // namespace pozhil::language::second

#include "analysis/second/unread_properties.h"

#include "analysis/second/fault_numbers.h"
#include "language/property_words.h"
#include "language/rows.h"
#include "language/widget_words.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace pozhil::second {
namespace {

namespace widget = language::widget;

/// Widgets whose blocks read a property of the table.
struct Read {
    std::string_view property;
    language::Rows<std::string_view> widgets;
};

constexpr std::string_view WITH_VALUE[] = {widget::RADIO, widget::SLIDER};
constexpr std::string_view WITH_CHANGE[] = {widget::RADIO, widget::SLIDER, widget::SWITCH, widget::DROPDOWN};

constexpr Read READ_BY_SOME[] = {
    {"மதிப்பு", WITH_VALUE}, {"மாறியதால்", WITH_CHANGE}, {"முடக்கு", {}}, {"உள்ளிட்டால்", {}}, {"வகை", {}}, {"மடி", {}},
};

/// What is pressed is the bar, not one of its items.
constexpr std::string_view PRESSED_BARS[] = {widget::TAB_ITEM, widget::BOTTOM_NAVIGATION_ITEM};

bool isAmong(std::string_view word, language::Rows<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool isUnread(const WidgetNode& widget, std::string_view property) {
    if (property == language::property::ON_PRESS) {
        return isAmong(widget.kind, PRESSED_BARS);
    }
    const auto* const row = std::find_if(std::begin(READ_BY_SOME), std::end(READ_BY_SOME),
                                         [&](const Read& one) { return one.property == property; });
    return row != std::end(READ_BY_SOME) && !isAmong(widget.kind, row->widgets);
}

class UnreadProperties {
public:
    explicit UnreadProperties(const Resolution& resolution) : resolution_(resolution) {}

    void tell(const WidgetNode& widget) {
        const resolved::Place place = resolution_.placeOf(&widget);
        for (const auto& [name, value] : widget.properties) {
            if (isUnread(widget, name)) {
                resolution_.model.faults.add(fault::UNREAD_PROPERTY, resolution_.placeOf(&name, &widget, name),
                                             {widget.kind, name});
            }
            if (const auto* slot = nodeCast<WidgetExpression>(value.get())) {
                tell(*slot->widget);
            }
        }
        if (!widget.eventStatements.empty() && isUnread(widget, language::property::ON_PRESS)) {
            resolution_.model.faults.add(fault::UNREAD_PROPERTY, place,
                                         {widget.kind, std::string(language::property::ON_PRESS)});
        }
        for (const StatementPtr& child : widget.children) {
            if (const auto* inner = dynamic_cast<const WidgetNode*>(child.get())) {
                tell(*inner);
            }
        }
    }

private:
    const Resolution& resolution_;
};

} // namespace

void tellUnreadProperties(const Resolution& resolution, const WebAppNode& page) {
    if (const auto* body = dynamic_cast<const WidgetNode*>(page.uiBody.get())) {
        UnreadProperties(resolution).tell(*body);
    }
}

} // namespace pozhil::second

#include "analysis/second/unread_properties.h"

#include "analysis/second/control_bindings.h"
#include "analysis/second/fault_numbers.h"
#include "language/widget_words.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace pozhil::second {
namespace {

namespace widget = language::widget;

constexpr std::string_view UNREAD[] = {"மடி"};

bool isUnread(const WidgetNode& widget, std::string_view property) {
    if (widget.kind == widget::RADIO && property == "மாறியதால்") {
        return widget.properties.count("குழு_மதிப்பு") == 0 && !bindingOf(widget);
    }
    return std::find(std::begin(UNREAD), std::end(UNREAD), property) != std::end(UNREAD);
}

class UnreadProperties {
public:
    explicit UnreadProperties(const Resolution& resolution) : resolution_(resolution) {}

    void tell(const WidgetNode& widget) {
        for (const auto& [name, value] : widget.properties) {
            if (isUnread(widget, name)) {
                resolution_.model.faults.add(fault::UNREAD_PROPERTY, resolution_.placeOf(&name, &widget, name),
                                             {widget.kind, name});
            }
            if (const auto* slot = nodeCast<WidgetExpression>(value.get())) {
                tell(*slot->widget);
            }
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

#include "analysis/second/unread_properties.h"

#include "analysis/second/control_bindings.h"
#include "analysis/second/fault_numbers.h"
#include "language/property_words.h"
#include "language/widget_words.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace pozhil::second {
namespace {

namespace property = language::property;
namespace widget = language::widget;

/// These show what a text in them says, in one line.
constexpr std::string_view LABELLED[] = {widget::BUTTON, widget::SNACK_BAR, widget::TEXT};

bool isLabelled(const WidgetNode& widget) {
    return std::find(std::begin(LABELLED), std::end(LABELLED), widget.kind) != std::end(LABELLED);
}

bool wraps(const WidgetNode& text) {
    const auto found = text.properties.find(std::string(property::WRAP));
    const auto* const written =
        found == text.properties.end() ? nullptr : nodeCast<BooleanLiteral>(found->second.get());
    return written != nullptr && written->value == "மெய்";
}

/// \param parent what the widget stands in, null for the root of a page
bool isUnread(const WidgetNode& widget, std::string_view name, const WidgetNode* parent) {
    if (widget.kind == widget::RADIO && name == "மாறியதால்") {
        return widget.properties.count("குழு_மதிப்பு") == 0 && !bindingOf(widget);
    }
    if (widget.kind != widget::TEXT) {
        return false;
    }
    // A text of one line is as wide as its letters.
    return name == property::WRAP ? parent != nullptr && isLabelled(*parent)
                                  : name == property::WIDTH && !wraps(widget);
}

class UnreadProperties {
public:
    explicit UnreadProperties(const Resolution& resolution) : resolution_(resolution) {}

    void tell(const WidgetNode& widget, const WidgetNode* parent = nullptr) {
        for (const auto& [name, value] : widget.properties) {
            if (isUnread(widget, name, parent)) {
                resolution_.model.faults.add(fault::UNREAD_PROPERTY, resolution_.placeOf(&name, &widget, name),
                                             {widget.kind, name});
            }
            if (const auto* slot = nodeCast<WidgetExpression>(value.get())) {
                tell(*slot->widget, &widget);
            }
        }
        for (const StatementPtr& child : widget.children) {
            if (const auto* inner = dynamic_cast<const WidgetNode*>(child.get())) {
                tell(*inner, &widget);
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

#include "generator/web/write/widget_properties.h"

#include <algorithm>

namespace pozhil {

const Expression* findProperty(const WidgetNode& widget, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const auto property = widget.properties.find(name);
        if (property != widget.properties.end()) {
            return property->second.get();
        }
    }
    return nullptr;
}

std::vector<const WidgetNode*> childWidgets(const WidgetNode& widget) {
    std::vector<const WidgetNode*> children;
    for (const StatementPtr& child : widget.children) {
        if (const WidgetNode* one = asWidget(child.get())) {
            children.push_back(one);
        }
    }
    return children;
}

std::vector<const WidgetNode*> childrenOfKind(const WidgetNode& widget, std::string_view kind) {
    auto children = childWidgets(widget);
    children.erase(
        std::remove_if(children.begin(), children.end(), [&](const WidgetNode* child) { return child->kind != kind; }),
        children.end());
    return children;
}

const WidgetNode* childOfKind(const WidgetNode& widget, std::string_view kind) {
    for (const WidgetNode* child : childWidgets(widget)) {
        if (child->kind == kind) {
            return child;
        }
    }
    return nullptr;
}

const WidgetNode* asWidget(const Expression* expression) {
    const auto* slot = nodeCast<WidgetExpression>(expression);
    return slot == nullptr ? nullptr : slot->widget.get();
}

const WidgetNode* asWidget(const Statement* statement) {
    return dynamic_cast<const WidgetNode*>(statement);
}

} // namespace pozhil

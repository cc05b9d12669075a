#pragma once

#include "parser/syntax_tree.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace pozhil {

/// The first of \p names that the widget has as a property, null if it has none.
const Expression* findProperty(const WidgetNode& widget, std::initializer_list<const char*> names);

/// The children of a layout.
std::vector<const WidgetNode*> childWidgets(const WidgetNode& widget);

/// The children that the source calls \p kind.
std::vector<const WidgetNode*> childrenOfKind(const WidgetNode& widget, std::string_view kind);

/// The first child that the source calls \p kind, null if there is none.
const WidgetNode* childOfKind(const WidgetNode& widget, std::string_view kind);

/// The widget that an expression or a statement is, null if it is something else.
const WidgetNode* asWidget(const Expression* expression);
const WidgetNode* asWidget(const Statement* statement);

} // namespace pozhil

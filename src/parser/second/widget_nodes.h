#pragma once

#include "language/widgets.h"
#include "parser/tree/widgets.h"

#include <memory>
#include <string>

/// Which node each widget is in the tree, and where in the node its properties are kept. Blocks that draw widgets find
/// them there.
namespace pozhil::second {

/// The node of a widget without properties and children.
std::unique_ptr<WidgetNode> makeWidgetNode(const language::Widget& widget);

/// The name that a property is kept by in the node.
std::string keyOf(const language::Widget& widget, const language::WidgetProperty& property);

/// Keeps what the widget's own class says of a property.
/// \return whether that is all that is kept of it
bool keepField(WidgetNode& node, const language::WidgetProperty& property, const Expression& value);

/// Whether the node keeps an alignment in its field, and not among its properties.
bool hasAlignmentField(const language::Widget& widget);

/// Keeps an alignment in the node's field.
void keepAlignment(WidgetNode& node, const Expression& value);

/// Keeps a property of a text style.
/// \return false if the style has no field for it, so that it belongs among the properties of the widget
bool keepTextStyle(TextStyle& style, const language::WidgetProperty& property, const Expression& value);

} // namespace pozhil::second

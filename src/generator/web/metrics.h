#pragma once

#include "parser/syntax_tree.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

namespace pozhil {

/// Sizes of widgets in pixels as far as the source tells them. A page has no measuring pass: a layout writes the sizes
/// of its children into the text as constants. What is known only when the page runs (the window, variables, a
/// percentage) counts as nothing or as the widget's usual size.
///
/// Sizes are kept, so that a layout inside many others is measured once.
class WidgetMetrics {
public:
    /// 0 for what is no widget, and for kinds without a size.
    float calculateWidgetWidth(const Statement* statement);
    float calculateWidgetHeight(const Statement* statement);

private:
    std::unordered_map<const Statement*, float> widths_;
    std::unordered_map<const Statement*, float> heights_;
};

/// Code points of \p text; a Tamil letter may have several.
std::size_t countCodePoints(const std::string& text);

/// The value of a whole number as the source writes it, with Tamil digits too; nothing for any other expression.
std::optional<float> numberOf(const Expression* expression);

} // namespace pozhil

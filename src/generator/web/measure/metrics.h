#pragma once

#include "generator/web/measure/widget_kind.h"
#include "parser/syntax_tree.h"

#include <unordered_map>

namespace pozhil {

struct MetricAxis;

/// Sizes of widgets in pixels as far as the source tells them. A page has no measuring pass: a layout writes the sizes
/// of its children into the text as constants. What is known only when the page runs (the window, variables, a
/// percentage) counts as nothing or as the widget's usual size.
///
/// Sizes are kept, so that a layout inside many others is measured once.
class WidgetMetrics {
public:
    /// \param findKind finds the rules that a widget's size follows
    explicit WidgetMetrics(WidgetLookup findKind) : findKind_(findKind) {}

    /// 0 for what is no widget, and for kinds without a size.
    float calculateWidgetWidth(const Statement* statement);
    float calculateWidgetHeight(const Statement* statement);

private:
    float measureOnce(const Statement* statement, const MetricAxis& axis, MetricRule WidgetKind::*rule,
                      std::unordered_map<const Statement*, float>& known);

    WidgetLookup findKind_;
    std::unordered_map<const Statement*, float> widths_;
    std::unordered_map<const Statement*, float> heights_;
};

} // namespace pozhil

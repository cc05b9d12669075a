#pragma once

#include "generator/web/measure/metrics.h"
#include "generator/web/write/widget_context.h"

namespace pozhil {

/// Writes widgets of every kind, each with what all of them get before and after their own block: where scrolling finds
/// the widget, the variable that shows and hides it, a function of its own.
class WidgetFrame final : public WidgetContext {
public:
    WidgetFrame(CodeWriter& out, EditionWriter& edition);

    void writeWidget(const WidgetNode& widget, const std::string& x, const std::string& y) override;
    Extent widthOf(const WidgetNode& widget) override { return metrics_.calculateWidgetWidth(&widget); }
    Extent heightOf(const WidgetNode& widget) override { return metrics_.calculateWidgetHeight(&widget); }
    Room roomAcross(const std::vector<const WidgetNode*>& children) override { return metrics_.roomAcross(children); }
    Room roomDown(const std::vector<const WidgetNode*>& children) override { return metrics_.roomDown(children); }

    void beginPage(const WidgetNode& root) override { metrics_.rooms().learn(root); }
    bool holdsWrappedText(const WidgetNode& widget) const override { return metrics_.rooms().holdsWrappedText(widget); }

    /// A widget as a statement of its own, outside any page: a text is drawn once, a column passes over to its children.
    void writeWidgetStatement(const WidgetNode& widget);

    /// A widget where a value is expected.
    void writeWidgetValue(const WidgetNode& widget);

private:
    WidgetMetrics metrics_;
};

} // namespace pozhil

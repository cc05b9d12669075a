#pragma once

#include "generator/web/measure/rooms.h"
#include "generator/web/measure/widget_kind.h"
#include "generator/web/write/presence.h"
#include "parser/syntax_tree.h"

#include <unordered_map>
#include <vector>

namespace pozhil {

struct MetricAxis;
struct Measure;

/// Sizes of widgets in pixels as far as the source tells them. A page has no measuring pass: a layout writes the sizes
/// of its children into the text, as constants but for children that aren't always there. What is known only when the
/// page runs (the window, variables, a percentage) counts as nothing or as the widget's usual size.
///
/// Sizes are kept, so that a layout inside many others is measured once.
class WidgetMetrics {
public:
    /// \param findKind finds the rules that a widget's size follows
    /// \param presence outlives the metrics
    WidgetMetrics(WidgetLookup findKind, Presence& presence)
        : findKind_(findKind), presence_(presence), rooms_(findKind, presence) {}

    /// The size that a widget has while it is there; 0 for what is no widget, and for kinds without a size.
    Extent calculateWidgetWidth(const Statement* statement);
    Extent calculateWidgetHeight(const Statement* statement);

    /// What children take of their parent.
    Room roomAcross(const std::vector<const WidgetNode*>& children);
    Room roomDown(const std::vector<const WidgetNode*>& children);

    Room roomOf(const std::vector<const WidgetNode*>& children, const MetricAxis& axis);

    /// What a rule measures with across \p widget.
    Measure measureAcross(const WidgetNode& widget);

    Presence& presence() const { return presence_; }

    Rooms& rooms() { return rooms_; }
    const Rooms& rooms() const { return rooms_; }

    /// What is offered to \p widget where it stands, null if it holds no text that wraps.
    const OfferedRoom* offeredTo(const WidgetNode& widget) { return rooms_.offeredTo(widget, *this); }

private:
    void addElements(Room& room, const EachNode& each, const MetricAxis& axis);
    Extent measureOnce(const Statement* statement, const MetricAxis& axis, MetricRule WidgetKind::*rule,
                       std::unordered_map<const Statement*, Extent>& known);

    WidgetLookup findKind_;
    Presence& presence_;
    Rooms rooms_;
    std::unordered_map<const Statement*, Extent> widths_;
    std::unordered_map<const Statement*, Extent> heights_;
};

} // namespace pozhil

#include "generator/web/measure/metrics.h"

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_properties.h"

namespace pozhil {
namespace {

constexpr MetricAxis WIDTH = {"style_அகலம்", "அகலம்", &WidgetMetrics::calculateWidgetWidth};
constexpr MetricAxis HEIGHT = {"style_உயரம்", "உயரம்", &WidgetMetrics::calculateWidgetHeight};

Extent measureWith(MetricRule rule, const Measure& measure) {
    return rule == nullptr ? Extent() : rule(measure);
}

/// A size as it is in the room that \p offered tells, where another is around.
Extent inRoom(const OfferedRoom* offered, const Extent& size) {
    if (offered == nullptr || size.isConstant()) {
        return size;
    }
    return Extent::computed("pozhil_in_room(" + offered->width + ", " + offered->imposed + ", [&] { return " +
                            size.text() + "; })");
}

} // namespace

Measure WidgetMetrics::measureAcross(const WidgetNode& widget) {
    return {*this, widget, WIDTH};
}

Extent WidgetMetrics::calculateWidgetWidth(const Statement* statement) {
    return measureOnce(statement, WIDTH, &WidgetKind::width, widths_);
}

Extent WidgetMetrics::calculateWidgetHeight(const Statement* statement) {
    return measureOnce(statement, HEIGHT, &WidgetKind::height, heights_);
}

Room WidgetMetrics::roomAcross(const std::vector<const WidgetNode*>& children) {
    return roomOf(children, WIDTH);
}

Room WidgetMetrics::roomDown(const std::vector<const WidgetNode*>& children) {
    return roomOf(children, HEIGHT);
}

Room WidgetMetrics::roomOf(const std::vector<const WidgetNode*>& children, const MetricAxis& axis) {
    Room room;
    for (const WidgetNode* child : children) {
        if (const auto* each = dynamic_cast<const EachNode*>(child)) {
            addElements(room, *each, axis);
            continue;
        }
        const std::string condition = presence_.shownWhile(*child);
        const Extent size = onlyWhile(condition, (this->*axis.measure)(child));
        room.sum += size;
        room.largest = larger(room.largest, size);
        room.number += onlyWhile(condition, 1.0F);
    }
    return room;
}

void WidgetMetrics::addElements(Room& room, const EachNode& each, const MetricAxis& axis) {
    const Room ofOne = roomOf(childWidgets(each), axis);
    room.sum += presence_.sumOverElements(each, ofOne.sum);
    room.number += presence_.sumOverElements(each, ofOne.number);
    room.largest = larger(room.largest, presence_.largestOfElements(each, ofOne.largest));
}

Extent WidgetMetrics::measureOnce(const Statement* statement, const MetricAxis& axis, MetricRule WidgetKind::*rule,
                                  std::unordered_map<const Statement*, Extent>& known) {
    const WidgetNode* widget = asWidget(statement);
    if (widget == nullptr) {
        return {};
    }
    const auto found = known.find(statement);
    if (found != known.end()) {
        return found->second;
    }
    const WidgetKind* kind = findKind_(widget->kind);
    Extent size =
        kind == nullptr ? Extent() : inRoom(offeredTo(*widget), measureWith(kind->*rule, {*this, *widget, axis}));
    known.emplace(statement, size);
    return size;
}

} // namespace pozhil

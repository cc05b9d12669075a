#include "generator/web/measure/metrics.h"

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_properties.h"

namespace pozhil {
namespace {

constexpr MetricAxis WIDTH = {"style_அகலம்", "அகலம்", &WidgetMetrics::calculateWidgetWidth};
constexpr MetricAxis HEIGHT = {"style_உயரம்", "உயரம்", &WidgetMetrics::calculateWidgetHeight};

float measureWith(MetricRule rule, const Measure& measure) {
    return rule == nullptr ? 0.0F : rule(measure);
}

} // namespace

float WidgetMetrics::calculateWidgetWidth(const Statement* statement) {
    return measureOnce(statement, WIDTH, &WidgetKind::width, widths_);
}

float WidgetMetrics::calculateWidgetHeight(const Statement* statement) {
    return measureOnce(statement, HEIGHT, &WidgetKind::height, heights_);
}

float WidgetMetrics::measureOnce(const Statement* statement, const MetricAxis& axis, MetricRule WidgetKind::*rule,
                                 std::unordered_map<const Statement*, float>& known) {
    const WidgetNode* widget = asWidget(statement);
    if (widget == nullptr) {
        return 0.0F;
    }
    const auto found = known.find(statement);
    if (found != known.end()) {
        return found->second;
    }
    const WidgetKind* kind = findKind_(widget->kind);
    const float size = kind == nullptr ? 0.0F : measureWith(kind->*rule, {*this, *widget, axis});
    known.emplace(statement, size);
    return size;
}

} // namespace pozhil

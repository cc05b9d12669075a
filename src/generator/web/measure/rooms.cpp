#include "generator/web/measure/rooms.h"

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_properties.h"

#include <utility>

namespace pozhil {

void Rooms::learn(const WidgetNode& root) {
    learn(root, nullptr);
}

bool Rooms::learn(const WidgetNode& widget, const WidgetNode* parent) {
    // The elements of a list stand in what the list stands in.
    const bool isList = dynamic_cast<const EachNode*>(&widget) != nullptr;
    const WidgetNode* const offering = isList ? parent : &widget;
    bool holds = presence_.wraps(widget);
    for (const WidgetNode* child : childWidgets(widget)) {
        holds = learn(*child, offering) || holds;
    }
    for (const auto& property : widget.properties) {
        const WidgetNode* const slot = asWidget(property.second.get());
        holds = (slot != nullptr && learn(*slot, offering)) || holds;
    }
    if (holds) {
        parents_.emplace(&widget, parent);
    }
    return holds;
}

const OfferedRoom* Rooms::offeredTo(const WidgetNode& widget, WidgetMetrics& metrics) {
    const auto parent = parents_.find(&widget);
    if (parent == parents_.end() || parent->second == nullptr) {
        return nullptr;
    }
    const auto known = offered_.find(&widget);
    if (known != offered_.end()) {
        return &known->second;
    }
    const WidgetKind* const kind = findKind_(parent->second->kind);
    OfferedRoom room = kind == nullptr || kind->room == nullptr
                           ? OfferedRoom()
                           : kind->room(metrics.measureAcross(*parent->second), widget);
    return &offered_.emplace(&widget, std::move(room)).first->second;
}

} // namespace pozhil

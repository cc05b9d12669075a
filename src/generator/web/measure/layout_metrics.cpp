/// Sizes of layouts, by those of their children.

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_properties.h"

#include <algorithm>

namespace pozhil {
namespace {

std::size_t gridColumns(const WidgetNode& grid) {
    constexpr float USUAL = 3.0F;
    const float columns =
        numberOf(findProperty(grid, {"குறுக்கு_எண்ணிக்கை"})).value_or(numberProperty(grid, "cols", USUAL));
    return static_cast<std::size_t>(std::clamp(columns, 1.0F, 1.0e6F));
}

/// The gap between cells: the size of a spacer among the properties, or the usual one.
float gridGap(const Measure& measure, std::optional<float> otherwise) {
    constexpr float USUAL = 10.0F;
    for (const auto& property : measure.widget.properties) {
        const WidgetNode* spacer = asWidget(property.second.get());
        if (spacer != nullptr && spacer->kind == "இவெ") {
            const std::optional<float> size = numberOf(findProperty(*spacer, {measure.axis.name}));
            if (size) {
                return *size;
            }
        }
    }
    return otherwise.value_or(USUAL);
}

float gridSize(const Measure& measure, std::size_t cells, float emptyCell, std::optional<float> namedGap) {
    const float largest = largestChild(measure);
    const float cell = largest == 0.0F ? emptyCell : largest;
    const float gaps = cells > 1 ? static_cast<float>(cells - 1) : 0.0F;
    return static_cast<float>(cells) * cell + gaps * gridGap(measure, namedGap);
}

} // namespace

float largestChild(const Measure& measure) {
    float largest = 0.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        largest = std::max(largest, measure.of(child));
    }
    return largest;
}

float firstChild(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    return children.empty() ? 0.0F : measure.of(children.front());
}

float lineOfChildren(const Measure& measure) {
    const auto children = childWidgets(measure.widget);
    float sum = 0.0F;
    for (const WidgetNode* child : children) {
        sum += measure.of(child);
    }
    const float gaps = children.size() > 1 ? static_cast<float>(children.size() - 1) : 0.0F;
    return sum + gaps * numberProperty(measure.widget, "இடைவெளி", 0.0F);
}

float wrapHeight(const Measure& measure) {
    constexpr float LINES = 3.0F;
    constexpr float USUAL_GAP = 10.0F;
    return LINES * largestChild(measure) + (LINES - 1.0F) * numberProperty(measure.widget, "இடைவெளி", USUAL_GAP);
}

float gridWidth(const Measure& measure) {
    constexpr float EMPTY_CELL = 150.0F;
    if (const std::optional<float> given =
            fixedSize(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name, "width"}))) {
        return *given;
    }
    return gridSize(measure, gridColumns(measure.widget), EMPTY_CELL, std::nullopt);
}

float gridHeight(const Measure& measure) {
    constexpr float EMPTY_CELL = 40.0F;
    const std::size_t columns = gridColumns(measure.widget);
    const std::size_t rows = (columns + childWidgets(measure.widget).size() - 1) / columns;
    return gridSize(measure, rows, EMPTY_CELL, numberOf(findProperty(measure.widget, {"v_gap"})));
}

} // namespace pozhil

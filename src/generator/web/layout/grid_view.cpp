#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <algorithm>

namespace pozhil {
namespace {

int columnsOf(const WidgetNode& grid) {
    constexpr float USUAL = 2.0F;
    constexpr float MOST = 1.0e6F;
    const float columns = numberOf(findProperty(grid, {"cols", "குறுக்கு_எண்ணிக்கை"})).value_or(USUAL);
    return static_cast<int>(std::clamp(columns, 1.0F, MOST));
}

/// The gap between cells along one axis: of \p names the last that is a number, else the size of a spacer.
std::string gapOf(const WidgetNode& grid, const char* spacerSize, std::initializer_list<const char*> names) {
    constexpr float USUAL = 10.0F;
    float gap = USUAL;
    for (const auto& property : grid.properties) {
        const WidgetNode* spacer = asWidget(property.second.get());
        if (spacer != nullptr && spacer->kind == language::widget::GAP) {
            gap = constantOf(findProperty(*spacer, {spacerSize})).value_or(gap);
        }
    }
    for (const char* name : names) {
        gap = constantOf(findProperty(grid, {name})).value_or(gap);
    }
    return floatConstant(gap);
}

/// A child keeps its own size; the cell only says where it stands.
void emitCell(WidgetWriter& grid, const WidgetNode& child) {
    grid.block(R"(
    {
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
        if ($height > maxRowH) maxRowH = $height;
        colIndex++;
        curX += cellW + gapH;
        if (colIndex >= cols) {
            colIndex = 0;
            curX = gX;
            curY += maxRowH + gapV;
            maxRowH = 0.0f;
        }
    }
)",
               {{"height", grid.heightOf(child).text()},
                {"child", grid.blocks([&] { emitVisibleChild(grid, child, "curX", "curY"); })}});
}

Extent widthOf(const WidgetWriter& grid) {
    const std::optional<float> given = constantOf(findProperty(grid.widget(), {"width", "அகலம்"}));
    if (given) {
        return *given;
    }
    return grid.holdsWrappedText(grid.widget()) ? Extent::computed(OfferedRoom().width) : grid.widthOf(grid.widget());
}

/// கட்டம்_காட்சி: children in rows of so many, fewer on a narrow window.
void emitGridView(WidgetWriter& grid) {
    const WidgetNode& widget = grid.widget();
    grid.block(
        R"(
{
    int cols = $cols;
    if (cols > 1) {
        if (winWidth <= 768.0f && cols >= 3) cols = 2;
        if (winWidth <= 480.0f) cols = 1;
    }
    float gapH = $gapH; float gapV = $gapV;
    float gX = $x; float gY = $y;
    float gW = $width;
    float cellW = (gW - ((cols - 1) * gapH)) / cols;
    int colIndex = 0;
    float curX = gX; float curY = gY;
    float maxRowH = 0.0f;
)",
        {{"cols", std::to_string(columnsOf(widget))},
         {"gapH", gapOf(widget, "அகலம்", {"h_gap", "கி_இவெ"})},
         {"gapV", gapOf(widget, "உயரம்", {"v_gap", "நெ_இவெ"})},
         {"width", widthOf(grid).text()}});
    grid.eachChild(childWidgets(widget), [&](const WidgetNode& child) { emitCell(grid, child); });
    grid.block("}\n");
}

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
        if (spacer != nullptr && spacer->kind == language::widget::GAP) {
            const std::optional<float> size = numberOf(findProperty(*spacer, {measure.axis.name}));
            if (size) {
                return *size;
            }
        }
    }
    return otherwise.value_or(USUAL);
}

Extent gridSize(const Measure& measure, const Extent& cells, float emptyCell, std::optional<float> namedGap) {
    const Extent largest = largestChild(measure);
    const Extent cell = largest.isNothing() ? Extent(emptyCell) : largest;
    return cell * cells + gapsBetween(cells) * gridGap(measure, namedGap);
}

Extent gridWidth(const Measure& measure) {
    constexpr float EMPTY_CELL = 150.0F;
    if (const std::optional<float> given =
            fixedSize(findProperty(measure.widget, {measure.axis.styleName, measure.axis.name, "width"}))) {
        return *given;
    }
    if (measure.metrics.rooms().holdsWrappedText(measure.widget)) {
        return Extent::computed(OfferedRoom().width);
    }
    return gridSize(measure, static_cast<float>(gridColumns(measure.widget)), EMPTY_CELL, std::nullopt);
}

/// How many rows it takes, as far as the compiler knows the columns of a wide window.
Extent gridRows(const Measure& measure) {
    const Extent cells = measure.roomOf(childWidgets(measure.widget)).number;
    return cells.inGroupsOf(static_cast<float>(gridColumns(measure.widget)));
}

Extent gridHeight(const Measure& measure) {
    constexpr float EMPTY_CELL = 40.0F;
    return gridSize(measure, gridRows(measure), EMPTY_CELL, numberOf(findProperty(measure.widget, {"v_gap"})));
}

/// Texts that wrap share out what the grid gets, where the source doesn't say how wide it is.
OfferedRoom gridRoom(const Measure& measure, const WidgetNode&) {
    const std::optional<float> given = constantOf(findProperty(measure.widget, {"width", measure.axis.name}));
    const std::string whole = given ? floatConstant(*given) : OfferedRoom().width;
    return {"pozhil_grid_cell(" + whole + ", " + std::to_string(columnsOf(measure.widget)) + ", " +
            gapOf(measure.widget, "அகலம்", {"h_gap", "கி_இவெ"}) + ", winWidth)"};
}

} // namespace

extern const WidgetKind GRID_VIEW = {language::widget::GRID_VIEW, emitGridView, gridWidth, gridHeight, gridRoom};

} // namespace pozhil

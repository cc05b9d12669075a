#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

constexpr LayoutAxis AXIS = {
    "H", "fixedHeightSum", "உயரம்", "containerH", "scrollY", &WidgetWriter::heightOf, &WidgetWriter::roomDown};

/// Rectangle of the column. One that scrolls takes the window's height, wherever it starts.
void emitRectangle(WidgetWriter& column, const LayoutChildren& children, const Extent& contentHeight) {
    column.block(R"(
{
    float colX = $x; float colY = $y;
    float containerW = (forcedW > 0.0f) ? forcedW : $contentW;
)",
                 {{"contentW", children.across.largest.text()}});
    emitLayoutSize(column, {"style_அகலம்", "அகலம்"}, "containerW", "forcedW", "winWidth");
    column.block(R"(
    containerW = responsiveW(containerW, winWidth, 0.0f);
    float containerH = (forcedH > 0.0f) ? forcedH : $contentH;
)",
                 {{"contentH", contentHeight.text()}});
    emitLayoutSize(column, {"style_உயரம்", "உயரம்"}, "containerH", "forcedH", "winHeight");
    column.block("    float colW = containerW;\n    float colH = $height;\n",
                 {{"height", hasScrollBar(column.widget()) ? "winHeight" : "containerH"}});
}

void emitScrolling(WidgetWriter& column, const Extent& contentHeight) {
    column.block(
        R"(
    float contentH = $contentH;
    if (contentH < colH) contentH = colH;
    $state;
    float mouseX = pozhil_mouse_x();
    float mouseY = pozhil_mouse_y();
    if (mouseX >= colX && mouseX <= colX + colW && mouseY >= colY && mouseY <= colY + colH && !g_isHoveringH) {
        float wheel = pozhil_take_wheel();
        scrollY_$n += wheel;
    }
)",
        {{"contentH", contentHeight.text()}, {"state", column.state("float", "scrollY_" + column.number(), "0.0f")}});
    emitScrollLimits(column, AXIS, "contentH", "colH");
    emitScrollClip(column, {"colX", "colY", "colW", "colH"});
    emitScrollToId(column, "scrollY", "colY", SCROLL_Y);
}

void emitScrollBar(WidgetWriter& column) {
    emitClipEnd(column);
    column.block(R"(
    if (maxScroll > 0) {
        float barH = (colH / contentH) * colH;
        float barY = colY + (scrollY_$n / contentH) * colH;
        nvgBeginPath(vg);
        nvgRoundedRect(vg, colX + colW - 6, barY, 4, barH, 2);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));
        nvgFill(vg);
    }
)");
}

/// The child's width across the column. A text of one line is measured, so that centring goes by what is seen.
void emitChildWidth(WidgetWriter& column, const WidgetNode& child) {
    column.block("    float childW = $width;\n", {{"width", column.widthOf(child).text()}});
    const Expression* text = findProperty(child, {"உரை"});
    if (child.kind == language::widget::TEXT && text != nullptr && !column.edition().wraps(child)) {
        column.block(R"(
    pozhil_draw([&] {
    std::string _uTxt = $text;
    float _uRespSize = responsiveTextSize($size, winWidth);
    childW = getTextWidth(_uTxt.c_str(), _uRespSize);
    });
)",
                     {{"text", textValue(column, text, "")}, {"size", floatConstant(fontSizeOf(child.style))}});
    }
}

void emitFreeChild(WidgetWriter& column, const WidgetNode& child) {
    column.block(R"(
    float childX = colX + (containerW - childW) * (1.0f + alignX) / 2.0f;
    if (childW > containerW) childX = colX;
    float savedForcedW = forcedW, savedForcedH = forcedH;
    forcedW = -1.0f; forcedH = -1.0f;
    $child
    forcedW = savedForcedW; forcedH = savedForcedH;
)",
                 {{"child", column.blocks([&] {
                       if (child.kind != language::widget::SPACER) {
                           emitVisibleChild(column, child, "childX", "currentY");
                       }
                   })}});
}

void emitChild(WidgetWriter& column, const WidgetNode& child) {
    emitChildWidth(column, child);
    if (const std::optional<float> share = flexShare(child)) {
        const std::string height =
            child.kind == language::widget::FLEXIBLE ? "unitFlexH * " + floatConstant(*share) : "unitFlexH";
        column.block("    forcedH = $height;\n", {{"height", height}});
        emitFreeChild(column, child);
        column.block("    currentY += $height + spacing;\n", {{"height", height}});
    } else if (child.kind == language::widget::GAP) {
        column.block("    float current_hH = 0.0f;\n");
        emitSize(column, findProperty(child, {AXIS.gapProperty}), "current_hH",
                 "(forcedH > 0.0f ? forcedH : containerH)");
        column.block("    currentY += current_hH + spacing;\n");
    } else {
        emitFreeChild(column, child);
        const Extent height = column.heightOf(child);
        if (!height.isNothing()) {
            column.block(height.isConstant() ? "    currentY += $height + spacing;\n"
                                             : "    if ($height > 0.0f) currentY += $height + spacing;\n",
                         {{"height", height.text()}});
        }
    }
}

/// நெடுவரிசை: children one below the other.
void emitColumn(WidgetWriter& column) {
    const LayoutChildren children(column);
    const Extent contentHeight = children.down.sum + children.gaps;
    const bool scrolls = hasScrollBar(column.widget());
    const auto [alignX, alignY] = getAlignmentCoords(column.widget().alignment);
    emitRectangle(column, children, contentHeight);
    if (scrolls) {
        emitScrolling(column, contentHeight);
    }
    column.block(R"(
    float alignX = $alignX;
    float alignY = $alignY;
    float totalContentH = $contentH;
    float startY = colY + (containerH - totalContentH) * (1.0f + alignY) / 2.0f;
    float currentY = $start;
)",
                 {{"alignX", floatConstant(alignX)},
                  {"alignY", floatConstant(alignY)},
                  {"contentH", contentHeight.text()},
                  {"start", scrolls ? "startY - scrollY_" + column.number() : "startY"}});
    emitShares(column, children, AXIS);
    const auto stepOf = [&](const WidgetNode& child) -> std::optional<Extent> {
        const bool isPlain = !flexShare(child) && child.kind != language::widget::GAP;
        const Extent height = column.heightOf(child);
        return isPlain ? std::optional(height.isNothing() ? height : height + children.spacing) : std::nullopt;
    };
    column.eachChildAlong(children.widgets, "currentY", "winHeight", stepOf, [&](const WidgetNode& child) {
        if (child.kind != "அசைவூட்டம்") {
            column.block("    {\n$child\n    }\n", {{"child", column.blocks([&] { emitChild(column, child); })}});
        }
    });
    if (scrolls) {
        emitScrollBar(column);
    }
    column.block(column.isAtTop() ? "}\n" : "    $y = currentY;\n}\n");
}

/// A column is never wider than the window.
OfferedRoom columnRoom(const Measure& measure, const WidgetNode& child) {
    return {"responsiveW(" + roomOfLayout(measure, child).width + ", winWidth, 0.0f)"};
}

} // namespace

extern const WidgetKind COLUMN = {language::widget::COLUMN, emitColumn, largestChild, lineOfChildren, columnRoom};

} // namespace pozhil

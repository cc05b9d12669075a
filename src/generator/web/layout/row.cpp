#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <algorithm>
#include <functional>

namespace pozhil {
namespace {

constexpr LayoutAxis AXIS = {"W",
                             "fixedWidthSum",
                             "அகலம்",
                             "(forcedW > 0.0f ? forcedW : containerW)",
                             "scrollX",
                             &WidgetWriter::widthOf,
                             &WidgetWriter::roomAcross};

void emitRectangle(WidgetWriter& row, const LayoutChildren& children, const Extent& contentWidth) {
    row.block(R"(
{
    float rowX = $x; float rowY = $y;
    float containerW = (forcedW > 0.0f) ? forcedW : $contentW;
)",
              {{"contentW", contentWidth.text()}});
    emitLayoutSize(row, {"style_அகலம்", "அகலம்"}, "containerW", "forcedW", "winWidth");
    row.block("    float containerH = (forcedH > 0.0f) ? forcedH : $contentH;\n",
              {{"contentH", children.down.largest.text()}});
    emitLayoutSize(row, {"style_உயரம்", "உயரம்"}, "containerH", "forcedH", "winHeight");
    row.block("    float rowW = $width;\n    float rowH = containerH;\n",
              {{"width", hasScrollBar(row.widget()) ? "winWidth" : "containerW"}});
}

/// A scrolling row leaves room after its last child.
void emitScrolling(WidgetWriter& row, const Extent& contentWidth) {
    row.block(R"(
    float contentW = $contentW + 150.0f;
    if (contentW < rowW) contentW = rowW;
    $state;
    float mouseX = pozhil_mouse_x();
    float mouseY = pozhil_mouse_y();
    if (mouseX >= rowX && mouseX <= rowX + rowW && mouseY >= rowY && mouseY <= rowY + rowH) {
        float wheel = pozhil_take_both_wheels();
        scrollX_$n += wheel;
    }
)",
              {{"contentW", contentWidth.text()}, {"state", row.state("float", "scrollX_" + row.number(), "0.0f")}});
    emitScrollLimits(row, AXIS, "contentW", "rowW");
    emitScrollClip(row, {"rowX", "rowY", "rowW", "rowH"});
    emitScrollToId(row, "scrollX", "rowX", SCROLL_X);
}

void emitScrollBar(WidgetWriter& row) {
    emitClipEnd(row);
    row.block(R"(
    if (maxScroll > 0) {
        float barW = (rowW / contentW) * rowW;
        float barX = rowX + (scrollX_$n / contentW) * rowW;
        nvgBeginPath(vg);
        nvgRoundedRect(vg, barX, rowY + rowH - 6, barW, 4, 2);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));
        nvgFill(vg);
    }
)");
}

/// Where the child stands across the row.
void emitChildTop(WidgetWriter& row, const WidgetNode& child) {
    const float alignY = getAlignmentCoords(row.widget().alignment).second;
    row.block("    float childH_val = $height;\n    float childY = $top;\n",
              {{"height", row.heightOf(child).text()},
               {"top", alignY < 0.0F   ? "rowY"
                       : alignY > 0.0F ? "rowY + (containerH - childH_val)"
                                       : "rowY + (containerH - childH_val) / 2.0f"}});
}

/// Draws the child with \p width imposed on it; -1.0f leaves it free. A flexible spacer draws nothing.
void emitPlacedChild(WidgetWriter& row, const WidgetNode& child, const char* width) {
    if (child.kind == language::widget::SPACER) {
        return;
    }
    emitChildTop(row, child);
    row.block(R"(
    float savedForcedW = forcedW, savedForcedH = forcedH;
    forcedW = $width; forcedH = -1.0f;
    $child
    forcedW = savedForcedW; forcedH = savedForcedH;
)",
              {{"width", width}, {"child", row.blocks([&] { emitVisibleChild(row, child, "currentX", "childY"); })}});
}

void emitChild(WidgetWriter& row, const WidgetNode& child) {
    const std::optional<float> share = flexShare(child);
    const bool isOneShare = share && child.kind != language::widget::FLEXIBLE;
    if (isOneShare) {
        emitPlacedChild(row, child, "unitFlexW");
    } else if (share) {
        row.block("    float current_wW = unitFlexW * $share;\n", {{"share", floatConstant(*share)}});
        emitPlacedChild(row, child, "current_wW");
    } else if (child.kind == language::widget::GAP) {
        row.block("    float current_wW = 0.0f;\n");
        emitSize(row, findProperty(child, {AXIS.gapProperty}), "current_wW", "(forcedW > 0.0f ? forcedW : containerW)");
    } else {
        row.block("    float current_wW = $width;\n", {{"width", row.widthOf(child).text()}});
        emitPlacedChild(row, child, "-1.0f");
    }
    row.block("    currentX += $width + spacing;\n", {{"width", isOneShare ? "unitFlexW" : "current_wW"}});
}

/// கிடைவரிசை: children side by side.
void emitRow(WidgetWriter& row) {
    const LayoutChildren children(row);
    const Extent contentWidth = children.across.sum + children.gaps;
    const bool scrolls = hasScrollBar(row.widget());
    emitRectangle(row, children, contentWidth);
    if (scrolls) {
        emitScrolling(row, contentWidth);
    }
    emitShares(row, children, AXIS);
    row.block(R"(
    float alignX = $alignX;
    float usedW = (totalFlex > 0.0f) ? containerW : fixedWidthSum;
    float startX = rowX + (containerW - usedW) * (1.0f + alignX) / 2.0f;
    float currentX = $start;
)",
              {{"alignX", floatConstant(getAlignmentCoords(row.widget().alignment).first)},
               {"start", scrolls ? "startX - scrollX_" + row.number() : "startX"}});
    const auto stepOf = [&](const WidgetNode& child) -> std::optional<Extent> {
        const bool isPlain = !flexShare(child) && child.kind != language::widget::GAP;
        return isPlain ? std::optional(row.widthOf(child) + children.spacing) : std::nullopt;
    };
    row.eachChildAlong(children.widgets, "currentX", "winWidth", stepOf, [&](const WidgetNode& child) {
        if (child.kind != "அசைவூட்டம்") {
            row.block("    {\n$child\n    }\n", {{"child", row.blocks([&] { emitChild(row, child); })}});
        }
    });
    if (scrolls) {
        emitScrollBar(row);
    }
    row.block("}\n");
}

/// Whether the child, or an element of the list that it is, takes a share of the free space.
bool takesShare(const WidgetNode& child) {
    if (dynamic_cast<const EachNode*>(&child) == nullptr) {
        return flexShare(child).has_value();
    }
    const auto elements = childWidgets(child);
    return std::any_of(elements.begin(), elements.end(), [](const auto* one) { return takesShare(*one); });
}

/// The children of a row that are \p wanted.
std::vector<const WidgetNode*> childrenThat(const Measure& row, const std::function<bool(const WidgetNode&)>& wanted) {
    std::vector<const WidgetNode*> children = childWidgets(row.widget);
    children.erase(std::remove_if(children.begin(), children.end(), [&](const auto* one) { return !wanted(*one); }),
                   children.end());
    return children;
}

std::string shareOfRoom(const Measure& row, const WidgetNode& child, const Extent& taken, const Extent& shares) {
    return "pozhil_share_of_room(" + roomOfLayout(row, child).width + ", " + taken.text() + ", " + shares.text() + ")";
}

/// The part of a child of the free space, which is imposed on it.
OfferedRoom roomOfShare(const Measure& row, const WidgetNode& child, float gap) {
    const Room others = row.roomOf(childrenThat(row, [](const WidgetNode& one) { return !takesShare(one); }));
    const Extent shares = sharesOf(childWidgets(row.widget), row.metrics.presence());
    OfferedRoom room;
    room.width = shareOfRoom(row, child, others.sum + others.number * gap, shares);
    if (child.kind == language::widget::FLEXIBLE) {
        room.width += " * " + floatConstant(*flexShare(child));
    }
    room.imposed = room.width;
    return room;
}

/// Children that wrap without a share take in equal parts what those leave that don't wrap.
OfferedRoom rowRoom(const Measure& row, const WidgetNode& child) {
    const float gap = numberProperty(row.widget, "இடைவெளி", 0.0F);
    if (flexShare(child)) {
        return roomOfShare(row, child, gap);
    }
    Rooms& rooms = row.metrics.rooms();
    const auto wrapping =
        childrenThat(row, [&](const WidgetNode& one) { return rooms.holdsWrappedText(one) && !takesShare(one); });
    const Room others = row.roomOf(
        childrenThat(row, [&](const WidgetNode& one) { return !rooms.holdsWrappedText(one) && !takesShare(one); }));
    const float parts = std::max(1.0F, static_cast<float>(wrapping.size()));
    return {shareOfRoom(row, child, others.sum + others.number * gap + (parts - 1.0F) * gap, parts)};
}

} // namespace

extern const WidgetKind ROW = {language::widget::ROW, emitRow, lineOfChildren, largestChild, rowRoom};

} // namespace pozhil

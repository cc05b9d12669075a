#include "generator/web/layout/layout_children.h"

#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <algorithm>

namespace pozhil {

namespace {

/// Whether no child of an element takes a share of the free space or of the layout.
bool isOfFixedSizes(const EachNode& each) {
    const auto children = childWidgets(each);
    return std::all_of(children.begin(), children.end(), [](const WidgetNode* child) {
        const auto* inner = dynamic_cast<const EachNode*>(child);
        return inner == nullptr ? !flexShare(*child) && child->kind != language::widget::GAP : isOfFixedSizes(*inner);
    });
}

} // namespace

LayoutChildren::LayoutChildren(WidgetWriter& layout)
    : widgets(childWidgets(layout.widget())),
      spacing(numberOf(findProperty(layout.widget(), {"இடைவெளி"})).value_or(0.0F)) {
    across = layout.roomAcross(widgets);
    down = layout.roomDown(widgets);
    gaps = gapsBetween(down.number) * spacing;
    totalFlex = sharesOf(widgets, layout.edition());
}

Extent sharesOf(const std::vector<const WidgetNode*>& children, Presence& presence) {
    Extent shares;
    for (const WidgetNode* child : children) {
        if (const auto* each = dynamic_cast<const EachNode*>(child)) {
            shares += presence.sumOverElements(*each, sharesOf(childWidgets(*each), presence));
        } else if (const std::optional<float> share = flexShare(*child)) {
            shares += onlyWhile(presence.shownWhile(*child), *share);
        }
    }
    return shares;
}

std::optional<float> flexShare(const WidgetNode& child) {
    if (child.kind == language::widget::FLEXIBLE) {
        const auto* flexible = dynamic_cast<const FlexibleNode*>(&child);
        return flexible == nullptr ? 1.0F : static_cast<float>(flexible->flex);
    }
    const bool isFlex = child.kind == language::widget::EXPANDED || child.kind == language::widget::SPACER;
    return isFlex ? std::optional(1.0F) : std::nullopt;
}

bool hasScrollBar(const WidgetNode& layout) {
    return isTrue(findProperty(layout, {"உருளும்பட்டை"}));
}

void emitLayoutSize(WidgetWriter& layout, std::initializer_list<const char*> names, const char* variable,
                    const char* forced, const char* window) {
    const Expression* given = findProperty(layout.widget(), names);
    if (const std::optional<float> size = numberOf(given)) {
        layout.block("    $variable = $size;\n", {{"variable", variable}, {"size", floatConstant(*size)}});
    } else if (given == nullptr && layout.isRoot()) {
        layout.block("    if ($forced < 0.0f) $variable = $window;\n",
                     {{"forced", forced}, {"variable", variable}, {"window", window}});
    }
}

namespace {

/// Adds what a child with a size of its own takes; for all elements of a list at once where each takes the same.
void emitFixedSize(WidgetWriter& layout, const LayoutAxis& axis, const WidgetNode& child) {
    const auto* each = dynamic_cast<const EachNode*>(&child);
    const Room room = (layout.*axis.roomOf)({&child});
    if (each != nullptr && isOfFixedSizes(*each)) {
        layout.block("    $sum += $size + $number * spacing;\n",
                     {{"sum", axis.fixedSum}, {"size", room.sum.text()}, {"number", room.number.text()}});
        return;
    }
    layout.eachChild({&child}, [&](const WidgetNode& shown) {
        if (flexShare(shown)) {
            return;
        }
        std::string size = (layout.*axis.sizeOf)(shown).text();
        if (shown.kind == language::widget::GAP) {
            size = processPercentage(layout.edition(), findProperty(shown, {axis.gapProperty}), axis.gapBase);
        }
        layout.block("    $sum += $size + spacing;\n",
                     {{"sum", axis.fixedSum}, {"size", size.empty() ? "0.0f" : size}});
    });
}

} // namespace

void emitShares(WidgetWriter& layout, const LayoutChildren& children, const LayoutAxis& axis) {
    layout.block(
        R"(
    float $sum = 0.0f;
    float totalFlex = $flex;
    float spacing = 0.0f;
    spacing = $spacing;
)",
        {{"sum", axis.fixedSum}, {"flex", children.totalFlex.text()}, {"spacing", floatConstant(children.spacing)}});
    layout.inParts(children.widgets, [&](const WidgetNode& child) { emitFixedSize(layout, axis, child); });
    layout.block(R"(
    float remaining$axis = container$axis - $sum;
    if (remaining$axis < 0.0f) remaining$axis = 0.0f;
    float unitFlex$axis = (totalFlex > 0) ? (remaining$axis / totalFlex) : 0.0f;
)",
                 {{"axis", axis.letter}, {"sum", axis.fixedSum}});
}

void emitScrollLimits(WidgetWriter& layout, const LayoutAxis& axis, const char* content, const char* visible) {
    layout.block(R"(
    float maxScroll = $content - $visible;
    if (maxScroll < 0.0f) maxScroll = 0.0f;
    if (${offset}_$n < 0.0f) ${offset}_$n = 0.0f;
    if (${offset}_$n > maxScroll) ${offset}_$n = maxScroll;
)",
                 {{"content", content}, {"visible", visible}, {"offset", axis.offset}});
}

namespace {

/// A condition: what stands at \p begin and is so large can be seen in a window that ends at \p end. Empty for what has no
/// size before the page runs.
std::string nearWindow(const char* begin, const Extent& size, const char* end) {
    if (size.isNothing()) {
        return "";
    }
    // Shadows reach out of their widgets, and sizes are known only roughly.
    return std::string(begin) + " < " + end + " + 100.0f && " + begin + " + " + size.text() + " > -100.0f";
}

} // namespace

void emitVisibleChild(WidgetWriter& layout, const WidgetNode& child, const char* x, const char* y) {
    if (!layout.isInOwnEach()) {
        layout.child(child, x, y);
        return;
    }
    const std::string across = nearWindow(x, layout.widthOf(child), "winWidth");
    const std::string down = nearWindow(y, layout.heightOf(child), "winHeight");
    layout.block("    if ($condition) {\n        $scopes\n        $child\n    }\n",
                 {{"condition", across.empty() && down.empty()   ? "true"
                                : across.empty() || down.empty() ? across + down
                                                                 : across + " && " + down},
                  {"scopes", layout.elementScopes() + "\n"},
                  {"child", layout.blocks([&] { layout.child(child, x, y); })}});
}

namespace {

void emitScissor(WidgetWriter& layout, const CutArea& area) {
    layout.block(R"(
    nvgSave(vg);
    $scissor(vg, $left, $top, $width, $height);
)",
                 {{"scissor", layout.edition().layering().scissor()},
                  {"left", area.x},
                  {"top", area.y},
                  {"width", area.width},
                  {"height", area.height}});
}

void emitRectangle(WidgetWriter& layout, const CutArea& area, bool alsoTexts) {
    layout.block(R"(
    float oldClipX = g_currentClipX, oldClipY = g_currentClipY, oldClipW = g_currentClipW, oldClipH = g_currentClipH;
    g_currentClipX = $left; g_currentClipY = $top; g_currentClipW = $width; g_currentClipH = $height;
    $cut
)",
                 {{"left", area.x},
                  {"top", area.y},
                  {"width", area.width},
                  {"height", area.height},
                  {"cut", layout.edition().layering().cutsTo(area, alsoTexts)}});
}

} // namespace

void emitScrollClip(WidgetWriter& layout, const CutArea& area) {
    emitScissor(layout, area);
    emitRectangle(layout, area, true);
}

void emitClip(WidgetWriter& layout, const CutArea& area) {
    emitScissor(layout, area);
    emitRectangle(layout, area, false);
}

void emitClipRectangle(WidgetWriter& layout, const CutArea& area) {
    emitRectangle(layout, area, false);
}

void emitClipEnd(WidgetWriter& layout) {
    layout.block(R"(
    nvgRestore(vg);
    g_currentClipX = oldClipX; g_currentClipY = oldClipY; g_currentClipW = oldClipW; g_currentClipH = oldClipH;
)");
}

void emitScrollToId(WidgetWriter& layout, const char* offset, const char* start, const ScrollAxis& axis) {
    layout.block(R"(
    if (!g_scrollToId.empty() && g_widgetPositions.count(g_scrollToId)) {
        float target${letter}_id = g_widgetPositions[g_scrollToId].$axis;
        float desired$letter = $start + 50.0f;
        float error = target${letter}_id - desired$letter;
        ${offset}_$n += error * 0.1f;
        bool hitLimit = false;
        if (${offset}_$n <= 0.5f) { ${offset}_$n = 0.0f; hitLimit = (error < 0); }
        if (${offset}_$n >= maxScroll - 0.5f) { ${offset}_$n = maxScroll; hitLimit = (error > 0); }
        if (std::abs(error) < 2.0f || hitLimit) g_scrollToId = "";
    }
)",
                 {{"offset", offset}, {"start", start}, {"axis", axis.property}, {"letter", axis.letter}});
}

} // namespace pozhil

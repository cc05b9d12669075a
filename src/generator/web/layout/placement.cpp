/// Layouts without shares of free space, and the widgets that only take part in their parent's layout.

#include "generator/web/layout/layout.h"
#include "generator/web/layout/layout_children.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

/// Pixels to the right or downwards; to the left and upwards with a minus.
float offsetOf(const WidgetNode& child, const char* name) {
    return constantOf(findProperty(child, {name})).value_or(0.0F);
}

} // namespace

void emitStack(WidgetWriter& stack) {
    const LayoutChildren children(stack);
    const auto [alignX, alignY] = getAlignmentCoords(stack.widget().alignment);
    stack.block(R"(
{
    float stackW = $width; float stackH = $height;
    float sStartX = $x; float sStartY = $y;
)",
                {{"width", floatConstant(children.largestWidth)}, {"height", floatConstant(children.largestHeight)}});
    stack.eachChild(children.widgets, [&](const WidgetNode& child) {
        stack.block(R"(
    {
        float childX = sStartX + (stackW - $width) * (1.0f + $alignX) / 2.0f + $offsetX;
        float childY = sStartY + (stackH - $height) * (1.0f + $alignY) / 2.0f + $offsetY;
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
                    {{"width", floatConstant(stack.widthOf(child))},
                     {"height", floatConstant(stack.heightOf(child))},
                     {"alignX", floatConstant(alignX)},
                     {"alignY", floatConstant(alignY)},
                     {"offsetX", floatConstant(offsetOf(child, "நகர்வு_X"))},
                     {"offsetY", floatConstant(offsetOf(child, "நகர்வு_Y"))},
                     {"child", stack.blocks([&] { stack.child(child, "childX", "childY"); })}});
    });
    stack.block("}\n");
}

void emitWrap(WidgetWriter& wrap) {
    constexpr float USUAL_SPACING = 10.0F;
    const float spacing = numberOf(findProperty(wrap.widget(), {"இடைவெளி"})).value_or(USUAL_SPACING);
    wrap.block(R"(
{
    float wrapStartX = $x; float wrapStartY = $y;
    float curX = wrapStartX; float curY = wrapStartY; float rowMaxH = 0.0f;
    float wrapMaxW = (forcedW > 0.0f) ? forcedW : winWidth;
    float spacing = $spacing;
)",
               {{"spacing", floatConstant(spacing)}});
    wrap.eachChild(childWidgets(wrap.widget()), [&](const WidgetNode& child) {
        wrap.block(R"(
    {
        float childW = $width; float childH = $height;
        if (curX + childW > wrapStartX + wrapMaxW && curX != wrapStartX) {
            curX = wrapStartX;
            curY += rowMaxH + spacing;
            rowMaxH = 0.0f;
        }
        if (childH > rowMaxH) rowMaxH = childH;
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
        curX += childW + spacing;
    }
)",
                   {{"width", floatConstant(wrap.widthOf(child))},
                    {"height", floatConstant(wrap.heightOf(child))},
                    {"child", wrap.blocks([&] { wrap.child(child, "curX", "curY"); })}});
    });
    wrap.block(wrap.isAtTop() ? "}\n" : "    $y = curY + rowMaxH + spacing;\n}\n");
}

void emitPadding(WidgetWriter& padding) {
    const float inset = numberOf(findProperty(padding.widget(), {"அளவு"})).value_or(0.0F);
    // A parent that places it by variables of the same names is read before they are hidden.
    const bool isInChild = padding.x() == "childX" || padding.y() == "childY";
    padding.block(isInChild ? "{\n    float outerX = $x; float outerY = $y;\n" : "{\n");
    padding.block(R"(
    float childX = $left + $inset; float childY = $top + $inset;
    $children
}
)",
                  {{"left", isInChild ? "outerX" : padding.x()},
                   {"top", isInChild ? "outerY" : padding.y()},
                   {"inset", floatConstant(inset)},
                   {"children", padding.blocks([&] {
                        padding.eachChild(childWidgets(padding.widget()),
                                          [&](const WidgetNode& child) { padding.child(child, "childX", "childY"); });
                    })}});
}

void emitFlexWrapper(WidgetWriter& wrapper) {
    const auto children = childWidgets(wrapper.widget());
    if (!children.empty()) {
        wrapper.child(*children.front(), wrapper.x(), wrapper.y());
    }
}

void emitFlexSpacer(WidgetWriter&) {}

void emitGap(WidgetWriter& gap) {
    gap.block("    // இவெ (Spacer) - Space reserved\n");
}

} // namespace pozhil

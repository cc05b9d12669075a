#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// Pixels to the right or downwards; to the left and upwards with a minus.
float offsetOf(const WidgetNode& child, const char* name) {
    return constantOf(findProperty(child, {name})).value_or(0.0F);
}

/// அடுக்கி: children one over the other.
void emitStack(WidgetWriter& stack) {
    const LayoutChildren children(stack);
    const std::pair<float, float> align = getAlignmentCoords(stack.widget().alignment);
    stack.block(R"(
{
    float stackW = $width; float stackH = $height;
    float sStartX = $x; float sStartY = $y;
)",
                {{"width", children.across.largest.text()}, {"height", children.down.largest.text()}});
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
                    {{"width", stack.widthOf(child).text()},
                     {"height", stack.heightOf(child).text()},
                     {"alignX", floatConstant(align.first)},
                     {"alignY", floatConstant(align.second)},
                     {"offsetX", floatConstant(offsetOf(child, "நகர்வு_X"))},
                     {"offsetY", floatConstant(offsetOf(child, "நகர்வு_Y"))},
                     {"child", stack.blocks([&] { stack.child(child, "childX", "childY"); })}});
    });
    stack.block("}\n");
}

} // namespace

extern const WidgetKind STACK = {language::widget::STACK, emitStack, largestChild, largestChild};

} // namespace pozhil

#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// மடிப்பு: children side by side, in as many lines as it takes.
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
                   {{"width", wrap.widthOf(child).text()},
                    {"height", wrap.heightOf(child).text()},
                    {"child", wrap.blocks([&] { emitVisibleChild(wrap, child, "curX", "curY"); })}});
    });
    wrap.block(wrap.isAtTop() ? "}\n" : "    $y = curY + rowMaxH + spacing;\n}\n");
}

Extent wrapHeight(const Measure& measure) {
    constexpr float LINES = 3.0F;
    constexpr float USUAL_GAP = 10.0F;
    return largestChild(measure) * LINES + (LINES - 1.0F) * numberProperty(measure.widget, "இடைவெளி", USUAL_GAP);
}

} // namespace

extern const WidgetKind WRAP = {language::widget::WRAP, emitWrap, fixed<0>, wrapHeight};

} // namespace pozhil

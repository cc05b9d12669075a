#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// பிரிப்பான்: a line across.
void emitDivider(WidgetWriter& divider) {
    divider.block(R"(
{
    float divX = std::floor($x); float divY = std::floor($y);
    float divWidth = 300.0f; float divHeight = 20.0f;
)");
    emitOwnSize(divider, "divWidth", "divHeight");
    divider.block(R"(
    divWidth = responsiveW(divWidth, winWidth, 0.0f);
    float centerY = divY + divHeight / 2;
    nvgBeginPath(vg);
    nvgMoveTo(vg, divX, centerY);
    nvgLineTo(vg, divX + divWidth, centerY);
    nvgStrokeColor(vg, $colour);
    nvgStrokeWidth(vg, $thickness);
    nvgStroke(vg);
}
)",
                  {{"colour", byteColourText(colourProperty(divider.widget(), {"style_நிறம்", "நிறம்"}, "#9E9E9E"))},
                   {"thickness", numberConstant(divider.widget(), {"style_தடிமன்", "தடிமன்"}, 1.0F)}});
}

} // namespace

extern const WidgetKind DIVIDER = {language::widget::DIVIDER, emitDivider, sized<300>, sized<20>};

} // namespace pozhil

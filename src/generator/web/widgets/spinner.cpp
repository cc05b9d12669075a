#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// சுழல்_காட்டி: three quarters of a circle, turning.
void emitSpinner(WidgetWriter& spinner) {
    constexpr float SIZE = 40.0F;
    constexpr float THICKNESS = 4.0F;
    const WidgetNode& widget = spinner.widget();
    spinner.block(R"(
{
    float spX = std::floor($x); float spY = std::floor($y);
    float size = $size;
    float radius = size / 2 - 4;
    float centerX = spX + size / 2; float centerY = spY + size / 2;
    double time = emscripten_get_now() / 1000.0;
    nvgSave(vg);
    nvgTranslate(vg, centerX, centerY);
    nvgRotate(vg, time * 6.0f);
    nvgBeginPath(vg);
    nvgArc(vg, 0, 0, radius, 0, NVG_PI * 1.5f, NVG_CW);
    nvgStrokeColor(vg, $colour);
    nvgStrokeWidth(vg, $thickness);
    nvgLineCap(vg, NVG_ROUND);
    nvgStroke(vg);
    nvgRestore(vg);
}
)",
                  {{"size", numberConstant(widget, {"style_அளவு"}, SIZE)},
                   {"colour", byteColourText(colourProperty(widget, {"style_நிறம்"}, "#2196F3"))},
                   {"thickness", numberConstant(widget, {"style_தடிமன்"}, THICKNESS)}});
}

Extent spinnerSize(const Measure& measure) {
    constexpr float USUAL = 40.0F;
    return numberProperty(measure.widget, "style_அளவு", USUAL);
}

} // namespace

extern const WidgetKind SPINNER = {language::widget::SPINNER, emitSpinner, spinnerSize, spinnerSize};

} // namespace pozhil

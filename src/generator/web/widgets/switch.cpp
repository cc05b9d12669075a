#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitTrack(WidgetWriter& widget) {
    widget.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, swX, swY, swW, swH, swH / 2.0f);
    if (isOn_$n) {
        nvgFillColor(vg, $on);
        nvgFill(vg);
    } else {
        nvgFillColor(vg, $off);
        nvgFill(vg);
        nvgStrokeColor(vg, nvgRGBA(180, 180, 180, 255));
        nvgStrokeWidth(vg, 1);
        nvgStroke(vg);
    }
)",
                 {{"on", byteColourText(colourProperty(widget.widget(), {"இயங்கும்_நிறம்"}, "#2196F3"))},
                  {"off", byteColourText(colourProperty(widget.widget(), {"முடங்கிய_நிறம்"}, "#E0E0E0"))}});
}

void emitThumb(WidgetWriter& widget) {
    widget.block(R"(
    float thumbX = isOn_$n ? swX + swW - thumbSize - padding : swX + padding;
    float thumbY = swY + padding;
    nvgBeginPath(vg);
    nvgRect(vg, thumbX - 5, thumbY - 5, thumbSize + 10, thumbSize + 10);
    nvgFillPaint(vg, nvgBoxGradient(vg, thumbX, thumbY + 2, thumbSize, thumbSize, thumbSize/2, 4, nvgRGBA(0,0,0,60), nvgRGBA(0,0,0,0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgCircle(vg, thumbX + thumbSize / 2.0f, thumbY + thumbSize / 2.0f, thumbSize / 2.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
}
)");
}

/// மாற்றி: a switch between on and off.
void emitSwitch(WidgetWriter& widget) {
    widget.block(R"(
{
    float swX = std::floor($x); float swY = std::floor($y);
    float swW = 48.0f; float swH = 28.0f;
    float thumbSize = 24.0f; float padding = (swH - thumbSize) / 2.0f;
    $state;
)",
                 {{"state", widget.state("bool", "isOn_" + widget.number(),
                                         truthValue(widget, findProperty(widget.widget(), {"ஆரம்ப_நிலை"})))}});
    const ControlState state = {ControlState::Kind::Truth, "isOn_" + widget.number()};
    widget.edition().writeStateRead(widget, state);
    if (!isDisabled(widget.widget())) {
        emitPressArea(widget, {"swX - 5", "swX + swW + 5", "swY - 5", "swY + swH + 5"}, widget.blocks([&] {
            widget.block("isOn_$n = !isOn_$n;\n$handler\n", {{"handler", changeOf(widget, state)}});
        }));
    }
    emitTrack(widget);
    emitThumb(widget);
}

} // namespace

extern const WidgetKind SWITCH = {language::widget::SWITCH, emitSwitch, fixed<48>, fixed<28>};

} // namespace pozhil

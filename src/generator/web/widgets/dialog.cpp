#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitRectangle(WidgetWriter& dialog) {
    constexpr float RADIUS = 16.0F;
    constexpr float SHADOW = 8.0F;
    dialog.block(R"(
g_overlays.push_back([=]() mutable {
    nvgResetScissor(vg);
    $shield
    float alertW = 400.0f; float alertH = 280.0f;
)",
                 {{"shield", dialog.edition().layering().shieldsPage()}});
    emitGivenSize(dialog, {"style_அகலம்", "அகலம்"}, "alertW", "winWidth");
    emitGivenSize(dialog, {"style_உயரம்", "உயரம்"}, "alertH", "winHeight");
    dialog.block(R"(
    alertW = responsiveW(alertW, winWidth, 40.0f);
    float alertX = (winWidth - alertW) / 2.0f;
    float alertY = (winHeight - alertH) / 2.0f;
    float radius = $radius;
    float shadow = $shadow;
)",
                 {{"radius", numberConstant(dialog.widget(), {"style_வளைவு"}, RADIUS)},
                  {"shadow", numberConstant(dialog.widget(), {"style_நிழல்"}, SHADOW)}});
}

void emitBody(WidgetWriter& dialog) {
    const ByteColour fill = byteColour(colourProperty(dialog.widget(), {"style_பின்னணி", "பின்னணி"}, "#FFFFFF"));
    dialog.block(
        R"(
    pozhil_dim_page(alertX, alertY, alertW, alertH, radius);
    if (shadow > 0.0f) {
        NVGpaint shadowPaint = nvgBoxGradient(vg, alertX, alertY + (shadow * 1.5f), alertW, alertH, radius, shadow * 4.0f, nvgRGBA(0,0,0,80), nvgRGBA(0,0,0,0));
        nvgBeginPath(vg);
        nvgRect(vg, alertX - shadow*5 - 10, alertY - shadow*5 - 10, alertW + shadow*10 + 20, alertH + shadow*12 + 20);
        nvgRoundedRect(vg, alertX, alertY, alertW, alertH, radius);
        nvgPathWinding(vg, NVG_HOLE);
        nvgFillPaint(vg, shadowPaint);
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, alertX, alertY, alertW, alertH, radius);
    nvgFillColor(vg, nvgRGBA($r, $g, $b, 255));
    nvgFill(vg);
)",
        {{"r", std::to_string(fill.red)}, {"g", std::to_string(fill.green)}, {"b", std::to_string(fill.blue)}});
}

/// The dialog is drawn when the page is done. Its closure has its own copies of what the frame knows by now.
void emitDialog(WidgetWriter& dialog) {
    emitRectangle(dialog);
    emitBody(dialog);
    emitClip(dialog, {"alertX", "alertY", "alertW", "alertH"});
    dialog.eachChild(childWidgets(dialog.widget()), [&](const WidgetNode& child) {
        dialog.block(R"(
    {
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = alertW; forcedH = alertH;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
                     {{"child", dialog.blocks([&] { dialog.child(child, "alertX", "alertY"); })}});
    });
    emitClipEnd(dialog);
    dialog.block("});\n");
}

OfferedRoom dialogRoom(const Measure& measure, const WidgetNode&) {
    const std::string given = measure.metrics.presence().sizeText(
        findProperty(measure.widget, {measure.axis.styleName, measure.axis.name}), "winWidth");
    const std::string whole = "responsiveW(" + (given.empty() ? "400.0f" : given) + ", winWidth, 40.0f)";
    return {whole, whole};
}

} // namespace

extern const WidgetKind DIALOG = {language::widget::DIALOG, emitDialog, sized<400>, sized<280>, dialogRoom};

} // namespace pozhil

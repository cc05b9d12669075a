#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// தகவல்பட்டை: a message that stays where it is.
void emitInfoPill(WidgetWriter& pill) {
    const WidgetNode& widget = pill.widget();
    pill.block(R"(
{
    float sbX = std::floor($x); float sbY = std::floor($y);
    float sbWidth = 300.0f; float sbHeight = 40.0f;
)");
    emitOwnSize(pill, "sbWidth", "sbHeight");
    pill.block(R"(
    sbWidth = responsiveW(sbWidth, winWidth, 0.0f);
    std::string msgText = $message;
    nvgBeginPath(vg);
    nvgRect(vg, sbX - 5, sbY - 5, sbWidth + 10, sbHeight + 10);
    nvgRoundedRect(vg, sbX, sbY, sbWidth, sbHeight, sbHeight/2);
    nvgPathWinding(vg, NVG_HOLE);
    nvgFillPaint(vg, nvgBoxGradient(vg, sbX, sbY+2, sbWidth, sbHeight, sbHeight/2, 4, nvgRGBA(0,0,0,60), nvgRGBA(0,0,0,0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, sbX, sbY, sbWidth, sbHeight, sbHeight/2);
    nvgFillColor(vg, $fill);
    nvgFill(vg);
    drawFixedText(sbX + sbWidth/2, sbY + sbHeight/2 - 8.0f, msgText.c_str(), "#FFFFFF", 16.0f, "center");
}
)",
               {{"message", textValue(pill, findProperty(widget, {"செய்தி"}), "std::string(u8\"தகவல்\")")},
                {"fill", floatColour(colourProperty(widget, {"style_பின்னணி", "பின்னணி"}, "#323232E6"))}});
}

} // namespace

extern const WidgetKind INFO_PILL = {language::widget::INFO_PILL, emitInfoPill, sized<300>, sized<40>};

} // namespace pozhil

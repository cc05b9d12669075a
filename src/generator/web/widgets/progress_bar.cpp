#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitTrack(WidgetWriter& bar) {
    bar.block(R"(
{
    float lpX = std::floor($x); float lpY = std::floor($y);
    float lpWidth = 200.0f; float lpHeight = 6.0f;
)");
    emitOwnSize(bar, "lpWidth", "lpHeight");
    bar.block(R"(
    lpWidth = responsiveW(lpWidth, winWidth, 0.0f);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, lpX, lpY, lpWidth, lpHeight, lpHeight / 2);
    nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));
    nvgFill(vg);
    nvgBeginPath(vg);
)");
}

/// A part of the track as long as what is done; without a value a piece that goes to and fro.
void emitPart(WidgetWriter& bar, const Expression* value) {
    if (value != nullptr) {
        bar.block(R"(
    float progress = $value / 100.0f;
    if (progress < 0.0f) progress = 0.0f;
    if (progress > 1.0f) progress = 1.0f;
    if (progress > 0.01f) {
        nvgRoundedRect(vg, lpX, lpY, lpWidth * progress, lpHeight, lpHeight / 2);
    }
)",
                  {{"value", numberValue(bar, value, 0.0F)}});
        return;
    }
    bar.block(R"(
    double time = emscripten_get_now() / 1000.0;
    float animPos = (sin(time * 3.0f) + 1.0f) / 2.0f;
    float barW = lpWidth * 0.3f;
    float barX = lpX + animPos * (lpWidth - barW);
    nvgRoundedRect(vg, barX, lpY, barW, lpHeight, lpHeight / 2);
)");
}

/// முன்னேற்றவரி: how much of something is done, or that it goes on.
void emitProgressBar(WidgetWriter& bar) {
    emitTrack(bar);
    emitPart(bar, findProperty(bar.widget(), {"style_மதிப்பு", "மதிப்பு"}));
    bar.block(R"(
    nvgFillColor(vg, $colour);
    nvgFill(vg);
}
)",
              {{"colour", byteColourText(colourProperty(bar.widget(), {"style_நிறம்", "நிறம்"}, "#2196F3"))}});
}

} // namespace

extern const WidgetKind PROGRESS_BAR = {language::widget::PROGRESS_BAR, emitProgressBar, sized<200>, sized<6>};

} // namespace pozhil

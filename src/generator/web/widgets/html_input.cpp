#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

constexpr float WIDTH = 320.0F;

/// கடவுமறை: a field that looks like one of the browser's own.
void emitHtmlInput(WidgetWriter& input) {
    constexpr float HEIGHT = 60.0F;
    const WidgetNode& widget = input.widget();
    // நிறம் is the background, unless there is a பின்னணி: then it is the text's colour.
    const bool hasBackground = findProperty(widget, {"பின்னணி"}) != nullptr;
    const Colour background = colourProperty(widget, {"பின்னணி", "நிறம்"}, "#FFFFFF");
    const Colour textColour = hasBackground ? colourProperty(widget, {"எழுத்து_நிறம்", "நிறம்"}, "#000000")
                                            : colourProperty(widget, {"எழுத்து_நிறம்"}, "#000000");
    input.block(
        R"(
{
    std::string inputId = $id;
    float tx = std::floor($x); float ty = std::floor($y);
    float tw = $width;
    tw = responsiveW(tw, winWidth, 40.0f);
    float th = $height;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, tx, ty, tw, th, 12);
    nvgFillColor(vg, $fill);
    nvgFill(vg);
    pozhil_place_html_input(inputId.c_str(), $hint, "$background", "$colour", tx, ty, tw, th, winHeight);
    $field
)",
        {{"field", input.edition().layering().hasField(input.key(), {"tx", "tx + tw", "ty", "ty + th"}, "inputId")},
         {"id", input.nameFrom("\"input_" + input.number() + "\"")},
         {"width", numberConstant(widget, {"style_அகலம்", "அகலம்"}, WIDTH)},
         {"height", numberConstant(widget, {"style_உயரம்", "உயரம்"}, HEIGHT)},
         {"fill", floatColour(background)},
         {"hint", input.edition().literal(textOf(findProperty(widget, {"குறிப்பு"})))},
         {"background", cssColour(background)},
         {"colour", cssColour(textColour)}});
    input.edition().writeField(input, "inputId");
    input.block(input.isAtTop() ? "}\n" : "    $y += th;\n}\n");
}

/// Its block moves on by its height itself.
Extent hiddenFieldWidth(const Measure& measure) {
    return measure.metrics.presence().countsHiddenFields() ? numberProperty(measure.widget, "அகலம்", WIDTH) : 0.0F;
}

} // namespace

extern const WidgetKind HTML_INPUT = {language::widget::PASSWORD_FIELD, emitHtmlInput, hiddenFieldWidth, nullptr};

} // namespace pozhil

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

std::string labelText(const WidgetNode& widget) {
    const auto* text = nodeCast<StringLiteral>(findProperty(widget, {"உரை"}));
    return text == nullptr ? "Home" : text->value;
}

void emitPress(WidgetWriter& button) {
    if (const Expression* handler = findProperty(button.widget(), {"அழுத்தினால்"})) {
        button.block(R"(
    if (isHov && g_mouseClicked) {
        $handler
    }
)",
                     {{"handler", handlerCall(button, handler, HandlerSite::TextButton)}});
    }
}

/// உரைபொத்தான்: a text that can be pressed, without background or border.
void emitTextButton(WidgetWriter& button) {
    constexpr float USUAL_SIZE = 16.0F;
    const WidgetNode& widget = button.widget();
    button.block(
        R"(
{
    const char* txt = u8$text; float fs = $size; float bX = $x; float bY = $y;
    nvgFontSize(vg, fs); nvgFontFace(vg, "sans");
    float bounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    nvgTextBounds(vg, 0, 0, txt, NULL, bounds);
    float bW = (bounds[2] - bounds[0]) + 16.0f;
    float bH = 40.0f;
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHov = ${isTopmost}mx >= bX && mx <= bX + bW && my >= bY && my <= bY + bH;
)",
        {{"isTopmost", button.edition().layering().takesPress(button.key(), {"bX", "bX + bW", "bY", "bY + bH"})},
         {"text", button.edition().literal(labelText(widget))},
         {"size", numberConstant(widget, {"style_அளவு"}, USUAL_SIZE)}});
    emitPress(button);
    button.block(
        R"(
    if (isHov) pozhil_pointer_cursor();
    std::string activeColor = isHov ? "$hover" : "$colour";
    drawFixedText(bX + (bW / 2.0f), bY + (bH / 2.0f) - (fs / 2.0f) + 2.0f, txt, activeColor.c_str(), fs, "center", "400", false, "");
}
)",
        {{"hover", cssColour(colourProperty(widget, {"style_மேம்படுத்தப்பட்ட_நிறம்"}, "#3AAD68"))},
         {"colour", cssColour(colourProperty(widget, {"style_நிறம்"}, "#ffffff"))}});
}

Extent textButtonWidth(const Measure& measure) {
    return labelWidth(measure.widget, numberProperty(measure.widget, "style_அளவு", USUAL_TEXT_SIZE));
}

} // namespace

extern const WidgetKind TEXT_BUTTON = {language::widget::TEXT_BUTTON, emitTextButton, textButtonWidth, fixed<40>};

} // namespace pozhil

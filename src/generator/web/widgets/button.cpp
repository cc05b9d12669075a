#include "generator/web/measure/metric_rules.h"
#include "generator/web/widgets/button_label.h"
#include "generator/web/write/animation.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// r = 33; g = 150; b = 243;
std::string assignRgb(const std::string& prefix, const Colour& colour) {
    const ByteColour bytes = byteColour(colour);
    return prefix + "r = " + std::to_string(bytes.red) + "; " + prefix + "g = " + std::to_string(bytes.green) + "; " +
           prefix + "b = " + std::to_string(bytes.blue) + ";";
}

constexpr PressArea AREA = {"btnX", "btnX + btnW", "btnY", "btnY + btnH"};

std::optional<Colour> hoverColour(const WidgetNode& button) {
    return colourOf(findProperty(button, {"style_மேம்படுத்தப்பட்ட_நிறம்"}));
}

void emitColours(WidgetWriter& button, const ButtonLabel& label) {
    button.block(R"(
    int r=33, g=150, b=243, a=255;
    int tr=255, tg=255, tb=255, ta=255;
)");
    for (const char* name : {"பொபின்னணி", "style_பின்னணி"}) {
        if (const std::optional<Colour> background = colourOf(findProperty(button.widget(), {name}))) {
            button.block("    $rgb a = $alpha;\n", {{"rgb", assignRgb("", *background)},
                                                    {"alpha", std::to_string(byteColour(*background).alpha)}});
        }
    }
    button.block("    $rgb ta = $alpha;\n",
                 {{"rgb", assignRgb("t", label.colour)}, {"alpha", std::to_string(byteColour(label.colour).alpha)}});
    if (const std::optional<Colour> hover = hoverColour(button.widget())) {
        const ByteColour bytes = byteColour(*hover);
        button.block(
            "    int hr=$r, hg=$g, hb=$b;\n",
            {{"r", std::to_string(bytes.red)}, {"g", std::to_string(bytes.green)}, {"b", std::to_string(bytes.blue)}});
    }
}

void emitSize(WidgetWriter& button, const ButtonLabel& label) {
    button.block(
        R"(
    float responsiveSize = responsiveTextSize($size, winWidth);
    nvgFontSize(vg, responsiveSize);
    nvgFontFace(vg, $face);
    float bounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    nvgTextBounds(vg, 0, 0, btnTextStr.c_str(), NULL, bounds);
    float txtW = bounds[2] - bounds[0];
    float txtH = bounds[3] - bounds[1];
    float btnW = txtW + 32.0f;
    if (btnW < 80.0f) btnW = 80.0f;
)",
        {{"size", floatConstant(fontSizeOf(label.style))}, {"face", button.edition().literal(faceOf(label.style))}});
    emitGivenSize(button, {"style_அகலம்", "அகலம்"}, "btnW", "(forcedW > 0.0f ? forcedW : winWidth)");
    button.block(R"(
    btnW = responsiveW(btnW, winWidth, 40.0f);
    float btnH = txtH + 18.0f;
    if (btnH < 36.0f) btnH = 36.0f;
)");
    emitGivenSize(button, {"style_உயரம்", "உயரம்"}, "btnH", "(forcedH > 0.0f ? forcedH : winHeight)");
    button.block(R"(
    if (forcedW > 0.0f) btnW = forcedW;
    if (forcedH > 0.0f) btnH = forcedH;
)");
}

/// Fades the background towards the animation's colour.
void emitColourTargets(WidgetWriter& button) {
    for (const auto& [name, colour] : button.widget().animation->stringTargets) {
        if (name == "பொபின்னணி" || name == "பின்னணி" || name == "பெட்டிபின்னணி") {
            button.block(R"(
    {
        NVGcolor curCol = nvgRGBA(r, g, b, a);
        NVGcolor targetCol = $target;
        curCol = lerpColor(curCol, targetCol, t);
        r = (int)(curCol.r * 255); g = (int)(curCol.g * 255); b = (int)(curCol.b * 255); a = (int)(curCol.a * 255);
    }
)",
                         {{"target", floatColour(styleColour(colour))}});
        }
    }
}

/// How the button answers the mouse: its colour under the pointer, unless it is animated, and the press.
void emitHover(WidgetWriter& button) {
    button.block(R"(
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHover = ${isTopmost}mx >= btnX && mx <= btnX + btnW && my >= btnY && my <= btnY + btnH && (!g_block_background_clicks || g_inside_overlay);
)",
                 {{"isTopmost", button.edition().layering().takesPress(button.key(), AREA)}});
    emitAnimationProgress(button, "isHover");
    emitAnimationTargets(button, {"btnX", "btnY", "btnW", "btnH", "radius"});
    const bool isAnimated = button.widget().animation != nullptr;
    if (isAnimated) {
        emitColourTargets(button);
    }
    button.block(R"(
    if (isHover) {
        pozhil_pointer_cursor();
        $recolour
        if (g_mouseClicked) {
            $handler
        }
    }
)",
                 {{"recolour", button.blocks([&] {
                       if (!isAnimated) {
                           button.block(hoverColour(button.widget())
                                            ? "    r = hr; g = hg; b = hb;\n"
                                            : "    r = std::max(0, r - 20); g = std::max(0, g - 20); "
                                              "b = std::max(0, b - 20);\n");
                       }
                   })},
                  {"handler", pressHandler(button)}});
}

void emitBorder(WidgetWriter& button) {
    const std::optional<Colour> colour = colourOf(findProperty(button.widget(), {"style_கரை_நிறம்"}));
    const std::optional<float> width = constantOf(findProperty(button.widget(), {"style_கரை_அளவு"}));
    if (colour && width) {
        button.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, btnX, btnY, btnW, btnH, radius);
    nvgStrokeColor(vg, $colour);
    nvgStrokeWidth(vg, $width);
    nvgStroke(vg);
)",
                     {{"colour", floatColour(*colour)}, {"width", floatConstant(*width)}});
    }
}

void emitBody(WidgetWriter& button) {
    button.block(R"(
    if (shadowBlur > 0.0f) {
        nvgBeginPath(vg);
        nvgRect(vg, btnX - 2, btnY - 2, btnW + 4, btnH + 4);
        nvgFillPaint(vg, nvgBoxGradient(vg, btnX, btnY + 2, btnW, btnH, radius, shadowBlur, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0)));
        nvgFill(vg);
    }
    if (true) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, btnX + 1, btnY + 2, btnW, btnH, radius);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 64));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, btnX, btnY, btnW, btnH, radius);
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
)");
    emitBorder(button);
}

void emitLabel(WidgetWriter& button, const ButtonLabel& label) {
    const std::string font = button.edition().literal(label.style.font);
    if (!label.style.font.empty()) {
        button.block(R"(
    if (nvgFindFont(vg, $font) == -1) nvgCreateFont(vg, $font, $font);
)",
                     {{"font", font}});
    }
    button.block(R"block(
    std::string tColor = "rgb(" + std::to_string(tr) + "," + std::to_string(tg) + "," + std::to_string(tb) + ")";
    float centerX = btnX + btnW/2;
    float centerY = btnY + btnH/2 - responsiveSize/2 + 2.0f;
    drawFixedText(centerX, centerY, btnTextStr.c_str(), tColor.c_str(), responsiveSize, "center", $weight, false, $font);
}
)block",
                 {{"weight", button.edition().literal(weightOf(label.style))}, {"font", font}});
}

/// பொத்தான்: a filled button with centred text.
void emitButton(WidgetWriter& button) {
    constexpr float USUAL_RADIUS = 8.0F;
    const WidgetNode& widget = button.widget();
    const ButtonLabel label = buttonLabel(widget);
    const float plainRadius = constantOf(findProperty(widget, {"வளைவு"})).value_or(USUAL_RADIUS);
    button.block(
        R"(
{
    float btnX = $x; float btnY = $y;
    float radius = $radius;
    float shadowBlur = $shadow;
    std::string btnTextStr = $text;
)",
        {{"radius", numberConstant(widget, {"style_வளைவு"}, plainRadius)},
         {"shadow", numberConstant(widget, {"style_நிழல்"}, 0.0F)},
         {"text", textValue(button, label.text, "std::string(\"Click\")")}});
    emitColours(button, label);
    emitSize(button, label);
    emitHover(button);
    emitBody(button);
    emitLabel(button, label);
}

Extent buttonWidth(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? *given : labelWidth(measure.widget, USUAL_TEXT_SIZE);
}

} // namespace

extern const WidgetKind BUTTON = {language::widget::BUTTON, emitButton, buttonWidth, sized<40>};

} // namespace pozhil

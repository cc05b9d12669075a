#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitRangeAndSize(WidgetWriter& slider) {
    constexpr float LARGEST = 100.0F;
    const WidgetNode& widget = slider.widget();
    slider.block(R"(
{
    float minVal = $min; float maxVal = $max;
    float slX = std::floor($x); float slY = std::floor($y);
    float slW = 200.0f;
)",
                 {{"min", numberValue(slider, findProperty(widget, {"குறைந்தபட்சம்"}), 0.0F)},
                  {"max", numberValue(slider, findProperty(widget, {"அதிகபட்சம்"}), LARGEST)}});
    emitOwnWidth(slider, "slW");
    slider.block(R"(
    slW = responsiveW(slW, winWidth, 0.0f);
    float slH = 20.0f;
    bool isDragging = false;
)");
}

/// The button itself is asked: a drag goes on after the frame of the click.
void emitButtonState(WidgetWriter& slider) {
    slider.block(R"(
    bool isMouseDown = glfwGetMouseButton(window, GLFW_MOUSE_BUTTON_LEFT) == GLFW_PRESS;
)");
}

ControlState stateOf(const WidgetWriter& slider) {
    return {ControlState::Kind::Number, "currentVal_" + slider.number()};
}

/// The value is no number of the range until the first frame.
void emitValue(WidgetWriter& slider) {
    const bool isBound = slider.edition().isBound(slider.widget());
    const Expression* value = isBound ? nullptr : findProperty(slider.widget(), {"மதிப்பு"});
    slider.block(R"(
    $state;
    if (currentVal_$n == -99999.0f) currentVal_$n = $value;
)",
                 {{"state", slider.state("float", "currentVal_" + slider.number(), "-99999.0f")},
                  {"value", value == nullptr ? "minVal" : numberValue(slider, value, 0.0F)}});
    slider.edition().writeStateRead(slider, stateOf(slider));
}

/// The thumb follows the pointer while the button is down and the pointer near the track.
void emitDrag(WidgetWriter& slider) {
    constexpr PressArea AREA = {"slX - 10", "slX + slW + 10", "slY - 10", "slY + slH + 10"};
    const Layering& layers = slider.edition().layering();
    slider.block(R"(
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHover = ${isTopmost}mx >= slX - 10 && mx <= slX + slW + 10 && my >= slY - 10 && my <= slY + slH + 10;
    if (isHover) {
        pozhil_pointer_cursor();
        if (${isHeld}isMouseDown) {
            isDragging = true;
            float normalized = (mx - slX) / slW;
            if (normalized < 0.0f) normalized = 0.0f;
            if (normalized > 1.0f) normalized = 1.0f;
            currentVal_$n = minVal + normalized * (maxVal - minVal);
            $handler
        }
    }
)",
                 {{"isTopmost", layers.takesPress(slider.key(), AREA)},
                  {"isHeld", layers.isHeld(slider.key())},
                  {"handler", changeOf(slider, stateOf(slider))}});
}

void emitTrackAndThumb(WidgetWriter& slider) {
    slider.block(R"(
    float val = currentVal_$n;
    if (val < minVal) val = minVal;
    if (val > maxVal) val = maxVal;
    float ratio = (val - minVal) / (maxVal - minVal);
    float thumbX = slX + ratio * slW;
    float trackY = slY + slH / 2;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, slX, trackY - 2, slW, 4, 2);
    nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, slX, trackY - 2, thumbX - slX, 4, 2);
    nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));
    nvgFill(vg);
    if (isDragging) {
        nvgBeginPath(vg);
        nvgCircle(vg, thumbX, trackY, 15);
        nvgFillColor(vg, nvgRGBA(33, 150, 243, 50));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgCircle(vg, thumbX, trackY + 1, 10);
    nvgFillPaint(vg, nvgBoxGradient(vg, thumbX - 10, trackY - 10, 20, 20, 10, 4, nvgRGBA(0,0,0,100), nvgRGBA(0,0,0,0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgCircle(vg, thumbX, trackY, 10);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
)");
}

/// அளவி: a thumb to drag along a track.
void emitSlider(WidgetWriter& slider) {
    const bool isEnabled = !isDisabled(slider.widget());
    emitRangeAndSize(slider);
    if (isEnabled) {
        emitButtonState(slider);
    }
    emitValue(slider);
    if (isEnabled) {
        emitDrag(slider);
    }
    emitTrackAndThumb(slider);
    slider.block(R"(
    if (isDragging) {
        std::string valStr = std::to_string((int)val);
        drawFixedText(thumbX, trackY - 25, valStr.c_str(), "#000000", 12.0, "center");
    }
}
)");
}

} // namespace

extern const WidgetKind SLIDER = {language::widget::SLIDER, emitSlider, sized<200>, sized<28>};

} // namespace pozhil

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <utility>

namespace pozhil {
namespace {

/// What the program's group says; without a group the widget keeps a state of its own, to be tried out.
void emitSelection(WidgetWriter& radio, const Expression* value, const Expression* group) {
    radio.block(R"(
{
    float rbX = std::floor($x); float rbY = std::floor($y);
    float rbSize = 20.0f;
    bool isSelected = false;
)");
    if (value != nullptr && group != nullptr) {
        radio.block(R"(
    if ($isEqual) isSelected = true;
)",
                    {{"isEqual", radio.edition().equality(*value, *group)}});
    } else {
        radio.block(R"(
    $state; isSelected = demoState_$n;
)",
                    {{"state", radio.state("bool", "demoState_" + radio.number(), "false")}});
    }
}

/// A press leaves the group's value to the program.
void emitPress(WidgetWriter& radio, bool hasGroup, const Filling& label) {
    radio.block("    float txtW = pozhil_plain_text_width($label);\n", {{"label", label}});
    const Filling press =
        hasGroup ? changeOf(radio, {ControlState::Kind::Group, ""})
                 : radio.blocks([&] { radio.block("demoState_$n = !demoState_$n;\nisSelected = demoState_$n;\n"); });
    emitPressArea(radio, {"rbX", "rbX + rbSize + 15.0f + txtW", "rbY", "rbY + rbSize"}, press);
}

void emitRing(WidgetWriter& radio, const Filling& label) {
    radio.block(R"(
    nvgBeginPath(vg);
    nvgCircle(vg, rbX + rbSize / 2.0f, rbY + rbSize / 2.0f, 10);
    nvgStrokeColor(vg, isSelected ? $selected : $unselected);
    nvgStrokeWidth(vg, 2);
    nvgStroke(vg);
    if (isSelected) {
        nvgBeginPath(vg);
        nvgCircle(vg, rbX + rbSize / 2.0f, rbY + rbSize / 2.0f, 5);
        nvgFillColor(vg, $selected);
        nvgFill(vg);
    }
    drawFixedText(std::floor(rbX + rbSize + 10), std::floor(rbY + (rbSize/2)), $label, "#000000", 18.0, "left");
}
)",
                {{"selected", byteColourText(colourProperty(radio.widget(), {"தேர்வு_நிறம்"}, "#2196F3"))},
                 {"unselected", byteColourText(colourProperty(radio.widget(), {"தேர்வற்ற_நிறம்"}, "#787878"))},
                 {"label", label}});
}

/// வட்டத்தேர்வு: one of a group of which one is selected.
void emitRadio(WidgetWriter& radio) {
    const WidgetNode& widget = radio.widget();
    const Expression* value = findProperty(widget, {"மதிப்பு"});
    const Expression* group = findProperty(widget, {"குழு_மதிப்பு"});
    if (group == nullptr && radio.edition().isBound(widget)) {
        group = std::exchange(value, findProperty(widget, {"உரை"}));
    }
    const Filling label = textArgument(radio, findProperty(widget, {"உரை"}));
    emitSelection(radio, value, group);
    if (!isDisabled(widget)) {
        emitPress(radio, group != nullptr, label);
    }
    emitRing(radio, label);
}

} // namespace

extern const WidgetKind RADIO = {language::widget::RADIO, emitRadio, fixed<250>, fixed<30>};

} // namespace pozhil

#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// The label beside the box, null if there is none.
const WidgetNode* labelOf(const WidgetNode& box) {
    const auto children = childWidgets(box);
    return children.empty() ? nullptr : children.front();
}

void emitBoxAndLabelSize(WidgetWriter& box) {
    box.block(R"(
{
    float cb_w = 24.0f; float cb_h = 24.0f;
)");
    emitOwnSize(box, "cb_w", "cb_h");
    const WidgetNode* label = labelOf(box.widget());
    if (label == nullptr || label->kind != language::widget::TEXT) {
        box.block("    float _txtW = 0.0f;\n");
        return;
    }
    if (box.edition().wraps(*label)) {
        box.block("    float _txtW = $width;\n", {{"width", box.widthOf(*label).text()}});
        return;
    }
    constexpr float USUAL_TEXT_SIZE = 15.0F;
    box.block(R"(
    std::string _cbTxt = $text;
    float _txtW = getTextWidth(_cbTxt.c_str(), $size);
)",
              {{"text", textValue(box, findProperty(*label, {"உரை"}), "std::string(\"\")")},
               {"size", floatConstant(label->style.size > 0 ? label->style.size : USUAL_TEXT_SIZE)}});
}

/// A program that knows the box by its id sees each change, and may change it too.
void emitState(WidgetWriter& box, const std::string& id) {
    box.block(R"(
    float cbX = ($x); float cbY = ($y);
    $state;
    float hitW = cb_w + 15.0f + _txtW;
)",
              {{"state", box.state("bool", "checked_" + box.number(),
                                   truthValue(box, findProperty(box.widget(), {"தேர்வுபெட்டிநிலை"})))}});
    const ControlState state = {ControlState::Kind::Truth, "checked_" + box.number()};
    emitPressArea(box, {"cbX", "cbX + hitW", "cbY", "cbY + cb_h"}, box.blocks([&] {
        box.block("checked_$n = !checked_$n;\n");
        box.edition().writeChange(box, state);
        if (!id.empty()) {
            box.block("g_inputErrors.erase($id);\n", {{"id", box.nameFrom(box.edition().literal(id))}});
        }
    }));
    box.edition().writeStateRead(box, state);
}

void emitTick(WidgetWriter& box) {
    box.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, cbX, cbY, cb_w, cb_h, 5);
    if (checked_$n) {
        nvgFillColor(vg, $selected);
        nvgFill(vg);
        nvgBeginPath(vg);
        nvgMoveTo(vg, cbX + cb_w * 0.25f, cbY + cb_h * 0.5f);
        nvgLineTo(vg, cbX + cb_w * 0.42f, cbY + cb_h * 0.68f);
        nvgLineTo(vg, cbX + cb_w * 0.75f, cbY + cb_h * 0.33f);
        nvgStrokeColor(vg, nvgRGBA(255, 255, 255, 255));
        nvgStrokeWidth(vg, cb_w * 0.1f);
        nvgLineCap(vg, NVG_ROUND);
        nvgStroke(vg);
    } else {
        nvgStrokeColor(vg, $unselected);
        nvgStrokeWidth(vg, 2);
        nvgStroke(vg);
    }
)",
              {{"selected", byteColourText(colourProperty(box.widget(), {"தேர்வு_நிறம்"}, "#2196F3"))},
               {"unselected", byteColourText(colourProperty(box.widget(), {"தேர்வற்ற_நிறம்"}, "#757575"))}});
}

void emitLabel(WidgetWriter& box) {
    if (const WidgetNode* label = labelOf(box.widget())) {
        box.block(R"(
    {
        float cbChildX = cbX + cb_w + 12.0f;
        float cbTextY = cbY + (cb_h - 16.0f) / 2.0f + 2.5f;
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $label
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
                  {{"label", box.blocks([&] { box.slot(*label, "cbChildX", "cbTextY"); })}});
    }
}

void emitError(WidgetWriter& box, const std::string& id) {
    box.block(R"(
    if (g_inputErrors.count($id) && !g_inputErrors[$id].empty()) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, cbX - 2, cbY - 2, cb_w + 4, cb_h + 4, 5);
        nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));
        nvgStrokeWidth(vg, 2);
        nvgStroke(vg);
        drawFixedText(cbX, cbY + cb_h + 6, g_inputErrors[$id].c_str(), "#F44336", 12.0f, "left");
    }
)",
              {{"id", box.nameFrom(box.edition().literal(id))}});
}

/// தேர்வுபெட்டி: a box to tick, with a label beside it.
void emitCheckbox(WidgetWriter& box) {
    const std::string id = textOf(findProperty(box.widget(), {"அடையாளம்"}));
    emitBoxAndLabelSize(box);
    emitState(box, id);
    emitTick(box);
    emitLabel(box);
    if (!id.empty()) {
        emitError(box, id);
    }
    box.block("}\n");
}

constexpr float CHECK_BOX = 24.0F;
constexpr float GAP = 12.0F;

Extent checkBoxWidth(const Measure& measure) {
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? Extent(CHECK_BOX) : firstChild(measure) + (CHECK_BOX + GAP);
}

Extent checkBoxHeight(const Measure& measure) {
    const std::optional<float> given = givenSize(measure);
    return given ? Extent(*given) : larger(CHECK_BOX, firstChild(measure));
}

OfferedRoom checkBoxRoom(const Measure& measure, const WidgetNode&) {
    const float box = givenSize(measure).value_or(CHECK_BOX);
    return {OfferedRoom().width + " - " + floatConstant(box + GAP)};
}

} // namespace

extern const WidgetKind CHECKBOX = {language::widget::CHECKBOX, emitCheckbox, checkBoxWidth, checkBoxHeight,
                                    checkBoxRoom};

} // namespace pozhil

#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/widgets/container_body.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/alignments.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

std::string alignmentWord(const Expression* value) {
    if (const auto* member = nodeCast<GetExpression>(value)) {
        return member->member.value;
    }
    const auto* variable = nodeCast<VariableAccess>(value);
    return variable == nullptr ? textOf(value) : variable->name;
}

/// Where a child stands in the box. Written as a property, மைய_வலது puts it at the bottom.
std::pair<float, float> alignmentOf(const WidgetNode& child) {
    const std::string word = alignmentWord(findProperty(child, {"சீரமைப்பு"}));
    const language::Alignment* alignment = language::findAlignment(word);
    if (alignment == nullptr) {
        return getAlignmentCoords(child.alignment);
    }
    const bool isMiddleRight = alignment->x > 0.0F && alignment->y == 0.0F;
    return {alignment->x, isMiddleRight ? 1.0F : alignment->y};
}

/// A text of one line is measured as it will be drawn, since its width by the count of its letters is only a rough one.
void emitChildSize(WidgetWriter& box, const WidgetNode& child) {
    box.block("        float childW = $width; float childH = $height;\n",
              {{"width", box.widthOf(child).text()}, {"height", box.heightOf(child).text()}});
    if (child.kind == language::widget::TEXT && !box.edition().wraps(child)) {
        box.block(R"block(
        if (std::string(u8"உரை") == "$kind") {
            pozhil_draw([&] { childW = pozhil_text_width($text.c_str(), $size, $weight); });
        }
)block",
                  {{"kind", child.kind},
                   {"text", textValue(box, findProperty(child, {"உரை"}), "std::string(\"\")")},
                   {"size", floatConstant(fontSizeOf(child.style))},
                   {"weight", box.edition().literal(weightOf(child.style))}});
    }
}

void emitChild(WidgetWriter& box, const WidgetNode& child) {
    const auto [alignX, alignY] = alignmentOf(child);
    box.block("    {\n");
    emitChildSize(box, child);
    box.block(R"(
        float childX = boxX + (boxW - childW) * (1.0f + $alignX) / 2.0f;
        float childY = boxY + (boxH - childH) * (1.0f + $alignY) / 2.0f;
)",
              {{"alignX", floatConstant(alignX)}, {"alignY", floatConstant(alignY)}});
    if (child.kind == language::widget::TEXT) {
        box.block("        childY += 2.0f;\n");
    }
    box.block(R"(
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
    }
)",
              {{"child", box.blocks([&] { box.child(child, "childX", "childY"); })}});
}

/// பெட்டி: a decorated box that clips its children and places each of them by its own alignment.
void emitContainer(WidgetWriter& box) {
    emitContainerBody(box);
    box.block(R"(
    nvgSave(vg);
    nvgBeginPath(vg);
    nvgIntersectScissor(vg, boxX, boxY, boxW, boxH);
)");
    emitClipRectangle(box, {"boxX", "boxY", "boxW", "boxH"});
    box.block("    float oldForcedW_container = forcedW; float oldForcedH_container = forcedH;\n");
    box.eachChild(childWidgets(box.widget()), [&](const WidgetNode& child) {
        if (child.kind != language::widget::BOX_STYLE) {
            emitChild(box, child);
        }
    });
    box.block("    forcedW = oldForcedW_container; forcedH = oldForcedH_container;\n");
    emitClipEnd(box);
    box.block("}\n");
}

Extent boxSize(const Measure& measure) {
    constexpr float USUAL = 100.0F;
    for (const WidgetNode* child : childWidgets(measure.widget)) {
        if (child->kind == language::widget::BOX_STYLE) {
            const std::optional<float> size = plainSize({measure.metrics, *child, measure.axis});
            if (size) {
                return *size;
            }
        }
    }
    return givenSize(measure).value_or(USUAL);
}

OfferedRoom boxRoom(const Measure& measure, const WidgetNode&) {
    const WidgetNode* const style = childOfKind(measure.widget, language::widget::BOX_STYLE);
    const Expression* size = findProperty(measure.widget, {measure.axis.styleName, measure.axis.name});
    if (size == nullptr && style != nullptr) {
        size = findProperty(*style, {measure.axis.name});
    }
    const std::string given = measure.metrics.presence().sizeText(size, "pozhil_own_width(winWidth)");
    return roomOfOwnWidth(given.empty() ? "100.0f" : given);
}

} // namespace

extern const WidgetKind CONTAINER = {language::widget::CONTAINER, emitContainer, boxSize, boxSize, boxRoom};

} // namespace pozhil

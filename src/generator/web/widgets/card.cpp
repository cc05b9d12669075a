#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

constexpr const char* CHILD_X = "cardX + 15.0f";

void emitRectangle(WidgetWriter& card) {
    constexpr float RADIUS = 12.0F;
    constexpr float ELEVATION = 4.0F;
    // A card in a card has a variable of the same name, and its position is told by that of the outer one.
    const bool isInCard = card.x() == CHILD_X;
    card.block("{\n");
    if (isInCard) {
        card.block("    float outerX = $x;\n");
    }
    card.block(R"(
    float cardX = std::floor($left); float cardY = std::floor($y);
    float cardW = 350.0f; float cardH = 200.0f;
)",
               {{"left", isInCard ? "outerX" : card.x()}});
    emitOwnSize(card, "cardW", "cardH");
    card.block(R"(
    float radius = $radius;
    float elevation = $elevation;
)",
               {{"radius", numberConstant(card.widget(), {"style_வளைவு", "வளைவு"}, RADIUS)},
                {"elevation", numberConstant(card.widget(), {"style_எலிவேஷன்", "எலிவேஷன்"}, ELEVATION)}});
}

void emitBody(WidgetWriter& card) {
    const ByteColour fill =
        byteColour(colourProperty(card.widget(), {"style_பின்னணி", "பின்னணி", "style_நிறம்"}, "#FFFFFF"));
    card.block(R"(
    if (elevation > 0.0f) {
        float shadowBlur = elevation * 3.0f;
        float shadowOffsetY = elevation * 1.5f;
        NVGpaint shadowPaint = nvgBoxGradient(vg, cardX, cardY + shadowOffsetY, cardW, cardH, radius, shadowBlur, nvgRGBA(0,0,0,80), nvgRGBA(0,0,0,0));
        nvgBeginPath(vg);
        nvgRect(vg, cardX - shadowBlur - 5, cardY - shadowBlur - 5, cardW + (shadowBlur * 2) + 10, cardH + (shadowBlur * 2) + 10);
        nvgRoundedRect(vg, cardX, cardY, cardW, cardH, radius);
        nvgPathWinding(vg, NVG_HOLE);
        nvgFillPaint(vg, shadowPaint);
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, cardX, cardY, cardW, cardH, radius);
    nvgFillColor(vg, nvgRGBA($r, $g, $b, 255));
    nvgFill(vg);
)",
               {{"r", std::to_string(fill.red)}, {"g", std::to_string(fill.green)}, {"b", std::to_string(fill.blue)}});
}

/// Each child is as wide as the whole card, though it starts further in.
void emitChildren(WidgetWriter& card) {
    card.block(R"(
    float savedForcedW = forcedW, savedForcedH = forcedH;
    forcedW = cardW; forcedH = cardH;
    float currentChildY = cardY + 15.0f;
)");
    card.eachChild(childWidgets(card.widget()), [&](const WidgetNode& child) {
        card.block(R"(
    {
        $child
    }
    currentChildY += $height + 10.0f;
)",
                   {{"child", card.blocks([&] { card.child(child, CHILD_X, "currentChildY"); })},
                    {"height", card.heightOf(child).text()}});
    });
    card.block("    forcedW = savedForcedW; forcedH = savedForcedH;\n");
}

/// அட்டை: a raised card with its children one below the other.
void emitCard(WidgetWriter& card) {
    emitRectangle(card);
    emitBody(card);
    card.block(R"(
    $shield
    nvgSave(vg);
    nvgIntersectScissor(vg, cardX, cardY, cardW, cardH);
)",
               {{"shield", card.edition().layering().shields({"cardX", "cardX + cardW", "cardY", "cardY + cardH"})}});
    emitClipRectangle(card, {"cardX", "cardY", "cardW", "cardH"});
    emitChildren(card);
    emitClipEnd(card);
    card.block("}\n");
}

/// A card is as large as its first child with the space around it.
Extent cardSize(const Measure& measure, float usual) {
    constexpr float BOTH_SIDES = 20.0F;
    if (const std::optional<float> given = givenSize(measure)) {
        return *given;
    }
    return childWidgets(measure.widget).empty() ? Extent(usual) : firstChild(measure) + BOTH_SIDES;
}

Extent cardWidth(const Measure& measure) {
    constexpr float USUAL = 350.0F;
    return cardSize(measure, USUAL);
}

Extent cardHeight(const Measure& measure) {
    constexpr float USUAL = 200.0F;
    return cardSize(measure, USUAL);
}

/// A card imposes its size on its children, which stand 15 pixels from its edges.
OfferedRoom cardRoom(const Measure& measure, const WidgetNode&) {
    const std::string given = measure.metrics.presence().sizeText(
        findProperty(measure.widget, {measure.axis.styleName, measure.axis.name}), "pozhil_own_width(winWidth)");
    const std::string whole = roomOfOwnWidth(given.empty() ? "350.0f" : given).width;
    return {whole + " - 30.0f", whole};
}

} // namespace

extern const WidgetKind CARD = {language::widget::CARD, emitCard, cardWidth, cardHeight, cardRoom};

} // namespace pozhil

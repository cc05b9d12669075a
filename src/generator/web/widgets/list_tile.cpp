#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

constexpr PressArea AREA = {"ltX", "ltX + ltW", "ltY", "ltY + ltH"};

void emitBody(WidgetWriter& tile) {
    constexpr float RADIUS = 8.0F;
    const WidgetNode& widget = tile.widget();
    const Layering& layers = tile.edition().layering();
    const bool isPressed = takesPresses(widget);
    const ByteColour colour = byteColour(colourProperty(widget, {"பின்னணி"}, "#FFFFFF"));
    tile.block(R"(
{
    float ltX = std::floor($x); float ltY = std::floor($y);
    float ltW = 200.0f; float ltH = $height;
)",
               {{"height", findProperty(widget, {"துணைத்_தலைப்பு"}) != nullptr ? "72.0f" : "56.0f"}});
    emitGivenSize(tile, {"அகலம்"}, "ltW", "winWidth");
    emitGivenSize(tile, {"உயரம்"}, "ltH", "winHeight");
    tile.block(R"(
    float radius = $radius;
    ltW = responsiveW(ltW, winWidth, 0.0f);
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHover = ${isTopmost}mx >= ltX && mx <= ltX + ltW && my >= ltY && my <= ltY + ltH && (!g_block_background_clicks || g_inside_overlay);
    int r = $red, g = $green, b = $blue;
    if (isHover) {
        pozhil_pointer_cursor();
        r = std::max(0, r - 10); g = std::max(0, g - 10); b = std::max(0, b - 10);
        if (g_mouseClicked) {
            $handler
        }
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, ltX, ltY, ltW, ltH, radius);
    nvgFillColor(vg, nvgRGBA(r, g, b, $alpha));
    nvgFill(vg);
    $holder
    float currentContentX = ltX + 16.0f;
)",
               {{"isTopmost", isPressed ? layers.takesPress(tile.key(), AREA) : layers.takesHover(tile.key(), AREA)},
                {"holder", layers.holds(tile.key(), isPressed)},
                {"radius", numberConstant(widget, {"வளைவு"}, RADIUS)},
                {"red", std::to_string(colour.red)},
                {"green", std::to_string(colour.green)},
                {"blue", std::to_string(colour.blue)},
                {"alpha", std::to_string(colour.alpha)},
                {"handler", pressHandler(tile)}});
}

/// One of the widgets in the tile, free to take its own size.
Filling slotContent(WidgetWriter& tile, const WidgetNode& content, const char* x, const char* y) {
    return tile.blocks([&tile, &content, x, y] {
        tile.block(R"(
    float savedForcedW = forcedW, savedForcedH = forcedH;
    forcedW = -1.0f; forcedH = -1.0f;
    $content
    forcedW = savedForcedW; forcedH = savedForcedH;
)",
                   {{"content", tile.blocks([&] { tile.slot(content, x, y); })}});
    });
}

void emitLeading(WidgetWriter& tile) {
    if (const WidgetNode* leading = asWidget(findProperty(tile.widget(), {"முன்னணி"}))) {
        tile.block(R"(
    {
        float leadY = std::floor(ltY + (ltH - $height) / 2.0f);
        $content
        currentContentX += $width + 12.0f;
    }
)",
                   {{"height", tile.heightOf(*leading).text()},
                    {"width", tile.widthOf(*leading).text()},
                    {"content", slotContent(tile, *leading, "currentContentX", "leadY")}});
    }
}

void emitLines(WidgetWriter& tile) {
    const Expression* subtitleSlot = findProperty(tile.widget(), {"துணைத்_தலைப்பு"});
    if (const WidgetNode* title = asWidget(findProperty(tile.widget(), {"தலைப்பு"}))) {
        const std::string centred = "ltY + (ltH - " + tile.heightOf(*title).text() + ") / 2.0f";
        tile.block(R"(
    {
        float titleY = $top;
        $content
    }
)",
                   {{"top", subtitleSlot == nullptr ? centred : "ltY + 12.0f"},
                    {"content", slotContent(tile, *title, "currentContentX", "titleY")}});
    }
    if (const WidgetNode* subtitle = asWidget(subtitleSlot)) {
        tile.block(R"(
    {
        float subY = ltY + ltH - $height - 12.0f;
        $content
    }
)",
                   {{"height", tile.heightOf(*subtitle).text()},
                    {"content", slotContent(tile, *subtitle, "currentContentX", "subY")}});
    }
}

void emitTrailing(WidgetWriter& tile) {
    if (const WidgetNode* trailing = asWidget(findProperty(tile.widget(), {"பின்னணி_விட்ஜெட்"}))) {
        tile.block(R"(
    {
        float trailW = $width;
        float trailX = ltX + ltW - trailW - 16.0f;
        float trailY = ltY + (ltH - $height) / 2.0f;
        $content
    }
)",
                   {{"width", tile.widthOf(*trailing).text()},
                    {"height", tile.heightOf(*trailing).text()},
                    {"content", slotContent(tile, *trailing, "trailX", "trailY")}});
    }
}

/// பட்டியல்_உருப்படி: a row with a leading and a trailing widget and up to two lines between.
void emitListTile(WidgetWriter& tile) {
    emitBody(tile);
    emitLeading(tile);
    emitLines(tile);
    emitTrailing(tile);
    tile.block("}\n");
}

Extent tileHeight(const Measure& measure) {
    constexpr float ONE_LINE = 56.0F;
    constexpr float TWO_LINES = 72.0F;
    const bool hasSubtitle = findProperty(measure.widget, {"துணைத்_தலைப்பு"}) != nullptr;
    return plainSize(measure).value_or(hasSubtitle ? TWO_LINES : ONE_LINE);
}

/// What stands before and after the lines takes of their room.
OfferedRoom tileRoom(const Measure& measure, const WidgetNode& child) {
    constexpr float EDGES = 32.0F;
    constexpr float GAP = 12.0F;
    const std::string given =
        measure.metrics.presence().sizeText(findProperty(measure.widget, {measure.axis.name}), "winWidth");
    Extent taken = EDGES;
    for (const char* name : {"முன்னணி", "பின்னணி_விட்ஜெட்"}) {
        const WidgetNode* const neighbour = asWidget(findProperty(measure.widget, {name}));
        if (neighbour != nullptr && neighbour != &child && !measure.metrics.rooms().holdsWrappedText(*neighbour)) {
            taken += measure.roomOf({neighbour}).sum + GAP;
        }
    }
    return {"responsiveW(" + (given.empty() ? "200.0f" : given) + ", winWidth, 0.0f) - " + taken.text()};
}

} // namespace

extern const WidgetKind LIST_TILE = {language::widget::LIST_TILE, emitListTile, plainSized<200>, tileHeight, tileRoom};

} // namespace pozhil

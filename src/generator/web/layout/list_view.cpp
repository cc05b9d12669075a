#include "generator/web/layout/layout_children.h"
#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitScrolling(WidgetWriter& list) {
    emitScrollClip(list, {"listStartX", "listStartY", "winWidth", "winHeight"});
    list.block(R"(
    $state;
    float mouseX = pozhil_mouse_x();
    float mouseY = pozhil_mouse_y();
    if (mouseX >= listStartX && mouseX <= listStartX + winWidth && mouseY >= listStartY && mouseY <= listStartY + winHeight) {
        float wheel = pozhil_take_wheel();
        scrollOffset_$n += wheel;
    }
    float maxScroll = totalContentHeight - winHeight;
    if (maxScroll < 0.0f) maxScroll = 0.0f;
    if (scrollOffset_$n < 0.0f) scrollOffset_$n = 0.0f;
    if (scrollOffset_$n > maxScroll) scrollOffset_$n = maxScroll;
)",
               {{"state", list.state("float", "scrollOffset_" + list.number(), "0.0f")}});
    emitScrollToId(list, "scrollOffset", "listStartY", SCROLL_Y);
}

void emitScrollBar(WidgetWriter& list) {
    list.block(R"(
    if (maxScroll > 0) {
        float barH = (winHeight / totalContentHeight) * winHeight;
        float barY = (scrollOffset_$n / totalContentHeight) * winHeight;
        nvgBeginPath(vg);
        nvgRoundedRect(vg, winWidth - 6, barY, 4, barH, 2);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));
        nvgFill(vg);
    }
}
)");
}

/// பட்டியல்_காட்சி: a scrolling list as large as the window.
void emitListView(WidgetWriter& list) {
    const auto children = childWidgets(list.widget());
    if (const Expression* id = findProperty(list.widget(), {"ID", "id", "அடையாளம்"})) {
        list.block(
            R"({ std::string _wid = $id; if (!_wid.empty()) g_widgetPositions[_wid] = {(float)($x), (float)($y)}; })"
            "\n",
            {{"id", list.edition().text(id, "")}});
    }
    list.block(R"(
{
    float listStartX = $x; float listStartY = $y;
    float spacing = 0.0f;
    float totalContentHeight = 0.0f;
)");
    list.inParts(children, [&](const WidgetNode& child) {
        list.block("    totalContentHeight += $height;\n", {{"height", list.roomDown({&child}).sum.text()}});
    });
    emitScrolling(list);
    list.block("    float currentY = listStartY - scrollOffset_$n;\n");
    const auto stepOf = [&](const WidgetNode& child) { return std::optional(list.heightOf(child)); };
    list.eachChildAlong(children, "currentY", "winHeight", stepOf, [&](const WidgetNode& child) {
        list.block(R"(
    {
        float childX = listStartX + (winWidth - $width) / 2.0f;
        float savedForcedW = forcedW, savedForcedH = forcedH;
        forcedW = -1.0f; forcedH = -1.0f;
        $child
        forcedW = savedForcedW; forcedH = savedForcedH;
        currentY += $height;
    }
)",
                   {{"width", list.widthOf(child).text()},
                    {"height", list.heightOf(child).text()},
                    {"child", list.blocks([&] { emitVisibleChild(list, child, "childX", "currentY"); })}});
    });
    emitClipEnd(list);
    emitScrollBar(list);
}

} // namespace

extern const WidgetKind LIST_VIEW = {language::widget::LIST_VIEW, emitListView, nullptr, nullptr, roomOfWindow};

} // namespace pozhil

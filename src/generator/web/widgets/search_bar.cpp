#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitBox(WidgetWriter& bar) {
    constexpr float RADIUS = 25.0F;
    constexpr float TEXT_SIZE = 16.0F;
    bar.block(R"(
{
    float sbX = std::floor($x); float sbY = std::floor($y);
    float sbW = 350.0f, sbH = 50.0f, radius = $radius, fSize = $size;
)",
              {{"radius", numberConstant(bar.widget(), {"style_வளைவு"}, RADIUS)},
               {"size", numberConstant(bar.widget(), {"style_எழுத்தளவு"}, TEXT_SIZE)}});
    emitOwnSize(bar, "sbW", "sbH");
    bar.block(R"(
    sbW = responsiveW(sbW, winWidth, 0.0f);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, sbX, sbY, sbW, sbH, radius);
    nvgFillColor(vg, $fill);
    nvgFill(vg);
    float iconX = sbX + 20.0f;
    float iconY = sbY + sbH / 2.0f;
)",
              {{"fill", floatColour(colourProperty(bar.widget(), {"style_களப்பின்னணி"}, "#F0F4FA"))}});
}

/// An image of the source's own, 20 by 20 about the given point.
void emitIconImage(WidgetWriter& bar, const char* handle, const std::string& path, const char* centreX) {
    bar.block(R"(
    static int ${handle}_$n = -1;
    if (${handle}_$n == -1) ${handle}_$n = nvgCreateImage(vg, $path, 0);
    if (${handle}_$n > 0) {
        nvgBeginPath(vg);
        nvgRect(vg, $centreX - 10, iconY - 10, 20, 20);
        nvgFillPaint(vg, nvgImagePattern(vg, $centreX - 10, iconY - 10, 20, 20, 0.0f, ${handle}_$n, 0.5f));
        nvgFill(vg);
    }
)",
              {{"handle", handle}, {"path", bar.edition().literal(path)}, {"centreX", centreX}});
}

void emitLens(WidgetWriter& bar) {
    const std::string path = textOf(findProperty(bar.widget(), {"தேடல்_படம்"}));
    if (!path.empty()) {
        emitIconImage(bar, "sIcon", path, "iconX");
        return;
    }
    bar.block(R"(
    nvgBeginPath(vg);
    nvgCircle(vg, iconX - 2, iconY - 2, 6);
    nvgMoveTo(vg, iconX + 2.5f, iconY + 2.5f);
    nvgLineTo(vg, iconX + 8, iconY + 8);
    nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
    nvgStrokeWidth(vg, 2);
    nvgStroke(vg);
)");
}

void emitClear(WidgetWriter& bar) {
    const std::string path = textOf(findProperty(bar.widget(), {"அழி_படம்"}));
    bar.block(R"(
    if (!g_inputValues[sbId].empty()) {
        float clearX = sbX + sbW - 25.0f;
        $icon
        float mx = pozhil_mouse_x();
        float my = pozhil_mouse_y();
        if (${isTopmost}g_mouseClicked && std::hypot(mx - clearX, my - iconY) <= 15.0f) {
            g_inputValues[sbId] = "";
            pozhil_clear_field(sbId.c_str());
        }
    }
}
)",
              {{"isTopmost", bar.edition().layering().takesPress(
                                 bar.key(), {"clearX - 15.0f", "clearX + 15.0f", "iconY - 15.0f", "iconY + 15.0f"})},
               {"icon", bar.blocks([&] {
                    if (!path.empty()) {
                        emitIconImage(bar, "cIcon", path, "clearX");
                        return;
                    }
                    bar.block(R"(
    nvgBeginPath(vg);
    nvgMoveTo(vg, clearX - 5, iconY - 5);
    nvgLineTo(vg, clearX + 5, iconY + 5);
    nvgMoveTo(vg, clearX + 5, iconY - 5);
    nvgLineTo(vg, clearX - 5, iconY + 5);
    nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
    nvgStrokeWidth(vg, 2);
    nvgStroke(vg);
)");
                })}});
}

/// தேடல்_பட்டை, தேடுபொறி: a search field with its icons.
void emitSearchBar(WidgetWriter& bar) {
    emitBox(bar);
    emitLens(bar);
    const std::string hint = textOf(findProperty(bar.widget(), {"தேடல்_குறிப்பு", "குறிப்பு"}));
    bar.block(
        R"(
    std::string sbId = $id;
    pozhil_place_search_field(sbId.c_str(), $hint, sbX, sbY, sbW, sbH, fSize);
    $field
)",
        {{"field", bar.edition().layering().hasField(bar.key(), {"sbX", "sbX + sbW", "sbY", "sbY + sbH"}, "sbId")},
         {"id", bar.nameFrom("\"search_\" + std::to_string(" + bar.number() + ")")},
         {"hint", bar.edition().literal(hint.empty() ? "Search..." : hint)}});
    bar.edition().writeField(bar, "sbId");
    emitClear(bar);
}

} // namespace

extern const WidgetKind SEARCH_BAR = {language::widget::SEARCH_BAR, emitSearchBar, sized<350>, sized<50>};
extern const WidgetKind SEARCH_FIELD = {language::widget::SEARCH_FIELD, emitSearchBar, plainSized<350>, sized<50>};

} // namespace pozhil

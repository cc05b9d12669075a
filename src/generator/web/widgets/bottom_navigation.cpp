#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitBar(WidgetWriter& bar) {
    bar.block(R"(
{
    float winW = winWidth; float winH = winHeight;
    float navH = 64.0f; float navY = winH - navH;
    nvgBeginPath(vg);
    nvgRect(vg, 0, navY-4, winW, 4);
    nvgFillPaint(vg, nvgBoxGradient(vg, 0, navY-2, winW, navH, 0, 4, nvgRGBA(0,0,0,30), nvgRGBA(0,0,0,0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRect(vg, 0, navY, winW, navH);
    nvgFillColor(vg, $fill);
    nvgFill(vg);
)",
              {{"fill", byteColourText(colourProperty(bar.widget(), {"style_பின்னணி"}, "#FFFFFF"))}});
}

/// The items are told apart by where the pointer is. Which one is shown as selected is up to the program.
void emitPress(WidgetWriter& bar, std::size_t itemCount) {
    bar.block(R"(
    int itemCount = $count;
    float itemW = winW / (float)(itemCount > 0 ? itemCount : 1);
    int currentIndex = (int)$current;
    $read
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isNavClicked = ${isTopmost}g_mouseClicked && (my >= navY);
    if (isNavClicked) {
        int clickedIdx = (int)(mx / itemW);
        nvgBeginPath(vg);
        nvgCircle(vg, clickedIdx * itemW + itemW / 2, navY + navH / 2, 20);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 20));
        nvgFill(vg);
        if (clickedIdx >= 0 && clickedIdx < itemCount) {
            $handler
        }
    }
)",
              {{"isTopmost", bar.edition().layering().takesPress(bar.key(), {"0.0f", "winW", "navY", "winH"})},
               {"count", std::to_string(itemCount)},
               {"current", numberValue(bar, findProperty(bar.widget(), {"அடிப்பகுதிதேர்வு"}), 0.0F)},
               {"read", bar.blocks([&] {
                    bar.edition().writeStateRead(bar, {ControlState::Kind::Index, "currentIndex"});
                })},
               {"handler", changeOf(bar, {ControlState::Kind::Index, "clickedIdx"})}});
}

/// A picture that is loaded when the item is first drawn, paler while it isn't selected.
void emitIcon(WidgetWriter& bar, const WidgetNode& item) {
    const WidgetNode* icon = childOfKind(item, language::widget::IMAGE);
    const std::string path = icon == nullptr ? "" : textOf(findProperty(*icon, {"பாதை"}));
    if (path.empty()) {
        return;
    }
    const std::string file = bar.edition().literal(path);
    const std::string suffix = ".svg";
    const bool isDrawing =
        path.size() >= suffix.size() && path.compare(path.size() - suffix.size(), suffix.size(), suffix) == 0;
    bar.block(R"block(
        static int navImg_$m = -1;
        if (navImg_$m == -1) navImg_$m = $load;
        if (navImg_$m > 0) {
            nvgBeginPath(vg);
            nvgRect(vg, cX - 12, iconY - 12, 24, 24);
            nvgFillPaint(vg, nvgImagePattern(vg, cX - 12, iconY - 12, 24, 24, 0.0f, navImg_$m, isSelected ? 1.0f : 0.5f));
            nvgFill(vg);
        }
)block",
              {{"m", bar.partNumber()},
               {"load", isDrawing ? "loadSVGImage(vg, " + file + ", 24, 24)" : "nvgCreateImage(vg, " + file + ", 0)"}});
}

void emitItem(WidgetWriter& bar, const WidgetNode& item, std::size_t index) {
    const WidgetNode* label = childOfKind(item, language::widget::TEXT);
    bar.block(R"(
    {
        float iX = $i * itemW; float cX = iX + itemW / 2;
        float iconY = navY + 18.0f; float textY = navY + 44.0f;
        bool isSelected = ($i == currentIndex);
        std::string htmlColor = isSelected ? "#2196F3" : "#757575";
        $icon
        drawFixedText(cX, textY, $label, htmlColor.c_str(), 11.0f, "center");
    }
)",
              {{"i", std::to_string(index)},
               {"icon", Filling([&] { emitIcon(bar, item); })},
               {"label", textArgument(bar, findProperty(label == nullptr ? item : *label, {"உரை"}))}});
}

/// அடிப்பகுதி: a bar at the bottom of the window whose items have icons and labels.
void emitBottomNavigation(WidgetWriter& bar) {
    const auto items = childrenOfKind(bar.widget(), language::widget::BOTTOM_NAVIGATION_ITEM);
    emitBar(bar);
    emitPress(bar, items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        emitItem(bar, *items[i], i);
    }
    bar.block("}\n");
}

} // namespace

extern const WidgetKind BOTTOM_NAVIGATION = {language::widget::BOTTOM_NAVIGATION, emitBottomNavigation};

} // namespace pozhil

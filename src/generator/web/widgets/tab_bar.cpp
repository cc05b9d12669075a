#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

ControlState selectedTab() {
    return {ControlState::Kind::Index, "curTabIdx"};
}

/// The tab that is selected before the first press, as a whole number of the emitted text.
Filling initialIndex(WidgetWriter& bar) {
    const Expression* given = findProperty(bar.widget(), {"தத்தல்_தேர்வு"});
    const std::optional<float> constant = given == nullptr ? 0.0F : constantOf(given);
    if (constant) {
        return std::to_string(static_cast<int>(*constant));
    }
    return Filling(std::vector<Filling>{"(int)", numberValue(bar, given, 0.0F)});
}

void emitBar(WidgetWriter& bar) {
    bar.block(R"(
{
    float tbX = $x; float tbY = $y;
    float tbW = winWidth; float tbH = 50.0f;
    $state; int& curTabIdx = curTabIdx_$n;
    nvgBeginPath(vg);
    nvgRect(vg, tbX, tbY, tbW, tbH);
    nvgFillColor(vg, $fill);
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRect(vg, tbX, tbY+tbH, tbW, 6);
    nvgFillPaint(vg, nvgBoxGradient(vg, tbX, tbY+tbH-2, tbW, 6, 0, 6, nvgRGBA(0,0,0,30), nvgRGBA(0,0,0,0)));
    nvgFill(vg);
)",
              {{"state", bar.state("int", "curTabIdx_" + bar.number(), initialIndex(bar))},
               {"fill", byteColourText(colourProperty(bar.widget(), {"style_பின்னணி"}, "#2196F3"))}});
}

void emitPress(WidgetWriter& bar, std::size_t tabCount) {
    bar.block(R"(
    int tabCount = $count;
    float tabW = tbW / (float)(tabCount > 0 ? tabCount : 1);
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    if (${isTopmost}g_mouseClicked && mx >= tbX && mx <= tbX + tbW && my >= tbY && my <= tbY + tbH) {
        int clickedTab = (int)((mx - tbX) / tabW);
        nvgBeginPath(vg);
        nvgCircle(vg, tbX + clickedTab * tabW + tabW / 2, tbY + tbH / 2, 20);
        nvgFillColor(vg, nvgRGBA(255, 255, 255, 30));
        nvgFill(vg);
        if (clickedTab >= 0 && clickedTab < tabCount) {
            curTabIdx = clickedTab;
            $handler
        }
    }
    nvgBeginPath(vg);
    nvgRect(vg, tbX + curTabIdx * tabW, tbY + tbH - 3.0f, tabW, 3);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
)",
              {{"isTopmost", bar.edition().layering().takesPress(bar.key(), {"tbX", "tbX + tbW", "tbY", "tbY + tbH"})},
               {"count", std::to_string(tabCount)},
               {"handler", changeOf(bar, selectedTab())}});
}

void emitTab(WidgetWriter& bar, const WidgetNode& tab, std::size_t index) {
    const Expression* own = findProperty(tab, {"உரை"});
    const WidgetNode* label = childOfKind(tab, language::widget::TEXT);
    bar.block(R"(
    {
        float tx = tbX + $i * tabW + tabW / 2; float ty = tbY + tbH / 2;
        bool isSelected = ($i == curTabIdx);
        std::string tColor = isSelected ? "#FFFFFF" : "#E0E0E0";
        float fontSize = isSelected ? 15.0f : 14.0f;
        drawFixedText(tx, ty, $label, tColor.c_str(), fontSize, "center");
    }
)",
              {{"i", std::to_string(index)},
               {"label", textArgument(bar, own == nullptr && label != nullptr ? findProperty(*label, {"உரை"}) : own)}});
}

/// தத்தல்: a bar of tabs across the window.
void emitTabBar(WidgetWriter& bar) {
    const auto tabs = childrenOfKind(bar.widget(), language::widget::TAB_ITEM);
    emitBar(bar);
    bar.edition().writeStateRead(bar, selectedTab());
    emitPress(bar, tabs.size());
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        emitTab(bar, *tabs[i], i);
    }
    bar.block(bar.isAtTop() ? "}\n" : "    $y += tbH;\n}\n");
}

} // namespace

extern const WidgetKind TAB_BAR = {language::widget::TAB_BAR, emitTabBar, fixed<0>, fixed<50>};

} // namespace pozhil

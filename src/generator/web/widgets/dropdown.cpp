#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/press_handler.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

#include <algorithm>

namespace pozhil {
namespace {

bool isText(const ExpressionPtr& value) {
    return nodeCast<StringLiteral>(value.get()) != nullptr;
}

void emitItems(WidgetWriter& dropdown) {
    dropdown.block("    std::vector<std::string> items;\n");
    const Expression* choices = findProperty(dropdown.widget(), {"பட்டியல்"});
    const auto* list = nodeCast<ListLiteral>(choices);
    if (choices == nullptr) {
        return;
    }
    if (list == nullptr || !std::all_of(list->elements.begin(), list->elements.end(), isText)) {
        dropdown.edition().writeChoices(dropdown, *choices);
        return;
    }
    for (const ExpressionPtr& element : list->elements) {
        dropdown.block("    items.push_back($item);\n", {{"item", dropdown.edition().literal(textOf(element.get()))}});
    }
}

ControlState stateOf(const WidgetWriter& dropdown) {
    return {ControlState::Kind::Choice, "selectedIndex_" + dropdown.number()};
}

void emitState(WidgetWriter& dropdown) {
    dropdown.block(R"(
{
    float ddX = std::floor($x); float ddY = std::floor($y);
    float ddW = 200.0f; float ddH = 40.0f;
)");
    emitOwnSize(dropdown, "ddW", "ddH");
    dropdown.block(R"(
    ddW = responsiveW(ddW, winWidth, 0.0f);
    $isOpen; $selectedIndex;
)",
                   {{"isOpen", dropdown.state("bool", "isOpen_" + dropdown.number(), "false")},
                    {"selectedIndex", dropdown.state("int", "selectedIndex_" + dropdown.number(), "-1")}});
    emitItems(dropdown);
    dropdown.edition().writeStateRead(dropdown, stateOf(dropdown));
    dropdown.block(R"(
    std::string displayFilter = "தேர்ந்தெடு...";
    if (selectedIndex_$n >= 0 && selectedIndex_$n < (int)items.size()) displayFilter = items[selectedIndex_$n];
    bool isClicked = false;
)");
    if (!isDisabled(dropdown.widget())) {
        emitPressArea(dropdown, {"ddX", "ddX + ddW", "ddY", "ddY + ddH"},
                      dropdown.blocks([&] { dropdown.block("isClicked = true;\nisOpen_$n = !isOpen_$n;\n"); }));
    }
}

void emitBox(WidgetWriter& dropdown) {
    dropdown.block(R"(
    nvgBeginPath(vg);
    nvgRoundedRect(vg, ddX, ddY, ddW, ddH, 6);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
    nvgStrokeColor(vg, isOpen_$n ? nvgRGBA(33, 150, 243, 255) : nvgRGBA(200, 200, 200, 255));
    nvgStrokeWidth(vg, isOpen_$n ? 2.0f : 1.5f);
    nvgStroke(vg);
    drawFixedText(ddX + 15, ddY + (ddH/2) - 8, displayFilter.c_str(), "#333333", 16.0, "left");
    float arrowX = ddX + ddW - 20;
    float arrowY = ddY + ddH / 2;
    nvgBeginPath(vg);
    nvgMoveTo(vg, arrowX - 5, arrowY - 3);
    nvgLineTo(vg, arrowX, arrowY + 3);
    nvgLineTo(vg, arrowX + 5, arrowY - 3);
    nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
    nvgStrokeWidth(vg, 2);
    nvgLineCap(vg, NVG_ROUND);
    nvgStroke(vg);
)");
}

/// The menu stands above the shapes of the page. Its closure has copies of where the pointer is and whether the box was
/// clicked, but its assignments reach the static locals.
void emitMenu(WidgetWriter& dropdown) {
    const Layering& layers = dropdown.edition().layering();
    dropdown.block(R"(
    if (isOpen_$n) {
        $declared
        g_overlays.push_back([=]() mutable {
            $begun
            float itemH = 40.0f;
            float menuH = itemH * items.size();
            float menuY = ddY + ddH + 4;
            nvgBeginPath(vg);
            nvgRoundedRect(vg, ddX, menuY, ddW, menuH, 6);
            nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
            nvgFill(vg);
            nvgStrokeColor(vg, nvgRGBA(220, 220, 220, 255));
            nvgStrokeWidth(vg, 1);
            nvgStroke(vg);
            for (int i = 0; i < (int)items.size(); i++) {
                float curY = menuY + i * itemH;
                bool isItemHover = ${isOnTop}mx >= ddX && mx <= ddX + ddW && my >= curY && my < curY + itemH;
                if (isItemHover) {
                    nvgBeginPath(vg);
                    nvgRect(vg, ddX, curY, ddW, itemH);
                    nvgFillColor(vg, nvgRGBA(240, 240, 240, 255));
                    nvgFill(vg);
                    pozhil_pointer_cursor();
                    if (g_mouseClicked) {
                        selectedIndex_$n = i;
                        isOpen_$n = false;
                        $handler
                    }
                }
                drawFixedText(ddX + 15, curY + itemH/2 - 8, items[i].c_str(), i == selectedIndex_$n ? "#2196F3" : "#333333", 16.0, "left");
            }
            bool isMenuHover = mx >= ddX && mx <= ddX + ddW && my >= menuY && my <= menuY + menuH;
            if (${isOnTop}g_mouseClicked && !isClicked && !isMenuHover) isOpen_$n = false;
        });
    }
)",
                   {{"declared", layers.declaredMenu(dropdown.key())},
                    {"begun", layers.begunMenu()},
                    {"isOnTop", layers.isMenuOnTop()},
                    {"handler", changeOf(dropdown, stateOf(dropdown))}});
}

/// கீழ்வரி: a box that opens a menu to choose from.
void emitDropdown(WidgetWriter& dropdown) {
    emitState(dropdown);
    emitBox(dropdown);
    if (!isDisabled(dropdown.widget())) {
        emitMenu(dropdown);
    }
    dropdown.block("}\n");
}

} // namespace

extern const WidgetKind DROPDOWN = {language::widget::DROPDOWN, emitDropdown, plainSized<200>, fixed<40>};

} // namespace pozhil

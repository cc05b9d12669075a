#include "generator/web/write/press_handler.h"

#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

/// A widget is drawn for the frame of the click; a snack bar is a function that shows it.
bool isDrawnInPlace(const Expression* handler) {
    const WidgetNode* drawn = asWidget(handler);
    return drawn != nullptr && dynamic_cast<const SnackBarNode*>(drawn) == nullptr;
}

} // namespace

Filling handlerCall(WidgetWriter& widget, const Expression* handler, HandlerSite site) {
    return widget.blocks([&widget, handler, site] { writeHandlerCall(widget, handler, site); });
}

void writeHandlerCall(WidgetWriter& widget, const Expression* handler, HandlerSite site) {
    if (isDrawnInPlace(handler)) {
        widget.slot(*asWidget(handler), "0.0f", "0.0f");
    } else {
        widget.edition().writeHandler(widget, *handler, site);
    }
}

Filling changeOf(WidgetWriter& control, const ControlState& state) {
    return control.blocks([&control, state] { control.edition().writeChange(control, state); });
}

bool isDisabled(const WidgetNode& widget) {
    return findProperty(widget, {"செயலிழப்பு"}) != nullptr;
}

void emitPressArea(WidgetWriter& widget, const PressArea& area, const Filling& press) {
    widget.block(
        R"(
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHover = ${isTopmost}mx >= $left && mx <= $right && my >= $top && my <= $bottom;
    if (isHover) {
        pozhil_pointer_cursor();
        if (g_mouseClicked) {
            $press
        }
    }
)",
        {{"isTopmost", widget.edition().layering().takesPress(widget.key(), area)},
         {"left", area.left},
         {"right", area.right},
         {"top", area.top},
         {"bottom", area.bottom},
         {"press", press}});
}

bool takesPresses(const WidgetNode& widget) {
    return findProperty(widget, {"அழுத்தினால்"}) != nullptr || !widget.eventStatements.empty();
}

Filling pressHandler(WidgetWriter& widget) {
    if (const Expression* handler = findProperty(widget.widget(), {"அழுத்தினால்"})) {
        return handlerCall(widget, handler);
    }
    const StatementList& statements = widget.widget().eventStatements;
    if (statements.empty()) {
        return "";
    }
    return widget.blocks([&widget, &statements] { widget.edition().writeHandlerStatements(widget, statements); });
}

} // namespace pozhil

#include "generator/web/write/press_handler.h"

#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

/// A widget is drawn for the frame of the click; a snack bar is a function that shows it.
bool isDrawnInPlace(const Expression* handler) {
    const WidgetNode* drawn = asWidget(handler);
    return drawn != nullptr && dynamic_cast<const SnackBarNode*>(drawn) == nullptr;
}

/// \p lines, outlived by the page whatever they throw. A call that stands in place of a function has run, and may have
/// thrown, by the time its value is there.
Filling guarded(WidgetWriter& widget, const Filling& lines) {
    return widget.blocks([&widget, lines] {
        widget.block("try {\n    $lines\n} catch (...) {\n}\n", {{"lines", lines}});
    });
}

} // namespace

Filling handlerCall(WidgetWriter& widget, const Expression* handler) {
    if (isDrawnInPlace(handler)) {
        return widget.blocks([&widget, handler] { widget.child(*asWidget(handler), "0.0f", "0.0f"); });
    }
    return guarded(widget, widget.blocks([&widget, handler] {
        widget.block(R"(
std::any callback = $handler;
try {
    if (callback.type() == typeid(std::function<std::any()>)) {
        std::any_cast<std::function<std::any()>>(callback)();
    }
} catch (...) {
}
)",
                     {{"handler", widget.expression(handler)}});
    }));
}

Filling changeHandler(WidgetWriter& widget) {
    const Expression* handler = findProperty(widget.widget(), {"மாறியதால்"});
    return handler == nullptr ? Filling("") : handlerCall(widget, handler);
}

Filling pressValue(WidgetWriter& widget) {
    const Expression* handler = findProperty(widget.widget(), {"அழுத்தினால்"});
    if (handler == nullptr) {
        return "";
    }
    if (isDrawnInPlace(handler)) {
        return handlerCall(widget, handler);
    }
    return guarded(widget, widget.blocks([&widget, handler] {
        widget.block("std::any callback = $handler;\n", {{"handler", widget.expression(handler)}});
    }));
}

bool isDisabled(const WidgetNode& widget) {
    return findProperty(widget, {"செயலிழப்பு"}) != nullptr;
}

void emitPressArea(WidgetWriter& widget, const PressArea& area, const Filling& press) {
    widget.block(
        R"(
    float mx = pozhil_mouse_x();
    float my = pozhil_mouse_y();
    bool isHover = mx >= $left && mx <= $right && my >= $top && my <= $bottom;
    if (isHover) {
        pozhil_pointer_cursor();
        if (g_mouseClicked) {
            $press
        }
    }
)",
        {{"left", area.left}, {"right", area.right}, {"top", area.top}, {"bottom", area.bottom}, {"press", press}});
}

Filling pressHandler(WidgetWriter& widget) {
    if (const Expression* handler = findProperty(widget.widget(), {"அழுத்தினால்"})) {
        return handlerCall(widget, handler);
    }
    const StatementList& statements = widget.widget().eventStatements;
    if (statements.empty()) {
        return "";
    }
    return guarded(widget, widget.statements(statements));
}

} // namespace pozhil

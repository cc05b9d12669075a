#include "generator/web/press_handler.h"

#include "generator/web/widget_writer.h"

namespace pozhil {

Filling handlerCall(const WidgetWriter& widget, const Expression* handler) {
    const WidgetNode* drawn = asWidget(handler);
    if (drawn != nullptr && dynamic_cast<const SnackBarNode*>(drawn) == nullptr) {
        return widget.blocks([&widget, drawn] { widget.child(*drawn, "0.0f", "0.0f"); });
    }
    return widget.blocks([&widget, handler] {
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
    });
}

Filling pressHandler(const WidgetWriter& widget) {
    if (const Expression* handler = findProperty(widget.widget(), {"அழுத்தினால்"})) {
        return handlerCall(widget, handler);
    }
    const StatementList& statements = widget.widget().eventStatements;
    if (statements.empty()) {
        return "";
    }
    return widget.blocks([&widget, &statements] {
        widget.block(R"(
try {
    $statements
} catch (...) {
}
)",
                     {{"statements", widget.statements(statements)}});
    });
}

} // namespace pozhil

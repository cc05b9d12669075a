/// What every widget gets before and behind its own block, and widgets that stand outside a page.

#include "generator/first/generator.h"
#include "generator/web/page/widget_table.h"
#include "generator/web/widgets/overlay.h"
#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

/// Where scrolling finds the widget.
void emitPosition(const WidgetWriter& writer) {
    for (const auto& [name, value] : writer.widget().properties) {
        if (name == "அடையாளம்" || name == "ID" || name == "id") {
            writer.block(R"(
{
    std::string _wid = fn_any_to_string($id);
    if (!_wid.empty()) { g_widgetPositions[_wid] = {(float)($x), (float)($y)}; }
}
)",
                         {{"id", writer.expression(value.get())}});
            return;
        }
    }
}

/// The variable that shows and hides the widget; empty if none does.
std::string visibilityName(const WidgetNode& widget) {
    const auto* name = nodeCast<StringLiteral>(findProperty(widget, {"காட்சி_பெயர்"}));
    return name == nullptr ? "" : name->value;
}

/// Opens the visibility check. A dialog waits until its variable says so; anything else is there until it says no.
void emitVisibilityCheck(const WidgetWriter& writer, const std::string& name) {
    writer.block(R"(
// --- Visibility Check for: $name ---
g_alert_names.insert("$name");
)",
                 {{"name", name}});
    if (writer.widget().kind == "எச்சரிக்கை") {
        writer.block(R"(
if (global_vars.count("$name") && global_vars["$name"].type() == typeid(bool) && std::any_cast<bool>(global_vars["$name"]) == true) {
)",
                     {{"name", name}});
    } else {
        writer.block(R"(
if (global_vars.find("$name") == global_vars.end() || (global_vars["$name"].type() == typeid(bool) && std::any_cast<bool>(global_vars["$name"]) == true)) {
)",
                     {{"name", name}});
    }
}

} // namespace

/// Unrolls \p widget and all below it into the frame function, with its corner where \p x and \p y tell.
void Generator::generateWidgetCode(const WidgetNode* widget, const std::string& x, const std::string& y) {
    const WidgetWriter writer(*this, *widget, x, y, ++widgetCount_);
    emitPosition(writer);
    const std::string name = visibilityName(*widget);
    if (!name.empty()) {
        emitVisibilityCheck(writer, name);
    }
    if (const WidgetEmitter emit = findWidgetEmitter(widget->kind)) {
        // A function of its own: WebAssembly takes no function with as many locals as a large page would need.
        writer.block("[&] { // $kind\n", {{"kind", widget->kind}});
        emit(writer);
        writer.block("}();\n");
    }
    if (!name.empty()) {
        writer.block("} // End Visibility Check for $name\n", {{"name", name}});
    }
}

/// A widget as a statement of its own, outside any page: a text is drawn once, a column passes over to its children.
void Generator::visitWidgetNode(const WidgetNode* node) {
    if (node->kind == "உரை") {
        const WidgetWriter writer(*this, *node, "50", "50", 0);
        const Expression* text = findProperty(*node, {"உரை"});
        const Filling content = text == nullptr ? Filling("std::string()") : writer.expression(text);
        out_ << "#ifdef __EMSCRIPTEN__\n";
        writer.block("drawFixedText($x, $y, fn_any_to_string($text), \"black\", 20.0, \"left\");\n",
                     {{"text", content}});
        out_ << "#endif\n";
    } else if (node->kind == "நெடுவரிசை") {
        for (const StatementPtr& child : node->children) {
            visitStatement(child.get());
        }
    }
}

/// A widget of any class as a statement of its own.
bool Generator::visitWidgetStatement(const Statement* statement) {
    const WidgetNode* widget = asWidget(statement);
    if (widget != nullptr) {
        visitWidgetNode(widget);
    }
    return widget != nullptr;
}

/// A widget where a value is expected.
void Generator::visitWidgetExpression(const WidgetExpression* node) {
    const WidgetNode& widget = *node->widget;
    if (dynamic_cast<const SnackBarNode*>(&widget) != nullptr) {
        emitSnackBarFunction(WidgetWriter(*this, widget, "0.0f", "0.0f", ++widgetCount_));
    } else {
        generateWidgetCode(&widget, "0.0f", "0.0f");
    }
}

} // namespace pozhil

/// What every widget gets before and after its own block, and widgets that stand outside a page.

#include "generator/web/page/widget_frame.h"

#include "generator/web/page/widget_table.h"
#include "generator/web/widgets/snack_bar.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// Where scrolling finds the widget.
void emitPosition(WidgetWriter& writer) {
    for (const auto& [name, value] : writer.widget().properties) {
        if (name == "அடையாளம்" || name == "ID" || name == "id") {
            writer.block(R"(
{
    std::string _wid = $id;
    if (!_wid.empty()) { g_widgetPositions[_wid] = {(float)($x), (float)($y)}; }
}
)",
                         {{"id", writer.edition().text(value.get(), "")}});
            return;
        }
    }
}

/// Opens the visibility check.
void emitVisibilityCheck(WidgetWriter& writer, const Visibility& visibility) {
    writer.block(R"(
// --- Visibility Check for: $name ---
g_alert_names.insert($literal);
if ($condition) {
)",
                 {{"name", writer.edition().inComment(visibility.name)},
                  {"literal", writer.edition().literal(visibility.name)},
                  {"condition", visibility.condition}});
}

} // namespace

WidgetFrame::WidgetFrame(CodeWriter& out, EditionWriter& edition)
    : WidgetContext(out, edition), metrics_(findWidgetKind, edition) {}

void WidgetFrame::writeWidget(const WidgetNode& widget, const std::string& x, const std::string& y) {
    const CodeWriter::For origin(out(), &widget);
    WidgetWriter writer(*this, widget, x, y, nextNumber());
    emitPosition(writer);
    const std::optional<Visibility> visibility = edition().visibility(widget);
    if (visibility) {
        emitVisibilityCheck(writer, *visibility);
    }
    const OfferedRoom* const room = metrics_.offeredTo(widget);
    if (room != nullptr) {
        writer.block("{\nconst PozhilRoom room($width, $imposed);\n",
                     {{"width", room->width}, {"imposed", room->imposed}});
    }
    const WidgetKind* kind = findWidgetKind(widget.kind);
    if (kind != nullptr && kind->block != nullptr) {
        // A function of its own: WebAssembly takes no function with as many locals as a large page would need.
        writer.block("pozhil_draw([&] { // $kind\n", {{"kind", widget.kind}});
        edition().writeDisabling(writer);
        kind->block(writer);
        writer.block("});\n");
    }
    if (room != nullptr) {
        writer.block("}\n");
    }
    if (visibility) {
        writer.block("} // End Visibility Check for $name\n", {{"name", edition().inComment(visibility->name)}});
    }
}

void WidgetFrame::writeWidgetStatement(const WidgetNode& widget) {
    if (widget.kind == language::widget::TEXT) {
        WidgetWriter writer(*this, widget, "50", "50", 0);
        const Expression* text = findProperty(widget, {"உரை"});
        out() << "#ifdef __EMSCRIPTEN__\n";
        writer.block("drawFixedText($x, $y, $text, \"black\", 20.0, \"left\");\n",
                     {{"text", edition().text(text, "std::string()")}});
        out() << "#endif\n";
    } else if (widget.kind == language::widget::COLUMN) {
        for (const StatementPtr& child : widget.children) {
            edition().writeStatement(child.get());
        }
    }
}

void WidgetFrame::writeWidgetValue(const WidgetNode& widget) {
    if (dynamic_cast<const SnackBarNode*>(&widget) != nullptr) {
        WidgetWriter bar(*this, widget, "0.0f", "0.0f", nextNumber());
        emitSnackBarFunction(bar);
    } else {
        writeWidget(widget, "0.0f", "0.0f");
    }
}

} // namespace pozhil

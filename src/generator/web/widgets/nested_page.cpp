#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// பக்கம் inside a page: drawn while it is the page being shown.
void emitNestedPage(WidgetWriter& page) {
    const std::string name = pageNameIn(page.widget());
    const Filling children = page.blocks([&] {
        page.eachChild(childWidgets(page.widget()),
                       [&](const WidgetNode& child) { page.child(child, "0.0f", "0.0f"); });
    });
    page.block(
        R"(
// --- Page: $name ---
if (g_currentPage == $literal) {
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, winWidth, winHeight);
    nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));
    nvgFill(vg);
    $shield
    $children
}
)",
        {{"name", page.edition().inComment(name)},
         {"literal", page.edition().literal(name)},
         {"shield", page.edition().layering().shieldsPage()},
         {"children", children}});
}

} // namespace

extern const WidgetKind NESTED_PAGE = {language::widget::PAGE, emitNestedPage, nullptr, nullptr, roomOfWindow};

} // namespace pozhil

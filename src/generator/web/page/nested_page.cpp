#include "generator/web/page/nested_page.h"

#include "generator/web/write/widget_writer.h"

namespace pozhil {

void emitNestedPage(WidgetWriter& page) {
    const auto* name = nodeCast<StringLiteral>(findProperty(page.widget(), {"பக்கம்"}));
    const Filling children = page.blocks([&] {
        page.eachChild(childWidgets(page.widget()),
                       [&](const WidgetNode& child) { page.child(child, "0.0f", "0.0f"); });
    });
    page.block(R"(
// --- Page: $name ---
if (g_currentPage == "$name") {
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, winWidth, winHeight);
    nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));
    nvgFill(vg);
    $children
}
)",
               {{"name", name == nullptr ? "home" : name->value}, {"children", children}});
}

} // namespace pozhil

#include "generator/second/literals.h"
#include "generator/second/pages/page_edition.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/text_value.h"
#include "generator/web/write/widget_properties.h"
#include "generator/web/write/widget_writer.h"
#include "language/property_words.h"
#include "language/second/widgets.h"
#include "language/widget_words.h"

namespace pozhil::resolved::writer {

namespace property = language::property;

bool PageEdition::wraps(const WidgetNode& widget) const {
    return widget.kind == language::widget::TEXT && isTrue(findProperty(widget, {property::WRAP.data()}));
}

std::string PageEdition::wrappedText(const WidgetNode& text, const std::string& shown) {
    const std::string room = "pozhil_room_width";
    const std::string given = sizeText(findProperty(text, {property::WIDTH.data()}), room);
    return "page::wrapped(" + shown + ", " + (given.empty() ? room + ", false" : given + ", true") +
           ", responsiveTextSize(" + floatConstant(fontSizeOf(text.style)) + ", winWidth), " +
           textLiteral(weightOf(text.style)) + ", " + textLiteral(text.style.font) + ")";
}

Extent PageEdition::wrappedSize(const WidgetNode& text, const char* side) {
    const pozhil::Expression* shown = findProperty(text, {property::TEXT.data()});
    if (const WidgetNode* inner = asWidget(shown)) {
        shown = findProperty(*inner, {property::TEXT.data()});
    }
    return Extent::computed("page::measured([&] { return " + wrappedText(text, shownBy(shown, "std::string()")) + "." +
                            side + "; })");
}

void PageEdition::writePageSettings(WidgetWriter& page) {
    if (textOf(findProperty(page.widget(), {language::second::TEXT_SCALE.data()})) == language::second::STEADY_TEXTS) {
        page.block("    page::leastTextScale = 1.0f;\n");
    }
}

} // namespace pozhil::resolved::writer

#include "generator/web/widget_table.h"

#include "generator/web/button.h"
#include "generator/web/input.h"
#include "generator/web/layout.h"
#include "generator/web/nested_page.h"
#include "generator/web/text.h"

#include <algorithm>
#include <iterator>

namespace pozhil {
namespace {

struct WidgetKind {
    std::string_view kind;
    WidgetEmitter emit;
};

constexpr WidgetKind WIDGET_KINDS[] = {
    {"உரை", emitText},
    {"விரிவாக்கம்", emitFlexWrapper},
    {"நெகிழ்வு", emitFlexWrapper},
    {"வெற்றிடம்", emitFlexSpacer},
    {"பொத்தான்", emitButton},
    {"பக்கம்", emitNestedPage},
    {"இவெ", emitGap},
    {"அடுக்கி", emitStack},
    {"நெடுவரிசை", emitColumn},
    {"கிடைவரிசை", emitRow},
    {"தேடல்_பட்டை", emitSearchBar},
    {"தேடுபொறி", emitSearchBar},
    {"மடிப்பு", emitWrap},
    {"உள்_இவெ", emitPadding},
    {"உரைபொத்தான்", emitTextButton},
    {"உரைபெட்டி", emitTextField},
    {"கடவுமறை", emitHtmlInput},
};

} // namespace

WidgetEmitter findWidgetEmitter(std::string_view kind) {
    const auto* found = std::find_if(std::begin(WIDGET_KINDS), std::end(WIDGET_KINDS),
                                     [&](const WidgetKind& entry) { return entry.kind == kind; });
    return found == std::end(WIDGET_KINDS) ? nullptr : found->emit;
}

} // namespace pozhil

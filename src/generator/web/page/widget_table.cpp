#include "generator/web/page/widget_table.h"

#include "generator/web/layout/layout.h"
#include "generator/web/layout/lists.h"
#include "generator/web/page/nested_page.h"
#include "generator/web/widgets/box.h"
#include "generator/web/widgets/button.h"
#include "generator/web/widgets/controls.h"
#include "generator/web/widgets/indicators.h"
#include "generator/web/widgets/input.h"
#include "generator/web/widgets/media.h"
#include "generator/web/widgets/navigation.h"
#include "generator/web/widgets/overlay.h"
#include "generator/web/widgets/text.h"

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
    {"தேர்வுபெட்டி", emitCheckbox},
    {"வட்டத்தேர்வு", emitRadio},
    {"மாற்றி", emitSwitch},
    {"அளவி", emitSlider},
    {"கீழ்வரி", emitDropdown},
    {"படம்", emitImage},
    {"வட்டபடம்", emitAvatar},
    {"பிரிப்பான்", emitDivider},
    {"அட்டை", emitCard},
    {"சுழல்_காட்டி", emitSpinner},
    {"முன்னேற்றவரி", emitProgressBar},
    {"தகவல்பட்டை", emitInfoPill},
    {"எச்சரிக்கை", emitDialog},
    {"அடிப்பகுதி", emitBottomNavigation},
    {"தத்தல்", emitTabBar},
    {"பக்கம்", emitNestedPage},
    {"இவெ", emitGap},
    {"அடுக்கி", emitStack},
    {"நெடுவரிசை", emitColumn},
    {"கிடைவரிசை", emitRow},
    {"தேடல்_பட்டை", emitSearchBar},
    {"தேடுபொறி", emitSearchBar},
    {"மடிப்பு", emitWrap},
    {"பெட்டி", emitContainer},
    {"பட்டியல்_காட்சி", emitListView},
    {"கட்டம்_காட்சி", emitGridView},
    {"உள்_இவெ", emitPadding},
    {"உரைபொத்தான்", emitTextButton},
    {"உரைபெட்டி", emitTextField},
    {"பட்டியல்_உருப்படி", emitListTile},
    {"கடவுமறை", emitHtmlInput},
    {"அறிவிப்பு_பட்டை", emitSnackBar},
};

} // namespace

WidgetEmitter findWidgetEmitter(std::string_view kind) {
    const auto* found = std::find_if(std::begin(WIDGET_KINDS), std::end(WIDGET_KINDS),
                                     [&](const WidgetKind& entry) { return entry.kind == kind; });
    return found == std::end(WIDGET_KINDS) ? nullptr : found->emit;
}

} // namespace pozhil

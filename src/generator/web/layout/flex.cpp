#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// விரிவாக்கம், நெகிழ்வு: the child alone; its share of the space is the parent's doing.
void emitFlexWrapper(WidgetWriter& wrapper) {
    const auto children = childWidgets(wrapper.widget());
    if (!children.empty()) {
        wrapper.slot(*children.front(), wrapper.x(), wrapper.y());
    }
}

/// வெற்றிடம்: nothing; its share of the space is the parent's doing.
void emitFlexSpacer(WidgetWriter&) {}

} // namespace

extern const WidgetKind EXPANDED = {language::widget::EXPANDED, emitFlexWrapper, firstChild, firstChild, sameRoom};
extern const WidgetKind FLEXIBLE = {language::widget::FLEXIBLE, emitFlexWrapper, firstChild, firstChild, sameRoom};
extern const WidgetKind FREE_SPACE = {language::widget::SPACER, emitFlexSpacer, fixed<0>, plainSized<0>};

} // namespace pozhil

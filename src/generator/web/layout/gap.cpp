#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// இவெ: nothing but the gap that the parent leaves.
void emitGap(WidgetWriter& gap) {
    gap.block("    // இவெ (Spacer) - Space reserved\n");
}

} // namespace

extern const WidgetKind GAP = {language::widget::GAP, emitGap, plainSized<0>, plainSized<0>};

} // namespace pozhil

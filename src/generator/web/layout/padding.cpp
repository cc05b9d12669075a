#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

/// How far its children stand from its edges.
float insetOf(const WidgetNode& padding) {
    return numberOf(findProperty(padding, {"அளவு"})).value_or(0.0F);
}

/// உள்_இவெ: space around its children.
void emitPadding(WidgetWriter& padding) {
    const float inset = insetOf(padding.widget());
    // A parent that places it by variables of the same names is read before they are hidden.
    const bool isInChild = padding.x() == "childX" || padding.y() == "childY";
    padding.block(isInChild ? "{\n    float outerX = $x; float outerY = $y;\n" : "{\n");
    padding.block(R"(
    float childX = $left + $inset; float childY = $top + $inset;
    $children
}
)",
                  {{"left", isInChild ? "outerX" : padding.x()},
                   {"top", isInChild ? "outerY" : padding.y()},
                   {"inset", floatConstant(inset)},
                   {"children", padding.blocks([&] {
                        padding.eachChild(childWidgets(padding.widget()),
                                          [&](const WidgetNode& child) { padding.child(child, "childX", "childY"); });
                    })}});
}

Extent paddingSize(const Measure& measure) {
    constexpr float BOTH_SIDES = 20.0F;
    const auto* padding = dynamic_cast<const PaddingNode*>(&measure.widget);
    return firstChild(measure) + (padding == nullptr ? BOTH_SIDES : 2 * padding->padding);
}

/// A width that is imposed goes on to its children as it is.
OfferedRoom paddingRoom(const Measure& measure, const WidgetNode& child) {
    OfferedRoom room = sameRoom(measure, child);
    room.width += " - " + floatConstant(2 * insetOf(measure.widget));
    return room;
}

} // namespace

extern const WidgetKind PADDING = {language::widget::PADDING, emitPadding, paddingSize, paddingSize, paddingRoom};
extern const WidgetKind PADDING_RECORD = {language::widget::PADDING_MISSPELT, nullptr, paddingSize, paddingSize};

} // namespace pozhil

#pragma once

namespace pozhil {

class WidgetWriter;

/// நெடுவரிசை: children one below the other.
void emitColumn(const WidgetWriter& column);

/// கிடைவரிசை: children side by side.
void emitRow(const WidgetWriter& row);

/// அடுக்கி: children one over the other.
void emitStack(const WidgetWriter& stack);

/// மடிப்பு: children side by side, in as many lines as it takes.
void emitWrap(const WidgetWriter& wrap);

/// உள்_இவெ: space around its children.
void emitPadding(const WidgetWriter& padding);

/// விரிவாக்கம், நெகிழ்வு: the child alone; its share of the space is the parent's doing.
void emitFlexWrapper(const WidgetWriter& wrapper);

/// வெற்றிடம்: nothing.
void emitFlexSpacer(const WidgetWriter& spacer);

/// இவெ: nothing but the gap that the parent leaves.
void emitGap(const WidgetWriter& gap);

} // namespace pozhil

#pragma once

namespace pozhil {

class WidgetWriter;

/// பிரிப்பான்: a line across.
void emitDivider(WidgetWriter& divider);

/// சுழல்_காட்டி: three quarters of a circle, turning.
void emitSpinner(WidgetWriter& spinner);

/// முன்னேற்றவரி: how much of something is done, or that it goes on.
void emitProgressBar(WidgetWriter& bar);

/// தகவல்பட்டை: a message that stays where it is.
void emitInfoPill(WidgetWriter& pill);

} // namespace pozhil

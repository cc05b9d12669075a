#pragma once

namespace pozhil {

class WidgetWriter;

/// எச்சரிக்கை: a dialog in the middle of the window, over everything else.
void emitDialog(const WidgetWriter& dialog);

/// அறிவிப்பு_பட்டை where a widget stands: nothing.
void emitSnackBar(const WidgetWriter& bar);

/// அறிவிப்பு_பட்டை where a value is expected: a function value that shows the bar when it is called.
void emitSnackBarFunction(const WidgetWriter& bar);

} // namespace pozhil

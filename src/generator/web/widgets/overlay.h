#pragma once

namespace pozhil {

class WidgetWriter;

/// எச்சரிக்கை: a dialog in the middle of the window, over everything else.
void emitDialog(WidgetWriter& dialog);

/// அறிவிப்பு_பட்டை where a widget stands: nothing.
void emitSnackBar(WidgetWriter& bar);

/// அறிவிப்பு_பட்டை where a value is expected: a function value that shows the bar when it is called.
void emitSnackBarFunction(WidgetWriter& bar);

} // namespace pozhil

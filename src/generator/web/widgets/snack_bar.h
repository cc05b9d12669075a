#pragma once

namespace pozhil {

class WidgetWriter;

/// அறிவிப்பு_பட்டை where a value is expected: a function value that shows the bar when it is called.
void emitSnackBarFunction(WidgetWriter& bar);

} // namespace pozhil

#pragma once

#include "generator/web/emitted_block.h"

namespace pozhil {

class WidgetWriter;
struct Expression;

/// Lines that call what the source gave as a handler, inside the test for the click; for a hole alone in its line.
/// A function value is called; a widget is drawn in place for that frame. What the handler throws is swallowed, so that
/// a page outlives it.
Filling handlerCall(const WidgetWriter& widget, const Expression* handler);

/// What a press does: அழுத்தினால், else the statements that the source wrote in its place.
Filling pressHandler(const WidgetWriter& widget);

} // namespace pozhil

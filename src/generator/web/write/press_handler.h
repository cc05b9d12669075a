#pragma once

#include "emit/emitted_block.h"
#include "generator/web/write/edition_writer.h"
#include "generator/web/write/layering.h"

namespace pozhil {

class WidgetWriter;
struct Expression;
struct WidgetNode;

/// Lines that do what the source gave as a handler, inside the test for the click; for a hole alone in its line. A widget
/// is drawn in place for that frame.
Filling handlerCall(WidgetWriter& widget, const Expression* handler, HandlerSite site = HandlerSite::Control);

/// The same where the text ends.
void writeHandlerCall(WidgetWriter& widget, const Expression* handler, HandlerSite site);

/// What a change of a control by the user does; for a hole alone in its line.
Filling changeOf(WidgetWriter& control, const ControlState& state);

/// Whether the widget is shown but answers nothing.
bool isDisabled(const WidgetNode& widget);

/// The test for the pointer in the rectangle, and what a click there does: lines for a hole alone in its line.
void emitPressArea(WidgetWriter& widget, const PressArea& area, const Filling& press);

/// Whether a press does anything.
bool takesPresses(const WidgetNode& widget);

/// What a press does: அழுத்தினால், else the statements that the source wrote in its place.
Filling pressHandler(WidgetWriter& widget);

} // namespace pozhil

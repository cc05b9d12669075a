#pragma once

namespace pozhil {

class WidgetWriter;

/// பொத்தான்: a filled button with centred text.
void emitButton(WidgetWriter& button);

/// உரைபொத்தான்: a text that can be pressed, without background or border.
void emitTextButton(WidgetWriter& button);

} // namespace pozhil

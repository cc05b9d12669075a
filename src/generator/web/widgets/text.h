#pragma once

namespace pozhil {

class WidgetWriter;

/// உரை: a line of text, which gets smaller until it fits.
void emitText(WidgetWriter& text);

} // namespace pozhil

#pragma once

#include <string_view>

namespace pozhil {

class WidgetWriter;

/// Writes the block of one widget.
using WidgetEmitter = void (*)(WidgetWriter&);

/// The emitter of the widgets that the source calls \p kind; null for a word that draws nothing.
WidgetEmitter findWidgetEmitter(std::string_view kind);

} // namespace pozhil

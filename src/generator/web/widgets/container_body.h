#pragma once

namespace pozhil {

class WidgetWriter;

/// பெட்டி without its children: place, shadow, fill, and what the pointer does. Opens the block of the box, in which
/// `boxX`, `boxY`, `boxW` and `boxH` are known; whoever calls it closes the block.
void emitContainerBody(WidgetWriter& box);

} // namespace pozhil

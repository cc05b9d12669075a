#pragma once

namespace pozhil {

class WidgetWriter;

/// பெட்டி: a decorated box that clips its children and places each of them by its own alignment.
void emitContainer(WidgetWriter& box);

/// அட்டை: a raised card with its children one below the other.
void emitCard(WidgetWriter& card);

} // namespace pozhil

#pragma once

namespace pozhil {

class WidgetWriter;

/// பட்டியல்_காட்சி: a scrolling list as large as the window.
void emitListView(WidgetWriter& list);

/// கட்டம்_காட்சி: children in rows of so many, fewer on a narrow window.
void emitGridView(WidgetWriter& grid);

/// பட்டியல்_உருப்படி: a row with a leading and a trailing widget and up to two lines between.
void emitListTile(WidgetWriter& tile);

} // namespace pozhil

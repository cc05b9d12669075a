#pragma once

namespace pozhil {

class WidgetWriter;

/// அடிப்பகுதி: a bar at the bottom of the window whose items have icons and labels.
void emitBottomNavigation(WidgetWriter& bar);

/// தத்தல்: a bar of tabs across the window.
void emitTabBar(WidgetWriter& bar);

} // namespace pozhil

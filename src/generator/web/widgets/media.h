#pragma once

namespace pozhil {

class WidgetWriter;

/// படம்: a picture from a file, stretched to its box; an animated one is played by the browser.
void emitImage(WidgetWriter& image);

/// வட்டபடம்: a round picture, or initials on a round background.
void emitAvatar(WidgetWriter& avatar);

} // namespace pozhil

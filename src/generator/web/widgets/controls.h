#pragma once

namespace pozhil {

class WidgetWriter;

/// தேர்வுபெட்டி: a box to tick, with a label beside it.
void emitCheckbox(WidgetWriter& box);

/// வட்டத்தேர்வு: one of a group of which one is selected.
void emitRadio(WidgetWriter& radio);

/// மாற்றி: a switch between on and off.
void emitSwitch(WidgetWriter& widget);

/// அளவி: a thumb to drag along a track.
void emitSlider(WidgetWriter& slider);

/// கீழ்வரி: a box that opens a menu to choose from.
void emitDropdown(WidgetWriter& dropdown);

} // namespace pozhil

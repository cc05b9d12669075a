#pragma once

#include <string_view>

namespace pozhil {

class WidgetWriter;

/// A child of a box that isn't drawn: the record of how the box looks.
constexpr std::string_view BOX_STYLE_KIND = "பெட்டி_பாணி";

/// பெட்டி without its children: place, shadow, fill, and what the pointer does. Opens the block of the box, in which
/// `boxX`, `boxY`, `boxW` and `boxH` are known; whoever calls it closes the block.
void emitContainerBody(WidgetWriter& box);

} // namespace pozhil

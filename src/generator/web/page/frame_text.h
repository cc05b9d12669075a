#pragma once

#include <string_view>

/// The parts of a web program that are the same for all pages: what each frame does before and behind the widgets, and
/// the start. They are blocks for writeBlock (emitted_block.h).
namespace pozhil::frame_text {

/// Sizes that follow the window, and the head of the frame function, up to the widgets.
extern const std::string_view HEAD;
/// The end of the frame function: overlays, the message bar, input fields that are no longer drawn.
extern const std::string_view TAIL;
/// main. Holes: width, height and title of the window, and the fontHost that the font of the page comes from.
extern const std::string_view MAIN;

} // namespace pozhil::frame_text

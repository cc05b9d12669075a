#pragma once

#include "emit/emitted_block.h"

/// Fixed texts of applications of the second edition, each the file of its name in text/, embedded by the build.
namespace pozhil::second_page_text {

/// What a page gives its program: window, message bar, fields, faults.
extern const Block page_functions;

/// How controls and the program know of each other: state that both hold, fields of the browser, what is disabled.
extern const Block page_controls;

/// What lies over what: whom a press reaches.
extern const Block page_layers;

/// Texts that wrap: where their lines end, remembered from frame to frame, and how they are drawn.
extern const Block page_wrapping;

/// What takes the program's variables over a reload. Holes: the rows of the variables, and how many they are.
extern const Block kept_state;

} // namespace pozhil::second_page_text

#pragma once

#include "generator/web/emitted_block.h"
#include "parser/syntax_tree.h"

namespace pozhil {

class WidgetWriter;

/// What a text shows, as an argument of fn_any_to_string: a variable's value is read anew in each frame.
///
/// \param value the expression that the source gave, null if it gave none
/// \param otherwise text of the program for a missing expression
Filling textValue(const WidgetWriter& widget, const Expression* value, const char* otherwise);

/// The size that a text style asks for, in pixels before it follows the window.
float fontSizeOf(const TextStyle& style);

} // namespace pozhil

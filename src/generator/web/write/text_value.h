#pragma once

#include "emit/emitted_block.h"
#include "parser/syntax_tree.h"

#include <string>

namespace pozhil {

class WidgetWriter;

/// What a widget shows in each frame, a std::string of the emitted program. A widget in place of a text shows its own.
///
/// \param value the expression that the source gave, null if it gave none
/// \param otherwise a std::string of the emitted program for a missing expression
Filling textValue(WidgetWriter& widget, const Expression* value, const char* otherwise);

/// A text as a `const char*` of the emitted program: what the source writes stands there as it is, anything else is read
/// anew in each frame. Nothing is the empty text.
Filling textArgument(WidgetWriter& widget, const Expression* value);

/// A number of the emitted program: a constant where the source writes one, else read anew in each frame; \p usual for
/// nothing.
Filling numberValue(WidgetWriter& widget, const Expression* value, float usual);

/// A truth value of the emitted program; what is neither true nor false counts as false.
Filling truthValue(WidgetWriter& widget, const Expression* value);

/// The size that a text style asks for, in pixels before it follows the window.
float fontSizeOf(const TextStyle& style);

/// The weight that a text is drawn with, as CSS writes it.
std::string weightOf(const TextStyle& style);

} // namespace pozhil

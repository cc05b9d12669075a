#pragma once

#include "generator/web/write/colours.h"
#include "parser/syntax_tree.h"

#include <string>

namespace pozhil {

/// The label of a button: what it says and how it looks.
struct ButtonLabel {
    /// Null when the source gives no text.
    const Expression* text;
    TextStyle style;
    Colour colour;
};

/// The label by the text among the button's children, else by the button's own properties.
ButtonLabel buttonLabel(const WidgetNode& button);

/// The typeface that the button is measured with. Any weight above 29 counts as bold, the usual 400 too.
std::string faceOf(const TextStyle& style);

} // namespace pozhil

#pragma once

#include "generator/web/write/colours.h"
#include "parser/syntax_tree.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace pozhil {

/// Properties that the compiler reads as constants. Of several names the first that the widget has counts.

/// A text; empty for anything else.
std::string textOf(const Expression* value);

/// The name that a page's header, or a page within a page, gives it; "home" if it gives none.
std::string pageNameIn(const WidgetNode& widget);

/// The file of a picture.
std::string pictureFile(const WidgetNode& picture);

/// Whether it is the word மெய்.
bool isTrue(const Expression* value);

/// The value of a whole number as the source writes it, with Tamil digits too; nothing for any other expression.
std::optional<float> numberOf(const Expression* expression);

/// A number as the source writes it: whole or with a fraction, with or without a minus. Nothing for anything else.
std::optional<float> constantOf(const Expression* value);

/// A number as a constant of the emitted text, \p usual for anything else.
std::string numberConstant(const WidgetNode& widget, std::initializer_list<const char*> names, float usual);

/// A colour, \p usual for anything that isn't one.
Colour colourProperty(const WidgetNode& widget, std::initializer_list<const char*> names, const char* usual);

} // namespace pozhil

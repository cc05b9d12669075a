#pragma once

#include "parser/syntax_tree.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace pozhil {

class EditionWriter;
class WidgetWriter;

/// The text of a size that the running page computes: pixels, percentages of \p base, choices between them, and what
/// \p edition computes. Empty for an expression that is none of these; the widget then keeps the size it has.
///
/// \param base text of the size that a percentage is taken of
std::string processPercentage(EditionWriter& edition, const Expression* expression, const std::string& base);

/// Assigns the first of the properties \p names to the emitted variable, if it is a size.
void emitGivenSize(WidgetWriter& widget, std::initializer_list<const char*> names, const char* variable,
                   const char* base);

/// Assigns \p size to the emitted variable, if it is one.
void emitSize(WidgetWriter& widget, const Expression* size, const char* variable, const char* base);

/// The size of a widget that has one of its own: what the source says, unless the parent imposes another.
///
/// \param width, height names of the emitted variables, which hold the usual size by now
void emitOwnSize(WidgetWriter& widget, const char* width, const char* height);
void emitOwnWidth(WidgetWriter& widget, const char* width);

/// Where an alignment puts content in the free space: x and y, each from -1 (left, top) over 0 (centre) to 1.
std::pair<float, float> getAlignmentCoords(சீரமைப்பு_வகை alignment);

} // namespace pozhil

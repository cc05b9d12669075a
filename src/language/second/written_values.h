#pragma once

#include "language/widgets.h"

#include <string_view>

/// Which properties a page is built with, so that their values must be written out: anything else is known only when the
/// page runs.
namespace pozhil::language::second {

/// Whether the value of a property must be written out.
/// \param owner the word before the bracket that the property stands in
bool isWritten(std::string_view owner, const WidgetProperty& property);

/// Whether that value is a whole number.
bool isWhole(std::string_view owner, const WidgetProperty& property);

} // namespace pozhil::language::second

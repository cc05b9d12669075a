#pragma once

#include "base/source_text.h"
#include "formatter/formatter.h"

#include <string>
#include <string_view>

/// Formats a source and holds the result to what the formatter promises: nothing but blanks changes, the same C++ text comes
/// of it, formatting again changes nothing.
/// \return what the formatter made of it
/// \throws std::logic_error naming a promise that doesn't hold
pozhil::FormattedSource checkFormatting(const pozhil::SourcePtr& source);

/// The C++ text of a source, as far as it doesn't depend on blanks within the lines of the source; what is wrong with it
/// instead if anything is.
std::string meaningOf(const pozhil::SourcePtr& source);

/// \p formatted with the blank lines that \p source has more of, so that each line of code has the number that it had.
std::string withLinesOf(std::string_view source, std::string_view formatted);

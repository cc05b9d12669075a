#pragma once

#include "base/source_place.h"

#include <optional>
#include <string>
#include <string_view>

namespace pozhil::second {

/// The edition of the language that this is, as its marker names it.
constexpr std::string_view SECOND_EDITION = "2";

/// The number of the edition that a line names when nothing but the marker stands on it: "ஃ பொழில் 2". A byte order mark
/// may stand before it; blanks and a carriage return don't matter, nor does it whether there is a blank after "ஃ".
/// \return ASCII digits without leading zeros, "0" for zero; nothing for every other line
std::optional<std::string> markedEdition(std::string_view line);

/// Where a text asks for the second edition below its first line, with nothing but blank lines and comments before it.
/// What stands further down, or in a comment over several lines, is a comment like any other.
std::optional<ByteRange> lateMarker(std::string_view text);

/// Whether a line that is no marker looks as if it was to ask for the second edition: with another sign before it, with
/// more words after it, with its number as a word, with a slip in its word.
bool isAlmostMarker(std::string_view line);

} // namespace pozhil::second

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pozhil::second {

/// The number of the edition that a line names when nothing but the marker stands on it: "ஃ பொழில் 2". A byte order mark
/// may stand before it, blanks and a carriage return don't matter.
/// \return ASCII digits without leading zeros, "0" for zero; nothing for every other line
std::optional<std::string> markedEdition(std::string_view line);

} // namespace pozhil::second

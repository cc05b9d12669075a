#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pozhil::tools {

/// A font that measures texts exactly as another does, and can't draw any: of each letter it has the box and the advance,
/// but no outline, and what shapes and hints letters is left out. It has the notes on copyright and licence, but no name,
/// since many licences reserve that for the whole font. Browsers refuse such a font, so that nobody gets to see empty
/// letters.
/// \param font the whole file; any bytes will do
/// \return nothing if it isn't a font with TrueType outlines, or has anything that isn't as it should be
std::optional<std::string> measuringFont(std::string_view font);

} // namespace pozhil::tools

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pozhil::tools {

/// What a font says of itself.
struct FontLicence {
    std::string name;
    std::string copyright;
    std::string licence;
    std::string address;
};

/// Reads the table of names of a TrueType or OpenType font.
/// \param font the whole file; any bytes will do
/// \return nothing if it isn't such a font
std::optional<FontLicence> readFontLicence(std::string_view font);

} // namespace pozhil::tools

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pozhil::tools {

/// Where the font is packed that programs measure the texts of bold buttons with.
constexpr const char* MEASURED_FONT = "assets/font/Coiny-Regular.ttf";

/// What to pack in its place: all of it that measuring takes. Whatever tells that somebody may see its letters leaves it
/// as it is: the font isn't there that pages draw with in the first place, or the program names this one.
/// \param output the output text of the program
/// \return nothing if it is packed as it is
std::optional<std::string> packedMeasuredFont(std::string_view output);

} // namespace pozhil::tools

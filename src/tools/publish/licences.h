#pragma once

#include <string>
#include <vector>

namespace pozhil::tools {

/// The licences of the fonts that an application carries, as a text for people: what each font says of itself, and what
/// stands in files beside it that are called OFL, LICENSE, LICENCE or COPYING. Empty without fonts.
/// \param files what the application is packed of: files, and directories with all in them
/// \param measured the font of which only the sizes of its letters are packed, empty if there is none; the text says so
std::string licencesOf(const std::vector<std::string>& files, const std::string& measured = "");

} // namespace pozhil::tools

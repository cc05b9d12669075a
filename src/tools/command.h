#pragma once

#include <string>
#include <vector>

namespace pozhil::tools {

/// The command பொழில்: finds the word that its arguments begin with, and does it. Tells what is wrong with them.
/// \param arguments the name of the program first
/// \return the status to end with
int runCommand(const std::vector<std::string>& arguments);

} // namespace pozhil::tools

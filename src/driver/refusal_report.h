#pragma once

#include "driver/console/explanation.h"
#include "driver/translation.h"

#include <string>
#include <string_view>

namespace pozhil {

/// Tells, on standard error, which statements of a program g++ or em++ has refused, why, and what to write instead: of at
/// most five source lines, and how many more there are. Nothing if the tool wrote nothing.
/// \return the place of the first of these lines; empty if none is known. It holds as long as \p source.
/// \param output the output text of \p source
/// \param file where the output text lies, as the tool was given it
/// \param written what the tool wrote on standard error
ShownPlace reportRefusals(const ParsedSource& source, const OutputText& output, const std::string& file,
                          std::string_view written);

} // namespace pozhil

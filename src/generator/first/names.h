#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace pozhil {

/// "std::any, std::any" with so many parts.
std::string anyTypes(std::size_t count);

/// fn_ and \p stem. A name that the runtime uses already gets an underscore after it, so that a user's function takes
/// the place of the library's.
std::string emittedFunctionName(const std::string& stem);

/// The native variable for a parameter, a loop variable or another name of a function. One that the emitted text itself
/// declares around the program's own statements gets an underscore after it, or these would read the text's variable.
std::string emittedVariableName(const std::string& name);

} // namespace pozhil

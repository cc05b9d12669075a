#pragma once

#include <string_view>
#include <vector>

namespace pozhil::second {

/// The name of \p known that \p name is most likely meant to be. Written letters count, a consonant with its sign as one:
/// one wrong, missing or superfluous letter for every three, and one in any name of two letters or more. Of equally near
/// ones the first in the order of \p known. Empty if there is none, and for \p name itself.
std::string_view nearestName(std::string_view name, const std::vector<std::string_view>& known);

} // namespace pozhil::second

#pragma once

#include "diagnostics/second_fault.h"

#include <string_view>
#include <vector>

namespace pozhil::second {

/// Notes with a fault what may have been meant by \p word: the nearest of \p known. Nothing if none is near.
/// \return whether one is
bool suggestNearest(SecondFault& fault, std::string_view word, const std::vector<std::string_view>& known);

} // namespace pozhil::second

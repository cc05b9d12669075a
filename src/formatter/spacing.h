#pragma once

#include "formatter/pieces.h"

#include <cstddef>
#include <vector>

namespace pozhil::formatter {

/// The blanks between pieces that stand on one line.
/// \return for each piece how many stand before it
std::vector<std::size_t> blanksBefore(const Pieces& pieces);

} // namespace pozhil::formatter

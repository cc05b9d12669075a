#pragma once

#include "formatter/pieces.h"

#include <cstddef>
#include <vector>

namespace pozhil::formatter {

/// How far the lines of a source are to be indented.
/// \return for each piece the column that it begins at if it begins a line, in blanks
std::vector<std::size_t> lineColumns(const Pieces& pieces);

} // namespace pozhil::formatter

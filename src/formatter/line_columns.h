#pragma once

#include "formatter/pieces.h"

#include <cstddef>
#include <vector>

namespace pozhil::formatter {

/// What lines in brackets are indented by.
enum class InBrackets {
    /// The brackets around them.
    Brackets,
    /// The lines before them, as they are indented in the source: for brackets of the first edition that don't join lines.
    Lines
};

/// How far the lines of a source are to be indented.
/// \return for each piece the column that it begins at if it begins a line, in blanks
std::vector<std::size_t> lineColumns(const Pieces& pieces, InBrackets inBrackets);

} // namespace pozhil::formatter

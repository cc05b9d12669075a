#pragma once

#include "language/rows.h"

#include <string_view>

namespace pozhil::language {

/// A place in a widget: the word for it, and how far it lies from the middle, -1 being the left or upper edge and 1 the
/// right or lower one.
struct Alignment {
    std::string_view word;
    float x;
    float y;
};

/// All alignments, from the upper left to the lower right, line by line.
Rows<Alignment> alignments();

/// The alignment of this word, null if there is none.
const Alignment* findAlignment(std::string_view word);

} // namespace pozhil::language

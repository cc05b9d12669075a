#pragma once

#include "language/rows.h"

#include <string_view>

namespace pozhil::language {

/// A colour that has a name. It is opaque; each component goes from 0 to 1.
struct ColourWord {
    std::string_view word;
    std::string_view english;
    float red;
    float green;
    float blue;
};

/// All colours that have a name.
Rows<ColourWord> colourWords();

/// The colour of this name, null if there is none.
const ColourWord* findColourWord(std::string_view word);

} // namespace pozhil::language

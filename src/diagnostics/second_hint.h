#pragma once

#include "base/source_place.h"

#include <string>
#include <vector>

namespace pozhil {

/// Something in a program of the second edition that runs but surely isn't meant.
struct SecondHint {
    SourcePlace place;
    /// What happens and what to write instead, a sentence or two for the user.
    std::string text;
};

using SecondHints = std::vector<SecondHint>;

} // namespace pozhil

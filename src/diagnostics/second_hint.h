#pragma once

#include "base/source_place.h"
#include "diagnostics/mend.h"

#include <string>
#include <vector>

namespace pozhil {

/// Something in a program of the second edition that runs but surely isn't meant.
struct SecondHint {
    SourcePlace place;
    /// What happens and what to write instead, a sentence or two for the user.
    std::string text;
    /// What to write in its place, where one thing alone is right.
    Mend mend{};
};

using SecondHints = std::vector<SecondHint>;

} // namespace pozhil

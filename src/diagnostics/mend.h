#pragma once

#include <string>

namespace pozhil {

/// The one right thing to write in the place of a word or sign; both texts are empty where nobody can tell that there is
/// one, or where more must change.
struct Mend {
    /// What stands in the source, within the place of the fault or on its line.
    std::string written{};
    std::string meant{};
};

} // namespace pozhil

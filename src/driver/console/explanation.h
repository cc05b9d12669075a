#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// A place of a source as the user is shown it.
struct ShownPlace {
    /// Empty if nobody knows it
    std::string file;
    /// Counted from 1; 0 if nobody knows it
    std::int32_t line = 0;
    /// The text of the line
    std::string_view lineText;
};

/// What the user is told of something that has no box.
struct Explanation {
    ShownPlace place;
    /// What is wrong, a sentence each; empty ones are left out.
    std::vector<std::string> causes;
    /// What to do; may be empty.
    std::string remedy;
};

/// Shows an explanation on standard error, after what is told of its fault anyway.
void printExplanation(const Explanation& explanation);

/// Shows a place alone, likewise.
void printPlace(const ShownPlace& place);

} // namespace pozhil

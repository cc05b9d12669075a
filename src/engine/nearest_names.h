#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Which of some names a word is most likely meant to be.

namespace pozhil::engine {

struct Candidate {
    std::string name;
    /// How many letters must be changed to make it of the word.
    std::size_t distance;
};

/// The names with those first that \p word is most likely meant to be.
std::vector<Candidate> nearestFirst(std::string_view word, const std::vector<std::string>& names);

/// A sentence with the nearest name, empty if none is near.
std::string suggestionFor(std::string_view word, const std::vector<Candidate>& candidates);

} // namespace pozhil::engine

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil {

/// The letters of a word. Each is a code point, so a vowel sign is a letter of its own.
using Letters = std::vector<std::string_view>;

/// \p word cut into its letters, which point into it.
Letters splitLetters(std::string_view word);

/// How many letters must be inserted, dropped or replaced to make one word of the other (Levenshtein).
/// \param limit beyond which nobody asks how many
/// \return the number, limit + 1 for any that is larger
std::size_t letterDistance(const Letters& a, const Letters& b, std::size_t limit);

/// The word of \p known that \p word is most likely meant to be: the first of those with the fewest letters to change,
/// one for every three letters of the word at most. Empty if there is none, and for \p word itself.
std::string_view nearestWord(std::string_view word, const std::vector<std::string_view>& known);

/// Whether no other word of \p known is as near to \p word as \p nearest is.
bool isOnlyNearest(std::string_view word, std::string_view nearest, const std::vector<std::string_view>& known);

} // namespace pozhil

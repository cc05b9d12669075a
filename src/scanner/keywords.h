#pragma once

#include "scanner/token.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil {

/// The kind of a word: what the language's vocabulary says, IDENTIFIER for every other word.
TokenType lookupKeyword(std::string_view word);

/// Whether some word of the vocabulary is longer than \p word and begins with it.
bool beginsLongerKeyword(std::string_view word);

/// Length in bytes of the longest word of the vocabulary.
std::size_t longestKeyword();

/// The words that a misspelt name is compared with, in the order of comparison.
const std::vector<std::string_view>& typoCandidates();

} // namespace pozhil

#pragma once

#include "tools/language_server/outline.h"
#include "tools/language_server/vocabulary.h"

#include <string>
#include <vector>

/// Which words of the language can stand where.
namespace pozhil::language_server {

/// A short program up to a place that is like the one in question.
struct GrammarPlace {
    std::string before;
    /// How far the lines of the block are indented that it is in.
    std::string indentation{};
};

/// What the place of a word is like.
/// \param before index of the token before it, NO_INDEX if there is none
/// \param offset byte of the source where it begins
std::vector<GrammarPlace> grammarPlaces(const Outline& outline, std::size_t before, std::size_t offset);

/// The words of statements and values that can stand there. The grammar itself tells: one can stand there if it can be
/// followed by anything that makes a program of it. Both editions have these words in the same places.
std::vector<LanguageWord> wordsAt(const std::vector<GrammarPlace>& places);

} // namespace pozhil::language_server

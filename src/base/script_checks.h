#pragma once

#include <string_view>

/// Tamil script rules for the characters of a word. Every function takes one whole UTF-8 character.
namespace pozhil::script {

/// U+200C to U+200F: joiners and direction marks that nobody can see in a word.
bool isInvisibleMark(std::string_view character);

/// U+0BBE to U+0BCD: a vowel sign or the virama, which cannot stand without a letter before it.
bool isVowelSign(std::string_view character);

/// U+0B9C, U+0BB7, U+0BB8, U+0BB9: ஜ ஷ ஸ ஹ, which names of the language do without.
bool isGranthaLetter(std::string_view character);

/// U+0BBE, the sign of the long vowel ஆ.
bool isLongVowelSign(std::string_view character);

/// Whether \p word ends in an independent vowel, U+0B85 to U+0B94.
bool endsInVowelLetter(std::string_view word);

/// U+0BE6 to U+0BEF: a Tamil digit.
bool isTamilDigit(std::string_view character);

} // namespace pozhil::script

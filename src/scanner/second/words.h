#pragma once

#include "language/token_type.h"

#include <string_view>
#include <vector>

namespace pozhil::second {

/// The kind of a word of the second edition: those of statements, conditions and operators, and the truth values, are
/// words of the language. All others, those of widgets and properties too, are plain names.
TokenType wordKind(std::string_view word);

/// Whether the language itself gives \p word a meaning: as its keyword, as a built-in function, as a word of widgets.
bool isOfVocabulary(std::string_view word);

/// The words that begin or join statements, with which a word is compared that can't be understood.
const std::vector<std::string_view>& statementWords();

} // namespace pozhil::second

#pragma once

#include <string_view>

namespace pozhil {

/// Whether \p word looks like a keyword with one letter inserted, dropped or replaced. Letters are code points, so a
/// wrong vowel sign is one letter. Words of three letters or fewer are never taken for a misspelling.
bool looksLikeMisspeltKeyword(std::string_view word);

/// The keyword that a word which looks like a misspelt one can only be; empty if it may be several.
std::string_view keywordMeantBy(std::string_view word);

} // namespace pozhil

#pragma once

#include <cstddef>
#include <string_view>

namespace pozhil::report {

/// The bytes of the first letter of a text, as its reader counts them: a grapheme cluster, so a Tamil consonant with its
/// vowel sign is one.
/// \param text UTF-8; of broken bytes each is a letter of its own
/// \return 0 for an empty text
std::size_t firstLetterSize(std::string_view text);

} // namespace pozhil::report

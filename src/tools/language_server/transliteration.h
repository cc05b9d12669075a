#pragma once

#include <string_view>

namespace pozhil::language_server {

/// Whether a word begins with what somebody has typed: with its letters, the dot of the last one not counting, or with how
/// they sound in Latin letters: "acc" and "achi" begin அச்சிடு. A short vowel may be typed for a long one.
bool beginsWith(std::string_view word, std::string_view typed);

} // namespace pozhil::language_server

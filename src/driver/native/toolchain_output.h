#pragma once

#include <string>

namespace pozhil {

/// What g++ wrote, without its warnings of names whose vowel signs are typed in two halves (ெ and ா for ொ). Such a name
/// is as good as any other, and the warning tells of it in English and in code points.
std::string withoutSpellingWarnings(const std::string& errors);

} // namespace pozhil

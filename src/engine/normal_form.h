#pragma once

#include <string>
#include <string_view>

/// The composed normal form of Unicode (NFC), in which all texts of a running program are: what looks the same is the
/// same. Tamil, the scripts of Europe and pictures are told to be in it at a glance; anything else goes through utf8proc.

namespace pozhil::engine {

/// Brings a text to the form. Bytes that aren't UTF-8 become U+FFFD.
/// \throw std::bad_alloc
void normalize(std::string& text);

/// Appends, keeping to the form where the two meet. Both must be in the form.
/// \param right may be a part of \p left
void appendNormalized(std::string& left, std::string_view right);

} // namespace pozhil::engine

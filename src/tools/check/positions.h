#pragma once

#include "base/source_place.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace pozhil::tools {

/// A place between two characters of a source, counted from 1 as editors show it: the first character of a line has
/// column 1 in both units.
struct Position {
    std::size_t line = 1;
    /// In bytes of UTF-8, and in units of UTF-16; a byte that isn't UTF-8 counts as one of either.
    std::size_t byte = 1;
    std::size_t utf16 = 1;
};

/// The position of a byte of a text; the end of the text for one beyond it.
Position positionAt(std::string_view text, std::size_t offset);

/// The text with U+FFFD for each byte that isn't UTF-8.
std::string validUtf8(std::string_view text);

} // namespace pozhil::tools

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pozhil::second {

/// One character of a source: a code point and the bytes that it takes.
struct Character {
    /// Negative for a byte that begins no character, and at the end of the text.
    std::int32_t codePoint = -1;
    /// At least 1, but 0 at the end of the text.
    std::size_t size = 0;

    bool isValid() const { return codePoint >= 0; }
};

/// The character that begins at \p position of \p text.
Character characterAt(std::string_view text, std::size_t position);

/// A letter of any script.
bool isLetter(Character character);

/// A vowel sign, the pulli, or any other mark that stands on the letter before it.
bool isSign(Character character);

/// A digit of any script.
bool isAnyDigit(Character character);

/// ௦ to ௯.
bool isTamilDigit(Character character);

/// A digit that numbers are written in, ASCII's or Tamil's.
bool isDigitOfNumbers(Character character);

/// A blank that looks like the ordinary one but isn't, such as one that no line breaks at.
bool isSpecialBlank(Character character);

/// A joiner, direction mark or other character that nobody sees.
bool isInvisible(Character character);

/// A quotation mark that word processors put in the place of " or '.
bool isCurlyQuote(Character character);

} // namespace pozhil::second

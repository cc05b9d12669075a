#include "report/letters.h"

#include "report/code_point.h"

#include <utf8proc.h>

namespace pozhil::report {
namespace {

/// Of ASCII without controls, and of Tamil: which of these belong together is simple.
bool isPlain(utf8proc_int32_t codePoint) {
    return (codePoint >= 0x20 && codePoint < 0x7F) || (codePoint >= 0x0B80 && codePoint < 0x0C00);
}

/// Signs of Tamil, which belong to what stands before them.
bool isTamilSign(utf8proc_int32_t codePoint) {
    constexpr utf8proc_int32_t ANUSVARA = 0x0B82;
    constexpr utf8proc_int32_t FIRST_VOWEL_SIGN = 0x0BBE;
    constexpr utf8proc_int32_t PULLI = 0x0BCD;
    constexpr utf8proc_int32_t LENGTH_MARK = 0x0BD7;
    if (codePoint >= FIRST_VOWEL_SIGN && codePoint <= PULLI) {
        // Three places among them are unassigned.
        return codePoint != 0x0BC9 && (codePoint <= 0x0BC2 || codePoint >= 0x0BC6);
    }
    return codePoint == ANUSVARA || codePoint == LENGTH_MARK;
}

/// Whether a new letter begins with \p next.
bool isBreak(utf8proc_int32_t previous, utf8proc_int32_t next, utf8proc_int32_t& state) {
    if (isPlain(previous) && isPlain(next)) {
        return !isTamilSign(next);
    }
    return utf8proc_grapheme_break_stateful(previous, next, &state);
}

} // namespace

std::size_t firstLetterSize(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    CodePoint previous = codePointAt(text, 0);
    std::size_t size = previous.size;
    utf8proc_int32_t state = 0;
    while (size < text.size()) {
        const CodePoint next = codePointAt(text, size);
        if (isBreak(previous.value, next.value, state)) {
            break;
        }
        size += next.size;
        previous = next;
    }
    return size;
}

} // namespace pozhil::report

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pozhil {

/// Length in bytes of the UTF-8 sequence that \p lead begins: 1 to 4. A byte that begins no sequence counts as one.
constexpr std::size_t getUTF8SequenceLength(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0x80) {
        return 1;
    }
    if ((byte & 0xE0U) == 0xC0U) {
        return 2;
    }
    if ((byte & 0xF0U) == 0xE0U) {
        return 3;
    }
    if ((byte & 0xF8U) == 0xF0U) {
        return 4;
    }
    return 1;
}

/// The first character of a non-empty text, with all its bytes; a sequence that the end of the text cuts is shorter.
constexpr std::string_view firstCharacter(std::string_view text) {
    return text.substr(0, getUTF8SequenceLength(text.front()));
}

/// Appends a code point to a UTF-8 text.
inline void appendUtf8(std::string& text, std::uint32_t codePoint) {
    const auto byte = [&](std::uint32_t bits) { text += static_cast<char>(bits); };
    if (codePoint < 0x80) {
        byte(codePoint);
    } else if (codePoint < 0x800) {
        byte(0xC0U | codePoint >> 6U);
        byte(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        byte(0xE0U | codePoint >> 12U);
        byte(0x80U | (codePoint >> 6U & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    } else {
        byte(0xF0U | (codePoint >> 18U & 0x07U));
        byte(0x80U | (codePoint >> 12U & 0x3FU));
        byte(0x80U | (codePoint >> 6U & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    }
}

} // namespace pozhil

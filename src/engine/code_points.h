#pragma once

#include <cstddef>
#include <string_view>

/// The code points of texts that are known to be UTF-8.

namespace pozhil::engine {

struct CodePoint {
    char32_t value;
    /// Bytes.
    std::size_t size;
};

/// The code point that begins at \p position, which must be one where a code point begins.
inline CodePoint codePointAt(std::string_view text, std::size_t position) {
    const auto byte = [&](std::size_t index) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[position + index]));
    };
    const auto following = [&](std::size_t index) { return byte(index) & 0x3FU; };
    const char32_t first = byte(0);
    if (first < 0x80) {
        return {first, 1};
    }
    if (first < 0xE0) {
        return {(first & 0x1FU) << 6 | following(1), 2};
    }
    if (first < 0xF0) {
        return {(first & 0x0FU) << 12 | following(1) << 6 | following(2), 3};
    }
    return {(first & 0x07U) << 18 | following(1) << 12 | following(2) << 6 | following(3), 4};
}

/// Where the code point begins that holds the byte at \p position.
inline std::size_t codePointBegin(std::string_view text, std::size_t position) {
    while (position > 0 && (static_cast<unsigned char>(text[position]) & 0xC0U) == 0x80) {
        --position;
    }
    return position;
}

/// Of the block of Tamil.
constexpr char32_t TAMIL_BEGIN = 0x0B80;
constexpr char32_t TAMIL_END = 0x0C00;
constexpr char32_t PULLI = 0x0BCD;

constexpr bool isTamil(char32_t codePoint) {
    return codePoint >= TAMIL_BEGIN && codePoint < TAMIL_END;
}

} // namespace pozhil::engine

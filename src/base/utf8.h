#pragma once

#include <cstddef>
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

} // namespace pozhil

#pragma once

#include <utf8proc.h>

#include <cstddef>
#include <string_view>

namespace pozhil::report {

struct CodePoint {
    utf8proc_int32_t value;
    /// Bytes.
    std::size_t size;
};

/// The code point at byte \p position, which must be there. A byte that isn't UTF-8 counts as U+FFFD.
inline CodePoint codePointAt(std::string_view text, std::size_t position) {
    const auto first = static_cast<unsigned char>(text[position]);
    if (first < 0x80) {
        return {first, 1};
    }
    utf8proc_int32_t value = 0;
    const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + position,
                                       static_cast<utf8proc_ssize_t>(text.size() - position), &value);
    if (size <= 0) {
        constexpr utf8proc_int32_t REPLACEMENT = 0xFFFD;
        return {REPLACEMENT, 1};
    }
    return {value, static_cast<std::size_t>(size)};
}

} // namespace pozhil::report

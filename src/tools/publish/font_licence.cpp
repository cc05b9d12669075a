#include "tools/publish/font_licence.h"

#include "base/utf8.h"
#include "tools/publish/font_tables.h"

#include <cstddef>
#include <cstdint>

namespace pozhil::tools {
namespace {

/// Text in units of two bytes. Pairs of them, for rare signs, become a question mark.
std::string wideText(std::string_view bytes) {
    constexpr std::uint32_t FIRST_OF_PAIRS = 0xD800;
    constexpr std::uint32_t AFTER_PAIRS = 0xE000;
    std::string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const std::uint32_t unit = shortAt(bytes, i);
        const bool isOfPair = unit >= FIRST_OF_PAIRS && unit < AFTER_PAIRS;
        appendUtf8(text, isOfPair ? '?' : unit);
    }
    return text;
}

/// One row of the table of names: the English text for Windows, which all fonts of today have.
std::string nameOf(std::string_view names, std::uint32_t number) {
    constexpr std::uint32_t WINDOWS = 3;
    constexpr std::uint32_t ENGLISH = 0x409;
    constexpr std::size_t HEAD_BYTES = 6;
    constexpr std::size_t ROW_BYTES = 12;
    const std::size_t count = shortAt(names, 2);
    const std::string_view texts = part(names, shortAt(names, 4));
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view row = part(names, HEAD_BYTES + i * ROW_BYTES, ROW_BYTES);
        if (shortAt(row, 0) == WINDOWS && shortAt(row, 4) == ENGLISH && shortAt(row, 6) == number) {
            return wideText(part(texts, shortAt(row, 10), shortAt(row, 8)));
        }
    }
    return {};
}

} // namespace

std::optional<FontLicence> readFontLicence(std::string_view font) {
    if (!isFont(font)) {
        return std::nullopt;
    }
    constexpr std::uint32_t COPYRIGHT = 0;
    constexpr std::uint32_t FULL_NAME = 4;
    constexpr std::uint32_t LICENCE = 13;
    constexpr std::uint32_t ADDRESS = 14;
    const std::string_view names = tableOf(font, "name");
    return FontLicence{nameOf(names, FULL_NAME), nameOf(names, COPYRIGHT), nameOf(names, LICENCE),
                       nameOf(names, ADDRESS)};
}

} // namespace pozhil::tools

// All that the engine asks utf8proc, for every character: a line of sums for each 4,096 of them.

#include <utf8proc.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr utf8proc_int32_t CHARACTERS = 0x110000;
constexpr utf8proc_int32_t A_LINE = 0x1000;
/// What lies beyond combines with nothing.
constexpr utf8proc_int32_t LAST_THAT_COMBINES = 0x2FFFF;

/// Some that others combine with, and some that break differently before and after others.
constexpr std::array<utf8proc_int32_t, 12> NEIGHBOURS = {'a',    'e',    0x0B92, 0x0BC6, 0x0BCD,  0x0301,
                                                         0x0F71, 0x1100, 0x1161, 0x200D, 0x1F1EE, 0x1F468};

std::uint32_t sum = 0;

void add(std::uint32_t value) {
    sum = (sum ^ value) * 16777619U;
}

std::string text(utf8proc_int32_t character) {
    utf8proc_uint8_t bytes[4];
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(utf8proc_encode_char(character, bytes))};
}

void addNormalForm(const std::string& text) {
    utf8proc_uint8_t* form = nullptr;
    const auto size =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &form, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    add(static_cast<std::uint32_t>(size));
    for (utf8proc_ssize_t i = 0; i < size; ++i) {
        add(form[i]);
    }
    std::free(form);
}

void addCharacter(utf8proc_int32_t character) {
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    add(static_cast<std::uint32_t>(utf8proc_toupper(character)));
    add(static_cast<std::uint32_t>(utf8proc_tolower(character)));
    add(utf8proc_category(character) == UTF8PROC_CATEGORY_MC ? 1 : 0);
    add(static_cast<std::uint32_t>(utf8proc_charwidth(character)));
    if (!isSurrogate) {
        addNormalForm(text(character));
    }
    for (const utf8proc_int32_t neighbour : NEIGHBOURS) {
        utf8proc_int32_t state = 0;
        add(utf8proc_grapheme_break_stateful(neighbour, character, &state) ? 1 : 0);
        add(utf8proc_grapheme_break_stateful(character, neighbour, &state) ? 1 : 0);
        if (!isSurrogate && character <= LAST_THAT_COMBINES) {
            addNormalForm(text(neighbour) + text(character));
            addNormalForm(text(character) + text(neighbour));
        }
    }
}

} // namespace

int main() {
    for (utf8proc_int32_t character = 0; character < CHARACTERS; ++character) {
        addCharacter(character);
        if ((character + 1) % A_LINE == 0) {
            std::printf("%x %x\n", static_cast<unsigned>(character), sum);
            sum = 0;
        }
    }
    return 0;
}

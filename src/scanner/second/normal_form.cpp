#include "scanner/second/normal_form.h"

#include "scanner/second/characters.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace pozhil::second {
namespace {

struct Freed {
    void operator()(utf8proc_uint8_t* text) const { std::free(text); }
};

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

std::string normalForm(std::string_view text) {
    if (isAscii(text)) {
        return std::string(text);
    }
    utf8proc_uint8_t* composed = nullptr;
    const utf8proc_ssize_t length =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &composed, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    const std::unique_ptr<utf8proc_uint8_t, Freed> owner(composed);
    if (length < 0) {
        return std::string(text);
    }
    return std::string(reinterpret_cast<const char*>(composed), static_cast<std::size_t>(length));
}

std::optional<std::size_t> firstInvalidByte(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        const Character next = characterAt(text, position);
        if (!next.isValid()) {
            return position;
        }
        position += next.size;
    }
    return std::nullopt;
}

} // namespace pozhil::second

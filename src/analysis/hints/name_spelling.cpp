#include "analysis/hints/name_spelling.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pozhil {
namespace {

/// A vowel sign that surrounds its letter, and the two signs that it looks like.
struct Composition {
    std::string_view parts;
    std::string_view sign;
};

constexpr std::array<Composition, 3> COMPOSITIONS = {{
    {"\u0BC6\u0BBE", "\u0BCA"},
    {"\u0BC7\u0BBE", "\u0BCB"},
    {"\u0BC6\u0BD7", "\u0BCC"},
}};

constexpr std::array<std::string_view, 6> CURLY_QUOTES = {"\u2018", "\u2019", "\u201A", "\u201C", "\u201D", "\u201E"};

constexpr std::array<std::string_view, 17> ODD_BLANKS = {"\u00A0", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004",
                                                         "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A",
                                                         "\u200B", "\u202F", "\u205F", "\u3000", "\uFEFF"};

template <std::size_t count>
bool holdsOneOf(std::string_view name, const std::array<std::string_view, count>& letters) {
    return std::any_of(letters.begin(), letters.end(),
                       [&](std::string_view letter) { return name.find(letter) != std::string_view::npos; });
}

} // namespace

bool holdsCurlyQuote(std::string_view name) {
    return holdsOneOf(name, CURLY_QUOTES);
}

bool holdsOddBlank(std::string_view name) {
    return holdsOneOf(name, ODD_BLANKS);
}

/// Asked of every name, so it only looks closer at the few that hold the second of two signs.
bool isDecomposed(std::string_view name) {
    constexpr std::string_view LAST_BYTES = "\xBE\x97";
    const auto endsParts = [&](std::size_t end) {
        return std::any_of(COMPOSITIONS.begin(), COMPOSITIONS.end(), [&](const Composition& one) {
            return end >= one.parts.size() && name.substr(end - one.parts.size(), one.parts.size()) == one.parts;
        });
    };
    for (std::size_t index = 0; index < name.size(); ++index) {
        if (LAST_BYTES.find(name[index]) != std::string_view::npos && endsParts(index + 1)) {
            return true;
        }
    }
    return false;
}

std::string composed(std::string_view name) {
    std::string text(name);
    for (const Composition& one : COMPOSITIONS) {
        for (std::size_t at = text.find(one.parts); at != std::string::npos; at = text.find(one.parts, at)) {
            text.replace(at, one.parts.size(), one.sign);
        }
    }
    return text;
}

} // namespace pozhil

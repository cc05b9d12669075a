#include "report/width.h"

#include "report/code_point.h"

#include <utf8proc.h>

#include <algorithm>

namespace pozhil::report {
namespace {

/// Terminals give a vowel sign that stands beside its consonant a column of its own, and one above or below it none.
std::size_t columns(utf8proc_int32_t codePoint) {
    if (utf8proc_category(codePoint) == UTF8PROC_CATEGORY_MC) {
        return 1;
    }
    return static_cast<std::size_t>(std::max(0, utf8proc_charwidth(codePoint)));
}

/// However many signs a letter is made of, it takes two columns at most.
std::size_t letterWidth(std::string_view letter) {
    constexpr std::size_t WIDEST = 2;
    std::size_t sum = 0;
    while (!letter.empty()) {
        const CodePoint first = codePointAt(letter, 0);
        sum += columns(first.value);
        letter.remove_prefix(first.size);
    }
    return std::min(sum, WIDEST);
}

} // namespace

std::size_t width(std::string_view text) {
    std::size_t sum = 0;
    while (!text.empty()) {
        const std::size_t size = firstLetterSize(text);
        sum += letterWidth(text.substr(0, size));
        text.remove_prefix(size);
    }
    return sum;
}

} // namespace pozhil::report

#include "engine/text_scan.h"

#include "engine/code_points.h"
#include "engine/text.h"

namespace pozhil::engine {
namespace {

bool isBlank(char32_t codePoint) {
    switch (codePoint) {
    case ' ':
    case 0x85:
    case 0xA0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
    case 0xFEFF: return true;
    default: return (codePoint >= '\t' && codePoint <= '\r') || (codePoint >= 0x2000 && codePoint <= 0x200A);
    }
}

} // namespace

std::string_view trimmed(std::string_view text) {
    while (!text.empty()) {
        const CodePoint first = codePointAt(text, 0);
        if (!isBlank(first.value)) {
            break;
        }
        text.remove_prefix(first.size);
    }
    while (!text.empty()) {
        const std::size_t last = codePointBegin(text, text.size() - 1);
        if (!isBlank(codePointAt(text, last).value)) {
            break;
        }
        text.remove_suffix(text.size() - last);
    }
    return text;
}

std::string shortened(std::string_view text) {
    constexpr int LETTERS = 30;
    std::size_t end = 0;
    for (int letter = 0; letter < LETTERS && end < text.size(); ++letter) {
        end = letterEnd(text, end);
    }
    return std::string(text.substr(0, end)) + (end < text.size() ? "…" : "");
}

} // namespace pozhil::engine

#include "scanner/second/characters.h"

#include <utf8proc.h>

namespace pozhil::second {
namespace {

utf8proc_category_t categoryOf(Character character) {
    return character.isValid() ? utf8proc_category(character.codePoint) : UTF8PROC_CATEGORY_CN;
}

bool isBetween(Character character, std::int32_t first, std::int32_t last) {
    return character.codePoint >= first && character.codePoint <= last;
}

} // namespace

Character characterAt(std::string_view text, std::size_t position) {
    if (position >= text.size()) {
        return {};
    }
    const auto* const bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + position;
    utf8proc_int32_t codePoint = -1;
    const utf8proc_ssize_t size =
        utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size() - position), &codePoint);
    return size > 0 ? Character{codePoint, static_cast<std::size_t>(size)} : Character{-1, 1};
}

bool isLetter(Character character) {
    const utf8proc_category_t category = categoryOf(character);
    return category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO;
}

bool isSign(Character character) {
    const utf8proc_category_t category = categoryOf(character);
    return category >= UTF8PROC_CATEGORY_MN && category <= UTF8PROC_CATEGORY_ME;
}

bool isAnyDigit(Character character) {
    return categoryOf(character) == UTF8PROC_CATEGORY_ND;
}

bool isTamilDigit(Character character) {
    return isBetween(character, 0x0BE6, 0x0BEF);
}

bool isDigitOfNumbers(Character character) {
    return isBetween(character, '0', '9') || isTamilDigit(character);
}

bool isSpecialBlank(Character character) {
    const utf8proc_category_t category = categoryOf(character);
    const bool isSeparator = category >= UTF8PROC_CATEGORY_ZS && category <= UTF8PROC_CATEGORY_ZP;
    return isSeparator && character.codePoint != ' ';
}

bool isInvisible(Character character) {
    return categoryOf(character) == UTF8PROC_CATEGORY_CF;
}

bool isCurlyQuote(Character character) {
    return isBetween(character, 0x2018, 0x201F) || character.codePoint == 0x00AB || character.codePoint == 0x00BB;
}

} // namespace pozhil::second

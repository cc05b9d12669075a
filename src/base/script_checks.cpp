#include "base/script_checks.h"

namespace pozhil::script {
namespace {

/// Whether \p character is the three-byte sequence \p first, \p second and a byte from \p low to \p high.
bool isBetween(std::string_view character, unsigned first, unsigned second, unsigned low, unsigned high) {
    if (character.size() != 3) {
        return false;
    }
    const auto byte = [&](std::size_t index) {
        return static_cast<unsigned>(static_cast<unsigned char>(character[index]));
    };
    return byte(0) == first && byte(1) == second && byte(2) >= low && byte(2) <= high;
}

} // namespace

bool isInvisibleMark(std::string_view character) {
    return isBetween(character, 0xE2, 0x80, 0x8C, 0x8F);
}

bool isVowelSign(std::string_view character) {
    return isBetween(character, 0xE0, 0xAE, 0xBE, 0xBF) || isBetween(character, 0xE0, 0xAF, 0x80, 0x8D);
}

bool isGranthaLetter(std::string_view character) {
    return isBetween(character, 0xE0, 0xAE, 0x9C, 0x9C) || isBetween(character, 0xE0, 0xAE, 0xB7, 0xB9);
}

bool isLongVowelSign(std::string_view character) {
    return isBetween(character, 0xE0, 0xAE, 0xBE, 0xBE);
}

bool endsInVowelLetter(std::string_view word) {
    return word.size() >= 3 && isBetween(word.substr(word.size() - 3), 0xE0, 0xAE, 0x85, 0x94);
}

bool isTamilDigit(std::string_view character) {
    return isBetween(character, 0xE0, 0xAF, 0xA6, 0xAF);
}

} // namespace pozhil::script

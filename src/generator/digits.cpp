#include "generator/digits.h"

#include "scanner/script_checks.h"
#include "scanner/utf8.h"

namespace pozhil {

std::string toAsciiDigits(std::string_view number) {
    constexpr unsigned char LAST_BYTE_OF_ZERO = 0xA6; // ௦ is E0 AF A6
    std::string digits;
    while (!number.empty()) {
        const std::string_view character = firstCharacter(number);
        if (script::isTamilDigit(character)) {
            digits += static_cast<char>('0' + (static_cast<unsigned char>(character[2]) - LAST_BYTE_OF_ZERO));
        } else {
            digits += character;
        }
        number.remove_prefix(character.size());
    }
    return digits;
}

} // namespace pozhil

#include "base/number_text.h"

#include "base/script_checks.h"
#include "base/utf8.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace pozhil {
namespace {

template <class Number> Number valueOf(std::string_view number) {
    const double value = std::strtod(toAsciiDigits(number).c_str(), nullptr);
    return static_cast<Number>(std::min(value, static_cast<double>(std::numeric_limits<Number>::max())));
}

} // namespace

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

float floatOf(std::string_view number) {
    return valueOf<float>(number);
}

int intOf(std::string_view number) {
    return valueOf<int>(number);
}

} // namespace pozhil

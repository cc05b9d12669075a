#include "parser/number_text.h"

#include "scanner/script_checks.h"
#include "scanner/utf8.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace pozhil {
namespace {

int digitOf(std::string_view character) {
    constexpr int LAST_BYTE_OF_TAMIL_ZERO = 0xA6; // ௦ is E0 AF A6
    return script::isTamilDigit(character) ? static_cast<unsigned char>(character.back()) - LAST_BYTE_OF_TAMIL_ZERO
                                           : character.front() - '0';
}

double valueOf(std::string_view number) {
    double value = 0;
    double place = 0;
    while (!number.empty()) {
        const std::string_view character = firstCharacter(number);
        number.remove_prefix(character.size());
        if (character == ".") {
            place = 1;
            continue;
        }
        value = value * 10 + digitOf(character);
        place *= 10;
    }
    return place == 0 ? value : value / place;
}

template <class Number> Number limited(double value) {
    return static_cast<Number>(std::min(value, static_cast<double>(std::numeric_limits<Number>::max())));
}

} // namespace

float floatOf(const std::string& number) {
    return limited<float>(valueOf(number));
}

int intOf(const std::string& number) {
    return limited<int>(valueOf(number));
}

} // namespace pozhil

#include "engine/number_form.h"

#include "engine/system.h"

#include <charconv>
#include <cmath>
#include <iterator>

namespace pozhil::engine {

void appendWhole(std::string& out, Whole number) {
    char digits[24];
    out.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

void appendDecimal(std::string& out, Decimal number) {
    // The first number that takes more digits.
    constexpr Decimal LARGE = 1e15;
    if (std::isnan(number)) {
        out += "எண்ணல்ல";
    } else if (std::isinf(number)) {
        out += number < 0 ? "-முடிவிலி" : "முடிவிலி";
    } else if (std::fabs(number) < LARGE && number == std::trunc(number)) {
        appendWhole(out, static_cast<Whole>(number));
    } else {
        char digits[32];
        out.append(digits, writeDecimal(digits, number));
    }
}

} // namespace pozhil::engine

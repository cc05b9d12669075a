#include "engine/system.h"

#include <charconv>
#include <iterator>

namespace pozhil::engine {

char* writeDecimal(char (&digits)[32], Decimal number) {
    constexpr int PRECISION = 15;
    return std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::general, PRECISION).ptr;
}

} // namespace pozhil::engine

#include "engine/system.h"

#include <cstdio>

namespace pozhil::engine {

char* writeDecimal(char (&digits)[32], Decimal number) {
    // The C++ library of em++ writes no decimals by itself.
    return digits + std::snprintf(digits, sizeof digits, "%.15g", number);
}

} // namespace pozhil::engine

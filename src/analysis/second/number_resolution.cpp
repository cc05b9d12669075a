#include "analysis/second/resolution.h"

#include "base/number_text.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace pozhil::second {

/// The least whole number has no positive counterpart, so the sign belongs to the number.
resolved::ExpressionPtr resolveNumber(Resolution& resolution, const NumberLiteral& number, const void* node,
                                      bool isNegated) {
    const std::string digits = toAsciiDigits(number.value);
    std::uint64_t size = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), size);
    auto literal = makeNode<resolved::WholeLiteral>(resolution.placeOf(node));
    literal->value = static_cast<std::int64_t>(isNegated ? 0U - size : size);
    return literal;
}

resolved::ExpressionPtr resolveDecimal(Resolution& resolution, const DoubleLiteral& number) {
    const std::string digits = toAsciiDigits(number.value);
    auto literal = makeNode<resolved::DecimalLiteral>(resolution.placeOf(&number));
    // The C++ library of em++ has no other function that reads a decimal.
    literal->value = std::strtod(digits.c_str(), nullptr);
    return literal;
}

} // namespace pozhil::second

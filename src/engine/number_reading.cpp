#include "engine/library.h"
#include "engine/numbers.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/text_scan.h"
#include "engine/value_faults.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

namespace pozhil::engine {
namespace {

/// The text with its Tamil digits written as ASCII digits.
std::string withAsciiDigits(std::string_view text) {
    // ௦ is E0 AF A6, ௯ is E0 AF AF.
    constexpr std::string_view LEAD = "\xE0\xAF";
    constexpr unsigned char ZERO = 0xA6;
    std::string digits;
    while (!text.empty()) {
        const bool isTamilDigit = text.size() > LEAD.size() && text.substr(0, LEAD.size()) == LEAD &&
                                  static_cast<unsigned char>(text[2]) >= ZERO &&
                                  static_cast<unsigned char>(text[2]) < ZERO + 10;
        digits += isTamilDigit ? static_cast<char>('0' + static_cast<unsigned char>(text[2]) - ZERO) : text[0];
        text.remove_prefix(isTamilDigit ? LEAD.size() + 1 : 1);
    }
    return digits;
}

/// What kind of number stands in a text.
enum class Written { Nothing, Whole, Decimal };

/// Passes over digits.
/// \return whether there were any
bool passDigits(const std::string& text, std::size_t& position) {
    const std::size_t begin = position;
    while (position < text.size() && text[position] >= '0' && text[position] <= '9') {
        ++position;
    }
    return position > begin;
}

bool passOneOf(const std::string& text, std::size_t& position, std::string_view characters) {
    const bool isThere = position < text.size() && characters.find(text[position]) != std::string_view::npos;
    position += isThere ? 1 : 0;
    return isThere;
}

/// A sign, digits, a point with digits on one side of it at least, an exponent: the whole text.
Written kindOf(const std::string& text) {
    std::size_t position = 0;
    passOneOf(text, position, "+-");
    bool hasDigits = passDigits(text, position);
    const bool hasPoint = passOneOf(text, position, ".");
    if (hasPoint) {
        hasDigits = passDigits(text, position) || hasDigits;
    }
    const bool hasExponent = hasDigits && passOneOf(text, position, "eE");
    if (hasExponent) {
        passOneOf(text, position, "+-");
        hasDigits = passDigits(text, position);
    }
    if (!hasDigits || position != text.size()) {
        return Written::Nothing;
    }
    return hasPoint || hasExponent ? Written::Decimal : Written::Whole;
}

} // namespace

Value number(const Value& value, Place place) {
    if (isNumber(value)) {
        return value;
    }
    if (!value.is(Tag::Text)) {
        raise(NOT_CONVERTIBLE, place, {kindWord(value)});
    }
    const std::string digits = withAsciiDigits(trimmed(textOf(value)));
    const Written kind = kindOf(digits);
    if (kind == Written::Nothing) {
        raise(NO_NUMBER_TEXT, place, {shortened(textOf(value))});
    }
    if (kind == Written::Whole) {
        errno = 0;
        const Whole whole = std::strtoll(digits.c_str(), nullptr, 10);
        if (errno == ERANGE) {
            raise(WHOLE_TEXT_TOO_LARGE, place, {shortened(textOf(value))});
        }
        return whole;
    }
    const Decimal decimal = std::strtod(digits.c_str(), nullptr);
    if (std::isinf(decimal)) {
        raise(DECIMAL_TEXT_TOO_LARGE, place, {shortened(textOf(value))});
    }
    return decimal;
}

} // namespace pozhil::engine

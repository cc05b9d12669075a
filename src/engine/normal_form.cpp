#include "engine/normal_form.h"

#include "engine/code_points.h"
#include "engine/memory.h"

#include <utf8proc.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace pozhil::engine {
namespace {

constexpr char32_t SIGN_E = 0x0BC6;
constexpr char32_t SIGN_EE = 0x0BC7;
constexpr char32_t SIGN_AA = 0x0BBE;
constexpr char32_t LETTER_O = 0x0B92;
constexpr char32_t LENGTH_MARK = 0x0BD7;

/// Whether the tables of Unicode say that it stays as it is whatever stands before it.
bool isStableByTable(char32_t codePoint) {
    const bool isHangulVowel = codePoint >= 0x1161 && codePoint <= 0x1175;
    const bool isHangulEnd = codePoint >= 0x11A8 && codePoint <= 0x11C2;
    if (isHangulVowel || isHangulEnd) {
        return false;
    }
    const utf8proc_property_t& property = *utf8proc_get_property(static_cast<utf8proc_int32_t>(codePoint));
    const bool decomposes = property.decomp_seqindex != UINT16_MAX;
    const bool isSecondOfPair = property.comb_index != UINT16_MAX && property.comb_index >= 0x8000;
    return property.combining_class == 0 && !decomposes && !isSecondOfPair;
}

/// Whether it stays as it is whatever stands before it, and keeps what stands before it from what comes after.
bool isStable(char32_t codePoint) {
    if (codePoint < 0x300) {
        return true;
    }
    if (isTamil(codePoint)) {
        return codePoint != SIGN_AA && codePoint != LENGTH_MARK && codePoint != PULLI;
    }
    return isStableByTable(codePoint);
}

/// Signs of Tamil that make one sign, or one letter, of two.
bool compose(char32_t first, char32_t second) {
    return (second == SIGN_AA && (first == SIGN_E || first == SIGN_EE)) ||
           (second == LENGTH_MARK && (first == SIGN_E || first == LETTER_O));
}

/// Whether it is surely UTF-8 in the normal form; what isn't told at a glance counts as no.
bool isPlainlyNormal(std::string_view text) {
    char32_t previous = 0;
    for (std::size_t position = 0; position < text.size();) {
        if (static_cast<unsigned char>(text[position]) < 0x80) {
            previous = 0;
            ++position;
            continue;
        }
        utf8proc_int32_t value = 0;
        const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + position,
                                           static_cast<utf8proc_ssize_t>(text.size() - position), &value);
        const auto codePoint = static_cast<char32_t>(value);
        if (size <= 0 || (isTamil(codePoint) ? compose(previous, codePoint) : !isStable(codePoint))) {
            return false;
        }
        previous = codePoint;
        position += static_cast<std::size_t>(size);
    }
    return true;
}

std::string withoutBadBytes(std::string_view text) {
    std::string good;
    good.reserve(text.size());
    while (!text.empty()) {
        utf8proc_int32_t value = 0;
        const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                           static_cast<utf8proc_ssize_t>(text.size()), &value);
        const std::size_t taken = size > 0 ? static_cast<std::size_t>(size) : 1;
        good += size > 0 ? text.substr(0, taken) : std::string_view("\xEF\xBF\xBD");
        text.remove_prefix(taken);
    }
    return good;
}

std::string composed(std::string_view text) {
    utf8proc_uint8_t* result = nullptr;
    const auto size =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &result, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, std::free);
    if (size < 0) {
        raiseOutOfMemory();
    }
    return std::string(reinterpret_cast<const char*>(result), static_cast<std::size_t>(size));
}

/// Where the last code point begins that keeps what stands before it from what comes after.
std::size_t lastStable(std::string_view text) {
    std::size_t position = text.size();
    while (position > 0) {
        position = codePointBegin(text, position - 1);
        if (isStable(codePointAt(text, position).value)) {
            break;
        }
    }
    return position;
}

std::size_t firstStable(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        const CodePoint codePoint = codePointAt(text, position);
        if (isStable(codePoint.value)) {
            break;
        }
        position += codePoint.size;
    }
    return position;
}

} // namespace

void normalize(std::string& text) {
    if (!isPlainlyNormal(text)) {
        text = composed(withoutBadBytes(text));
    }
}

void appendNormalized(std::string& left, std::string_view right) {
    if (left.empty() || right.empty() || isStable(codePointAt(right, 0).value)) {
        left.append(right);
        return;
    }
    const std::size_t begin = lastStable(left);
    const std::size_t end = firstStable(right);
    const std::string rest(right.substr(end));
    const std::string seam = composed(left.substr(begin) + std::string(right.substr(0, end)));
    left.resize(begin);
    left += seam;
    left += rest;
}

} // namespace pozhil::engine

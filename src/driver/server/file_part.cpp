#include "driver/server/file_part.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <optional>
#include <string_view>

namespace pozhil {
namespace {

constexpr std::string_view UNIT = "bytes=";

bool beginsWithUnit(std::string_view header) {
    return header.size() >= UNIT.size() && std::equal(UNIT.begin(), UNIT.end(), header.begin(), [](char unit, char c) {
               return unit == std::tolower(static_cast<unsigned char>(c));
           });
}

/// The number that decimal digits spell; the largest of all for whatever is beyond it.
std::optional<std::uint64_t> numberOf(std::string_view digits) {
    constexpr std::uint64_t LARGEST = std::numeric_limits<std::uint64_t>::max();
    constexpr std::uint64_t BASE = 10;
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (const char c : digits) {
        const auto digit = static_cast<std::uint64_t>(c - '0');
        number = number > (LARGEST - digit) / BASE ? LARGEST : number * BASE + digit;
    }
    return number;
}

FilePart partOf(std::uint64_t first, std::uint64_t length) {
    return {length == 0 ? FilePart::Kind::Impossible : FilePart::Kind::Part, first, length};
}

} // namespace

FilePart rangeOf(std::string_view header, std::uint64_t size) {
    if (!beginsWithUnit(header)) {
        return {};
    }
    header.remove_prefix(UNIT.size());
    const std::size_t dash = header.find('-');
    if (dash == std::string_view::npos) {
        return {};
    }
    const auto first = numberOf(header.substr(0, dash));
    const auto last = numberOf(header.substr(dash + 1));
    const bool isOpen = dash + 1 == header.size();
    if (dash == 0 && last) {
        const std::uint64_t length = std::min(*last, size);
        return partOf(size - length, length);
    }
    if (!first || (!last && !isOpen) || (last && *last < *first)) {
        return {};
    }
    if (*first >= size) {
        return partOf(0, 0);
    }
    const std::uint64_t end = isOpen ? size : std::min(*last, size - 1) + 1;
    return partOf(*first, end - *first);
}

} // namespace pozhil

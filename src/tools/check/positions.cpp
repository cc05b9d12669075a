#include "tools/check/positions.h"

#include "report/code_point.h"

#include <algorithm>

namespace pozhil::tools {
namespace {

constexpr std::string_view REPLACEMENT = "\xEF\xBF\xBD";

std::size_t utf16Units(std::string_view text) {
    constexpr utf8proc_int32_t FIRST_OF_TWO_UNITS = 0x10000;
    std::size_t units = 0;
    for (std::size_t at = 0; at < text.size();) {
        const report::CodePoint point = report::codePointAt(text, at);
        units += point.value >= FIRST_OF_TWO_UNITS ? 2 : 1;
        at += point.size;
    }
    return units;
}

} // namespace

Position positionAt(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, std::min(offset, text.size()));
    const std::size_t lineBegin = before.rfind('\n') + 1; // npos + 1 is the beginning of the text
    const std::string_view inLine = before.substr(lineBegin);
    const auto lines = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    return {1 + lines, 1 + inLine.size(), 1 + utf16Units(inLine)};
}

std::string validUtf8(std::string_view text) {
    constexpr unsigned char FIRST_LONG = 0x80;
    std::string valid;
    for (std::size_t at = 0; at < text.size();) {
        const report::CodePoint point = report::codePointAt(text, at);
        const bool isBroken = point.size == 1 && static_cast<unsigned char>(text[at]) >= FIRST_LONG;
        valid += isBroken ? REPLACEMENT : text.substr(at, point.size);
        at += point.size;
    }
    return valid;
}

} // namespace pozhil::tools

#include "scanner/second/edition_marker.h"

#include "base/number_text.h"
#include "base/text.h"
#include "scanner/second/normal_form.h"

#include <algorithm>

namespace pozhil::second {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view COMMENT = "ஃ";
constexpr std::string_view LANGUAGE = "பொழில்";
constexpr std::string_view BLANKS = " \t\r";

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(BLANKS), text.size()));
}

bool take(std::string_view& text, std::string_view beginning) {
    const bool begins = startsWith(text, beginning);
    if (begins) {
        text.remove_prefix(beginning.size());
    }
    return begins;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::optional<std::string> markedEdition(std::string_view line) {
    take(line, BYTE_ORDER_MARK);
    skipBlanks(line);
    if (!take(line, COMMENT)) {
        return std::nullopt;
    }
    const std::string rest = normalForm(line);
    std::string_view text = rest;
    skipBlanks(text);
    if (!take(text, LANGUAGE)) {
        return std::nullopt;
    }
    skipBlanks(text);
    text = text.substr(0, text.find_last_not_of(BLANKS) + 1);
    const std::string number = toAsciiDigits(text);
    if (number.empty() || !std::all_of(number.begin(), number.end(), isDigit)) {
        return std::nullopt;
    }
    return number.substr(std::min(number.find_first_not_of('0'), number.size() - 1));
}

} // namespace pozhil::second

#include "scanner/second/edition_marker.h"

#include "base/letters.h"
#include "base/number_text.h"
#include "base/text.h"
#include "scanner/second/normal_form.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view COMMENT = "ஃ";
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";
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

/// Takes what stands before the next blank.
std::string_view takeWord(std::string_view& text) {
    skipBlanks(text);
    const std::string_view word = text.substr(0, text.find_first_of(BLANKS));
    text.remove_prefix(word.size());
    return word;
}

/// Whether a word is the name of the language, or a slip of it.
bool isLanguageName(std::string_view word) {
    return letterDistance(splitLetters(word), splitLetters(LANGUAGE), 1) <= 1;
}

/// Whether a word says that something is the second.
bool isTwo(std::string_view word) {
    constexpr std::string_view WORDS[] = {"இரண்டு", "இரண்டாம்", "இரண்டாவது", "II"};
    return startsWith(toAsciiDigits(word), "2") ||
           std::find(std::begin(WORDS), std::end(WORDS), word) != std::end(WORDS);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

bool isAlmostMarker(std::string_view line) {
    constexpr std::string_view SIGNS[] = {BLOCK_COMMENT, COMMENT, "//", "#"};
    constexpr std::string_view EDITION = "பதிப்பு";
    if (markedEdition(line)) {
        return false;
    }
    take(line, BYTE_ORDER_MARK);
    const std::string normal = normalForm(line);
    std::string_view text = normal;
    skipBlanks(text);
    const bool hasSign =
        std::any_of(std::begin(SIGNS), std::end(SIGNS), [&](std::string_view sign) { return take(text, sign); });
    const std::string_view name = takeWord(text);
    std::string_view number = takeWord(text);
    if (number == EDITION) {
        number = takeWord(text);
    }
    // Code, and a comment with another word, mean nothing of the kind if more stands on the line.
    skipBlanks(text);
    const bool mayGoOn = hasSign && name == LANGUAGE;
    return isLanguageName(name) && isTwo(number) && (mayGoOn || text.empty());
}

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

std::optional<ByteRange> lateMarker(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t begin = std::min(text.find_first_not_of(BLANKS, position), text.size());
        if (startsWith(text.substr(begin), BLOCK_COMMENT)) {
            const std::size_t closing = text.find(BLOCK_COMMENT, begin + BLOCK_COMMENT.size());
            position = closing == std::string_view::npos ? text.size() : closing + BLOCK_COMMENT.size();
            continue;
        }
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string_view line = text.substr(begin, end - begin);
        if (position > 0 && markedEdition(line) == SECOND_EDITION) {
            return ByteRange{static_cast<std::uint32_t>(position), static_cast<std::uint32_t>(end)};
        }
        if (!line.empty() && !startsWith(line, COMMENT)) {
            return std::nullopt;
        }
        position = end + 1;
    }
    return std::nullopt;
}

} // namespace pozhil::second

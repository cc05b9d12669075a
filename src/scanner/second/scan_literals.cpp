#include "base/number_text.h"
#include "base/script_checks.h"
#include "base/text.h"
#include "base/utf8.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/normal_form.h"
#include "scanner/second/scan.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace pozhil::second {
namespace {

constexpr std::string_view LARGEST_NUMBER = "9223372036854775807";

bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isTooLarge(const std::string& number) {
    if (number.find('.') != std::string::npos) {
        return std::isinf(std::strtod(number.c_str(), nullptr));
    }
    return number.size() > LARGEST_NUMBER.size() || (number.size() == LARGEST_NUMBER.size() && number > LARGEST_NUMBER);
}

/// A number without zeros before it, and with a digit on both sides of its point.
std::string plainNumber(const std::string& digits) {
    std::string number = digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
    if (number.front() == '.') {
        number.insert(0, "0");
    }
    if (number.back() == '.') {
        number += "0";
    }
    return number;
}

} // namespace

/// A text may run over lines; one that nobody closed ends with its own.
void Scan::scanText() {
    const std::size_t begin = position_++;
    const bool isCut = cutTexts_.count(begin) != 0;
    lastText_ = begin;
    std::string value;
    while (peek() != '"' || isAtEnd()) {
        if (isCut && (isAtEnd() || peek() == '\n')) {
            fault(fault::OPEN_TEXT, begin);
            push(TokenType::STRING, normalForm(value), begin);
            layout_.dropBrackets();
            return;
        }
        if (isAtEnd()) {
            throw OpenText();
        }
        if (peek() == '\\') {
            takeEscape(value);
        } else if (startsWith(rest(), "\r\n")) {
            ++position_; // editors differ in their line ends, texts don't
        } else {
            value += text_[position_++];
        }
    }
    ++position_;
    push(TokenType::STRING, normalForm(value), begin);
    if (textSince(begin).find('\n') == std::string_view::npos) {
        return;
    }
    skipLinesSince(begin);
    const Character next = character();
    if (!firstLongText_) {
        firstLongText_ = begin;
    }
    if (!suspiciousText_ && (isLetter(next) || isAnyDigit(next))) {
        suspiciousText_ = begin;
    }
}

/// One letter, which is a text like any other.
void Scan::scanLetter() {
    const std::size_t begin = position_++;
    std::string value;
    while (!isAtEnd() && peek() != '\'' && peek() != '\n') {
        if (peek() == '\\') {
            takeEscape(value);
        } else {
            value += text_[position_++];
        }
    }
    const bool isClosed = peek() == '\'';
    position_ += isClosed ? 1 : 0;
    if (!isClosed) {
        fault(fault::OPEN_LETTER, begin);
    } else if (value.empty()) {
        fault(fault::EMPTY_LETTER, begin);
    }
    push(TokenType::STRING, normalForm(value), begin);
    if (!isClosed) {
        layout_.dropBrackets();
    }
}

/// What word processors make of a text: told once, and taken for the text that it was meant to be.
void Scan::scanCurlyText() {
    const std::size_t begin = position_;
    position_ += character().size;
    const std::size_t opening = position_;
    while (!isAtEnd() && peek() != '\n' && peek() != '"' && !isCurlyQuote(character())) {
        position_ += character().size;
    }
    std::string value = normalForm(textSince(opening));
    const bool isClosed = !isAtEnd() && peek() != '\n';
    position_ += isClosed ? character().size : 0;
    fault(fault::CURLY_QUOTE, begin);
    push(TokenType::STRING, std::move(value), begin);
    if (!isClosed) {
        layout_.dropBrackets();
    }
}

void Scan::takeEscape(std::string& value) {
    const std::size_t begin = position_++;
    if (takeOctal(value)) {
        return;
    }
    const Character escaped = character();
    switch (escaped.codePoint) {
    case '"':
    case '\'':
    case '\\': value += peek(); break;
    case 'n': value += '\n'; break;
    case 't': value += '\t'; break;
    case 'r': value += '\r'; break;
    default:
        if (isAtEnd() || peek() == '\n') {
            fault(fault::UNKNOWN_ESCAPE, begin, {"\\"});
            return;
        }
        position_ += escaped.size;
        fault(fault::UNKNOWN_ESCAPE, begin, {std::string(textSince(begin))});
        return;
    }
    ++position_;
}

/// The number of an ASCII character in up to three octal digits.
bool Scan::takeOctal(std::string& value) {
    constexpr int OCTAL = 8;
    constexpr int AFTER_ASCII = 128;
    constexpr std::size_t MOST_DIGITS = 3;
    int code = 0;
    std::size_t digits = 0;
    while (digits < MOST_DIGITS && position_ + digits < text_.size() && text_[position_ + digits] >= '0' &&
           text_[position_ + digits] < '8') {
        code = code * OCTAL + (text_[position_ + digits] - '0');
        ++digits;
    }
    if (code == 0 || code >= AFTER_ASCII) {
        return false;
    }
    value += static_cast<char>(code);
    position_ += digits;
    return true;
}

/// Takes a digit or point, as ASCII.
bool Scan::takeDigit(std::string& digits) {
    const Character next = character();
    const bool isTamil = isTamilDigit(next);
    if (!isTamil && !isAsciiDigit(peek()) && peek() != '.') {
        return false;
    }
    digits += isTamil ? toAsciiDigits(rest().substr(0, next.size)) : std::string(1, peek());
    position_ += next.size;
    return true;
}

void Scan::scanNumber() {
    const std::size_t begin = position_;
    std::string digits;
    while (takeDigit(digits)) {
    }
    const std::string_view written = textSince(begin);
    const bool hasAscii = std::any_of(written.begin(), written.end(), isAsciiDigit);
    const bool hasTamil = written.size() != digits.size();
    const std::size_t wordBegin = position_;
    position_ = wordEnd(position_);
    std::string number = plainNumber(digits);
    if (position_ != wordBegin) {
        fault(fault::WORD_AFTER_NUMBER, begin,
              {std::string(text_.substr(begin, wordBegin - begin)), std::string(textSince(wordBegin))});
    } else if (std::count(digits.begin(), digits.end(), '.') > 1) {
        fault(fault::SEVERAL_POINTS, begin);
    } else if (hasAscii && hasTamil) {
        fault(fault::MIXED_DIGITS, begin);
    } else if (isTooLarge(number)) {
        fault(fault::LARGE_NUMBER, begin, {std::string(textSince(begin))});
    } else if (isPercentSign()) {
        ++position_;
        push(TokenType::PERCENT, number + "%", begin);
        return;
    } else {
        push(TokenType::NUMBER, std::move(number), begin);
        return;
    }
    push(TokenType::NUMBER, "0", begin);
}

/// Whether a percentage ends here, which only widgets take: elsewhere, and before an operand, the sign is that of another
/// language for the remainder.
bool Scan::isPercentSign() const {
    if (peek() != '%' || !layout_.isAmongItems()) {
        return false;
    }
    const Character next = characterAt(text_, position_ + 1);
    return !isLetter(next) && !isAnyDigit(next) && next.codePoint != '(' && next.codePoint != '_';
}

} // namespace pozhil::second

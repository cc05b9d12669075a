#include "generator/second/literals.h"

#include "base/utf8.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace pozhil::resolved::writer {
namespace {

/// How long one literal grows before the next begins.
constexpr std::size_t LONGEST_PIECE = 400;

/// Three octal digits, so that whatever follows is no part of it.
void appendOctal(std::string& out, char byte) {
    const auto value = static_cast<unsigned char>(byte);
    out += '\\';
    out += static_cast<char>('0' + value / 64);
    out += static_cast<char>('0' + value / 8 % 8);
    out += static_cast<char>('0' + value % 8);
}

/// Whether a whole sequence of UTF-8 may stand in the emitted text as it is. Marks of direction and the like would lead
/// the eye astray.
bool isShownAsItIs(std::string_view character) {
    const std::size_t length = character.size();
    if (length < 2 || length != getUTF8SequenceLength(character.front())) {
        return false;
    }
    for (std::size_t index = 1; index < length; ++index) {
        if ((static_cast<unsigned char>(character[index]) & 0xC0U) != 0x80U) {
            return false;
        }
    }
    const auto second = static_cast<unsigned char>(character[1]);
    const bool isControl = length == 2 && character.front() == '\xC2' && second < 0xA0;
    const bool isGeneralMark = length == 3 && character.front() == '\xE2' && (second == 0x80 || second == 0x81);
    return !isControl && !isGeneralMark;
}

bool isPrintableAscii(char byte) {
    return byte >= ' ' && byte <= '~';
}

void appendEscaped(std::string& out, std::string_view character) {
    const char byte = character.front();
    if (byte == '\n') {
        out += "\\n";
    } else if (byte == '\t') {
        out += "\\t";
    } else if (byte == '"' || byte == '\\' || byte == '?') {
        // "??" and a third character would be one in the eyes of an older standard.
        out += byte == '?' && (out.empty() || out.back() != '?') ? "" : "\\";
        out += byte;
    } else if (isPrintableAscii(byte) || isShownAsItIs(character)) {
        out += character;
    } else {
        for (const char one : character) {
            appendOctal(out, one);
        }
    }
}

} // namespace

std::string textLiteral(std::string_view bytes) {
    std::string literal;
    std::string piece;
    const auto endPiece = [&] {
        literal += literal.empty() ? "\"" : "\n    \"";
        literal += piece + "\"";
        piece.clear();
    };
    while (!bytes.empty()) {
        const std::string_view character = firstCharacter(bytes);
        // A sequence that isn't whole is taken byte by byte, or the next character would be torn.
        const std::string_view taken =
            character.size() > 1 && !isShownAsItIs(character) ? bytes.substr(0, 1) : character;
        appendEscaped(piece, taken);
        bytes.remove_prefix(taken.size());
        if (!bytes.empty() && (piece.size() >= LONGEST_PIECE || (taken == "\n" && piece.size() > LONGEST_PIECE / 4))) {
            endPiece();
        }
    }
    endPiece();
    return literal;
}

std::string wholeLiteral(std::int64_t value) {
    if (value == std::numeric_limits<std::int64_t>::min()) {
        return "(" + std::to_string(value + 1) + "LL - 1)";
    }
    const std::string digits = std::to_string(value) + "LL";
    return value < 0 ? "(" + digits + ")" : digits;
}

std::string decimalLiteral(double value) {
    if (std::isnan(value)) {
        return "__builtin_nan(\"\")";
    }
    if (std::isinf(value)) {
        return value > 0 ? "__builtin_inf()" : "(-__builtin_inf())";
    }
    std::array<char, 32> buffer{};
    const std::to_chars_result end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    std::string digits(buffer.data(), end.ptr);
    if (digits.find_first_of(".e") == std::string::npos) {
        digits += ".0";
    }
    return digits.front() == '-' ? "(" + digits + ")" : digits;
}

std::string lineComment(std::string_view text) {
    std::string comment = "// ";
    while (!text.empty()) {
        const std::string_view character = firstCharacter(text);
        const bool isShown = character.size() > 1 ? isShownAsItIs(character) : isPrintableAscii(character.front());
        if (isShown) {
            comment += character;
        } else {
            comment += character == "\t" ? " " : "·";
        }
        text.remove_prefix(isShown ? character.size() : 1);
    }
    // It would take the next line into the comment.
    if (comment.back() == '\\') {
        comment += " ·";
    }
    return comment;
}

} // namespace pozhil::resolved::writer

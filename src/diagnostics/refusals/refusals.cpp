#include "diagnostics/refusals/refusals.h"

#include "base/text.h"
#include "base/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace pozhil {
namespace {

constexpr std::string_view COMMENT = "ஃ";

/// The words that can name nothing in the emitted text.
constexpr std::array<std::string_view, 91> WORDS_OF_CPP = {
    "EOF",         "NULL",    "alignas",      "alignof",   "and",          "and_eq",
    "asm",         "auto",    "bitand",       "bitor",     "bool",         "break",
    "case",        "catch",   "char",         "char16_t",  "char32_t",     "class",
    "compl",       "const",   "const_cast",   "constexpr", "continue",     "decltype",
    "default",     "delete",  "do",           "double",    "dynamic_cast", "else",
    "enum",        "errno",   "explicit",     "export",    "extern",       "false",
    "float",       "for",     "friend",       "goto",      "if",           "inline",
    "int",         "long",    "main",         "mutable",   "namespace",    "new",
    "noexcept",    "not",     "not_eq",       "nullptr",   "operator",     "or",
    "or_eq",       "private", "protected",    "public",    "register",     "reinterpret_cast",
    "return",      "short",   "signed",       "sizeof",    "static",       "static_assert",
    "static_cast", "std",     "stdin",        "stdout",    "struct",       "switch",
    "template",    "this",    "thread_local", "throw",     "true",         "try",
    "typedef",     "typeid",  "typename",     "union",     "unsigned",     "using",
    "virtual",     "void",    "volatile",     "wchar_t",   "while",        "xor",
    "xor_eq"};

/// The part of a text up to \p separator, which is taken from its front together with it.
std::string_view takePart(std::string_view& text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

bool holdsInOrder(std::string_view text, std::string_view pieces) {
    while (!pieces.empty()) {
        const std::string_view piece = takePart(pieces, '*');
        const std::size_t found = text.find(piece);
        if (found == std::string_view::npos) {
            return false;
        }
        text.remove_prefix(found + piece.size());
    }
    return true;
}

bool matches(std::string_view text, std::string_view pattern) {
    if (pattern.empty()) {
        return true;
    }
    while (!pattern.empty()) {
        if (holdsInOrder(text, takePart(pattern, '|'))) {
            return true;
        }
    }
    return false;
}

bool isNameByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string_view nameAt(std::string_view text, std::size_t begin) {
    const std::string_view rest = text.substr(std::min(begin, text.size()));
    const auto* end = std::find_if_not(rest.begin(), rest.end(), isNameByte);
    return rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
}

/// The user's function that a message speaks of, else what it quotes first.
std::string_view nameIn(std::string_view message) {
    constexpr std::string_view FUNCTION = "fn_";
    const std::size_t function = message.find(FUNCTION);
    if (function != std::string_view::npos) {
        return nameAt(message, function + FUNCTION.size());
    }
    const std::size_t quote = message.find('\'');
    return quote == std::string_view::npos ? std::string_view() : nameAt(message, quote + 1);
}

} // namespace

/// g++ spells letters as \U00000b85 where the user's language settings know none but those of English.
std::string plainMessage(std::string_view message) {
    constexpr std::string_view ESCAPE = "\\U";
    constexpr std::size_t DIGITS = 8;
    constexpr int HEXADECIMAL = 16;
    std::string plain;
    while (!message.empty()) {
        std::uint32_t codePoint = 0;
        if (startsWith(message, ESCAPE) && message.size() >= ESCAPE.size() + DIGITS) {
            const char* digits = message.data() + ESCAPE.size();
            if (std::from_chars(digits, digits + DIGITS, codePoint, HEXADECIMAL).ptr == digits + DIGITS) {
                appendUtf8(plain, codePoint);
                message.remove_prefix(ESCAPE.size() + DIGITS);
                continue;
            }
        }
        if (startsWith(message, "‘") || startsWith(message, "’")) {
            plain += '\'';
            message.remove_prefix(std::string_view("‘").size());
            continue;
        }
        plain += message.front() == '`' ? '\'' : message.front();
        message.remove_prefix(1);
    }
    return plain;
}

std::string codeOf(std::string_view statement) {
    std::string code;
    char quote = 0;
    for (std::size_t at = 0; at < statement.size(); ++at) {
        const char c = statement[at];
        if (quote != 0) {
            quote = c == quote ? char(0) : quote;
            if (quote == 0) {
                code += c;
            }
            continue;
        }
        const bool canBeginComment = at == 0 || !isNameByte(statement[at - 1]);
        if (canBeginComment && startsWith(statement.substr(at), COMMENT)) {
            break;
        }
        quote = c == '"' || c == '\'' ? c : char(0);
        code += c;
    }
    return code;
}

const RefusalRow* findRefusal(const Refusal& refusal) {
    const std::string code = codeOf(refusal.statement);
    for (const RefusalRow& row : refusalRows()) {
        if (matches(refusal.message, row.message) && matches(code, row.code) &&
            (row.condition == nullptr || row.condition(refusal))) {
            return &row;
        }
    }
    return nullptr;
}

std::string fillRefusalText(std::string_view text, const Refusal& refusal) {
    std::string filled(text);
    replaceAll(filled, "$name", nameIn(refusal.message));
    const std::string code = codeOf(refusal.statement);
    replaceAll(filled, "$word", wordOfCpp(code));
    return filled;
}

std::string_view wordOfCpp(std::string_view code) {
    for (std::size_t at = 0; at < code.size();) {
        const std::string_view word = nameAt(code, at);
        if (std::find(WORDS_OF_CPP.begin(), WORDS_OF_CPP.end(), word) != WORDS_OF_CPP.end()) {
            return word;
        }
        at += std::max<std::size_t>(word.size(), 1);
    }
    return {};
}

} // namespace pozhil

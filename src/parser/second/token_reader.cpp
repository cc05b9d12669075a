#include "parser/second/token_reader.h"

#include "base/letters.h"

#include <algorithm>

namespace pozhil::second {
namespace {

bool isOpening(TokenType type) {
    return type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE;
}

/// What closes a bracket of this kind.
TokenType closingType(TokenType opening) {
    switch (opening) {
    case TokenType::LPAREN: return TokenType::RPAREN;
    case TokenType::LBRACKET: return TokenType::RBRACKET;
    default: return TokenType::RBRACE;
    }
}

bool isClosing(TokenType type) {
    return type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE;
}

/// For every opening bracket the index of its closing one.
std::vector<std::size_t> matchBrackets(const std::vector<Token>& tokens) {
    std::vector<std::size_t> closings(tokens.size(), TokenReader::NONE);
    std::vector<std::size_t> open;
    for (std::size_t index = 0; index < tokens.size(); ++index) {
        const TokenType type = tokens[index].type;
        if (isOpening(type)) {
            open.push_back(index);
        } else if (isClosing(type)) {
            // Brackets that are never closed are passed over.
            while (!open.empty() && closingType(tokens[open.back()].type) != type) {
                open.pop_back();
            }
            if (!open.empty()) {
                closings[open.back()] = index;
                open.pop_back();
            }
        }
    }
    return closings;
}

bool isSemicolon(const Token& token) {
    return token.type == TokenType::NEWLINE && token.value == ";";
}

bool isLayout(TokenType type) {
    return type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
}

} // namespace

TokenReader::TokenReader(const ScannedSource& scanned) : scanned_(scanned), closings_(matchBrackets(scanned.tokens)) {}

bool TokenReader::isWordAt(std::size_t offset, std::string_view word) const {
    const Token& token = peek(offset);
    const bool isOfLanguage = token.type == TokenType::KEYWORD || token.type == TokenType::OPERATOR;
    return isOfLanguage && token.value == word;
}

bool TokenReader::isAtLineEnd() const {
    return isLayout(peek().type) || isAtEnd() || isClosing(peek().type);
}

bool TokenReader::isAfterLineEnd() const {
    return position_ == 0 || isLayout(previous().type);
}

const Token& TokenReader::advance() {
    const Token& taken = peek();
    if (!isAtEnd()) {
        indentation_ += taken.type == TokenType::INDENT ? 1 : 0;
        indentation_ -= taken.type == TokenType::DEDENT ? 1 : 0;
        ++position_;
    }
    return taken;
}

bool TokenReader::accept(TokenType type) {
    const bool fits = check(type) && !isAtEnd();
    if (fits) {
        advance();
    }
    return fits;
}

bool TokenReader::acceptWord(std::string_view word) {
    const bool fits = checkWord(word);
    if (fits) {
        advance();
    }
    return fits;
}

int TokenReader::openBrackets(std::size_t first) const {
    int open = 0;
    for (std::size_t index = first; index < position_; ++index) {
        open += closings_[index] == NONE ? 0 : 1;
        open -= isClosing(at(index).type) ? 1 : 0;
    }
    return open;
}

ByteRange TokenReader::rangeFrom(std::size_t first) const {
    std::size_t last = position_;
    while (last > first + 1 && isLayout(at(last - 1).type)) {
        --last;
    }
    const ByteRange begin = rangeOf(first);
    return last > first ? ByteRange{begin.begin, rangeOf(last - 1).end} : ByteRange{begin.begin, begin.begin};
}

ByteRange TokenReader::visibleRange() const {
    std::size_t index = position_;
    while (index > 0 && !isSemicolon(at(index)) && (isLayout(at(index).type) || isAtEnd())) {
        --index;
    }
    return rangeOf(index);
}

std::string TokenReader::shown(std::size_t index) const {
    constexpr std::size_t MOST_LETTERS = 30;
    if (isSemicolon(at(index))) {
        return "';'";
    }
    switch (at(index).type) {
    case TokenType::NEWLINE:
    case TokenType::INDENT:
    case TokenType::DEDENT: return "வரியின் முடிவு";
    case TokenType::END_OF_FILE: return "கோப்பின் முடிவு";
    default: break;
    }
    const ByteRange range = rangeOf(index);
    const std::string_view written =
        std::string_view(scanned_.source->text).substr(range.begin, range.end - range.begin);
    const std::string_view line = written.substr(0, written.find('\n'));
    const Letters letters = splitLetters(line);
    std::string text;
    for (std::size_t letter = 0; letter < std::min(letters.size(), MOST_LETTERS); ++letter) {
        text += letters[letter];
    }
    return "'" + text + (text.size() < written.size() ? "…'" : "'");
}

} // namespace pozhil::second

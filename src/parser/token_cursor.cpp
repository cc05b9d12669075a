#include "parser/token_cursor.h"

#include "diagnostics/fault.h"
#include "parser/variable_names.h"

#include <algorithm>
#include <utility>

namespace pozhil {
namespace {

bool isLayout(TokenType type) {
    return type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
}

bool isOpeningBracket(TokenType type) {
    return type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE;
}

bool isClosingBracket(TokenType type) {
    return type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE;
}

} // namespace

TokenCursor::TokenCursor(const ScannedSource& scanned, SourcePtr shownSource)
    : tokens_(scanned.tokens), places_(scanned.places), shownSource_(std::move(shownSource)) {}

const Token& TokenCursor::peek() const {
    return tokens_[current_];
}

const Token& TokenCursor::peekAhead(std::size_t offset) const {
    return tokens_[std::min(current_ + offset, tokens_.size() - 1)];
}

const Token& TokenCursor::previous() const {
    return tokens_[current_ == 0 ? 0 : current_ - 1];
}

bool TokenCursor::isAtEnd() const {
    return peek().type == TokenType::END_OF_FILE;
}

bool TokenCursor::check(TokenType type) const {
    return !isAtEnd() && peek().type == type;
}

bool TokenCursor::checkOneOf(TokenKinds kinds) const {
    return !isAtEnd() && std::find(kinds.begin(), kinds.end(), peek().type) != kinds.end();
}

bool TokenCursor::checkKeyword(std::string_view text) const {
    return check(TokenType::KEYWORD) && peek().value == text;
}

bool TokenCursor::checkName(std::string_view text) const {
    return (check(TokenType::IDENTIFIER) || check(TokenType::KEYWORD)) && peek().value == text;
}

bool TokenCursor::checkWord(TokenType type, std::string_view text) const {
    return check(type) || checkName(text);
}

bool TokenCursor::checkLayout() const {
    return isLayout(peek().type);
}

bool TokenCursor::isKeyAhead(TokenKinds kinds) const {
    return checkOneOf(kinds) && peekAhead(1).type == TokenType::COLON;
}

bool TokenCursor::isSectionWord() const {
    return checkOneOf({TokenType::DEFINITION, TokenType::UI_BODY, TokenType::HEADER});
}

/// The last search is remembered, since every bracket of a nest asks for the same token.
std::size_t TokenCursor::bracketEnd() {
    if (current_ >= bracketSearchStart_ && current_ <= bracketSearchEnd_) {
        return bracketSearchEnd_;
    }
    bracketSearchStart_ = current_;
    std::size_t end = current_;
    while (tokens_[end].type != TokenType::RPAREN && tokens_[end].type != TokenType::NEWLINE &&
           tokens_[end].type != TokenType::END_OF_FILE) {
        ++end;
    }
    bracketSearchEnd_ = end;
    return end;
}

bool TokenCursor::restOfLineHolds(TokenType type, std::string_view afterText, std::size_t& searchEnd) const {
    if (current_ < searchEnd) {
        return false;
    }
    bool armed = afterText.empty();
    std::size_t index = current_;
    for (; index < tokens_.size(); ++index) {
        const Token& token = tokens_[index];
        if (token.type == TokenType::NEWLINE || token.line != peek().line) {
            break;
        }
        if (armed && token.type == type) {
            return true;
        }
        armed = armed || token.value == afterText;
    }
    searchEnd = index;
    return false;
}

const Token& TokenCursor::advance() {
    if (!isAtEnd()) {
        openIndents_ += check(TokenType::INDENT) ? 1 : 0;
        openIndents_ -= check(TokenType::DEDENT) ? 1 : 0;
        ++current_;
    }
    return previous();
}

bool TokenCursor::accept(TokenType type) {
    if (!check(type)) {
        return false;
    }
    advance();
    return true;
}

Token TokenCursor::consume(TokenType type, const char* code, std::int32_t line) {
    if (!check(type)) {
        பிழை(code, line == -1 ? peek().line : line);
    }
    return advance();
}

Token TokenCursor::consumeName(const char* code, std::int32_t line) {
    if (isAtEnd() || !isValidVariableName(peek())) {
        பிழை(code, line == -1 ? peek().line : line);
    }
    return advance();
}

void TokenCursor::skipNewlines() {
    while (check(TokenType::NEWLINE)) {
        advance();
    }
}

void TokenCursor::skipLayout() {
    while (checkLayout()) {
        advance();
    }
}

/// Inside a bracketed list: lines may be indented as one likes, as long as none stands further out than the line that
/// opened the list, which stands at \p level.
void TokenCursor::handleIndentation(int level) {
    while (check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        if (check(TokenType::DEDENT) && indentation() <= level) {
            const std::int32_t line = peek().line;
            பிழை("பொழி-204", line < 2 ? line : line - 1);
        }
        advance();
    }
}

bool TokenCursor::atListItem(int level) {
    while (checkLayout()) {
        skipNewlines();
        handleIndentation(level);
    }
    return !check(TokenType::RPAREN) && !isAtEnd();
}

bool TokenCursor::nextListItem(int level) {
    while (atListItem(level)) {
        if (!accept(TokenType::COMMA)) {
            return true;
        }
    }
    return false;
}

ByteRange TokenCursor::rangeFrom(std::size_t first) const {
    if (places_.empty()) {
        return {};
    }
    std::size_t last = current_;
    while (last > first + 1 && isLayout(tokens_[last - 1].type)) {
        --last;
    }
    return {places_[first].begin, last > first ? places_[last - 1].end : places_[first].begin};
}

ByteRange TokenCursor::rangeOnLine(std::int32_t line) const {
    if (places_.empty()) {
        return {};
    }
    std::size_t index = current_;
    while (index > 0 && tokens_[index].line > line) {
        --index;
    }
    return places_[index];
}

int TokenCursor::openBrackets(std::size_t first) const {
    int open = 0;
    for (std::size_t index = first; index < current_; ++index) {
        open += isOpeningBracket(tokens_[index].type) ? 1 : 0;
        open -= isClosingBracket(tokens_[index].type) ? 1 : 0;
    }
    return open;
}

bool TokenCursor::checkClosingBracket() const {
    return isClosingBracket(peek().type);
}

std::string TokenCursor::getLineText(std::int32_t line) const {
    if (shownSource_->text.empty()) {
        return "(சோர்ஸ் கோடு கிடைக்கவில்லை)";
    }
    return std::string(lineOf(shownSource_->text, line));
}

void TokenCursor::பிழை(const std::string& code, std::int32_t line) const {
    throw Fault{பிழைவகை::இலக்கண_பிழை, code, shownSource_->path, line, "", getLineText(line)};
}

} // namespace pozhil

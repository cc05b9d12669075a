#include "base/source_text.h"
#include "diagnostics/fault.h"
#include "parser/parser.h"

#include <algorithm>

namespace pozhil {
namespace {

/// How high a tree may grow. Everything that walks the tree does so by recursion, and this many levels fit on the
/// stack of every system; nobody writes that much by hand.
constexpr int MAX_NESTING = 1000;

} // namespace

const Token& Parser::peek() const {
    return tokens_[current_];
}

const Token& Parser::peekBehind(std::size_t offset) const {
    return tokens_[std::min(current_ + offset, tokens_.size() - 1)];
}

const Token& Parser::previous() const {
    return tokens_[current_ == 0 ? 0 : current_ - 1];
}

bool Parser::is_at_end() const {
    return peek().type == TokenType::END_OF_FILE;
}

const Token& Parser::advance() {
    if (!is_at_end()) {
        indentation_ += check(TokenType::INDENT) ? 1 : 0;
        indentation_ -= check(TokenType::DEDENT) ? 1 : 0;
        ++current_;
    }
    return previous();
}

bool Parser::check(TokenType type) const {
    return !is_at_end() && peek().type == type;
}

bool Parser::checkKeyword(std::string_view text) const {
    return check(TokenType::KEYWORD) && peek().value == text;
}

/// Takes the token if it is of this type.
bool Parser::accept(TokenType type) {
    if (!check(type)) {
        return false;
    }
    advance();
    return true;
}

/// Takes a token of this type, or reports \p code at \p line, at the token's own line if that is -1.
Token Parser::consume(TokenType type, const char* code, std::int32_t line) {
    if (!check(type)) {
        பிழை(code, line == -1 ? peek().line : line);
    }
    return advance();
}

/// Takes a token that can name a variable, or reports like consume.
Token Parser::consumeName(const char* code, std::int32_t line) {
    if (is_at_end() || !isValidVariableName(peek())) {
        பிழை(code, line == -1 ? peek().line : line);
    }
    return advance();
}

void Parser::skipNewlines() {
    while (check(TokenType::NEWLINE)) {
        advance();
    }
}

/// Inside brackets that may span lines: line ends and indentation mean nothing.
void Parser::skipLayout() {
    while (check(TokenType::NEWLINE) || check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        advance();
    }
}

/// Inside a bracketed list: lines may be indented as one likes, as long as none stands further out than the line that
/// opened the list, which stands at \p level.
void Parser::handleIndentation(int level) {
    while (check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        if (check(TokenType::DEDENT) && indentation_ <= level) {
            const std::int32_t line = peek().line;
            பிழை("பொழி-204", line < 2 ? line : line - 1);
        }
        advance();
    }
}

/// Goes to the next item of a bracketed list; false at its closing bracket and at the end of the file.
/// \param level of the line that opened the list
bool Parser::atListItem(int level) {
    while (check(TokenType::NEWLINE) || check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        skipNewlines();
        handleIndentation(level);
    }
    return !check(TokenType::RPAREN) && !is_at_end();
}

/// The same for a list whose commas may stand or be left out.
bool Parser::nextListItem(int level) {
    while (atListItem(level)) {
        if (!accept(TokenType::COMMA)) {
            return true;
        }
    }
    return false;
}

std::string Parser::getLineText(std::int32_t line) const {
    if (source_.empty()) {
        return "(சோர்ஸ் கோடு கிடைக்கவில்லை)";
    }
    return std::string(lineOf(source_, line));
}

void Parser::பிழை(const std::string& code, std::int32_t line) const {
    throw Fault{பிழைவகை::இலக்கண_பிழை, code, filename_, line, "", getLineText(line)};
}

/// Counts one more level of the tree; ends the parse before the native stack would.
void Parser::enterNesting() {
    if (++nesting_ > MAX_NESTING) {
        பிழை("பொழி-291", peek().line);
    }
}

} // namespace pozhil

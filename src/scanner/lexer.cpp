#include "scanner/lexer.h"

#include "base/text.h"
#include "base/utf8.h"
#include "diagnostics/fault.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace pozhil {
namespace {

constexpr std::size_t TAB_WIDTH = 4;
constexpr std::string_view COMMENT = "ஃ";
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";

} // namespace

Lexer::Lexer(SourcePtr source) : source_(std::move(source)), text_(source_->text) {
    scanned_.source = source_;
}

Lexer::Lexer(std::string source, std::string fileName) : Lexer(makeSource(std::move(fileName), std::move(source))) {}

ScannedSource Lexer::scan(std::size_t maxFaults) {
    while (peek() != 0) {
        if (maxFaults == 0) {
            scanStep();
            continue;
        }
        try {
            scanStep();
        } catch (const Fault& fault) {
            resumeAfter(fault);
            if (scanned_.faults.size() == maxFaults) {
                break;
            }
        }
    }
    closeIndents();
    return std::move(scanned_);
}

std::vector<Token> Lexer::tokenize() {
    return scan().tokens;
}

void Lexer::scanStep() {
    tokenStart_ = position_;
    if (atLineStart_ && !startLine()) {
        return;
    }
    Token token = getNextToken();
    atLineStart_ = token.type == TokenType::NEWLINE;
    push(std::move(token));
}

/// Adds a token that reaches from where it began to the cursor.
void Lexer::push(Token token) {
    scanned_.tokens.push_back(std::move(token));
    scanned_.places.push_back({static_cast<std::uint32_t>(tokenStart_), static_cast<std::uint32_t>(position_)});
}

/// The steps at the start of a line. False if they used the line up: it was blank or held only a comment.
bool Lexer::startLine() {
    lineStart_ = position_;
    checkBlanksAreUniform();
    const std::size_t width = getCurrentIndent();
    // The width is a measure, not a count of bytes: after a tab this lands further on than the blanks reach.
    position_ += width;
    if (position_ > text_.size()) {
        throw std::out_of_range("indentation reaches past the end of the text");
    }
    if (peek() == '\n') {
        ++line_;
        advance();
        return false;
    }
    if (startsWith(rest(), BLOCK_COMMENT)) {
        return true;
    }
    if (startsWith(rest(), COMMENT)) {
        skipToLineEnd();
        return false;
    }
    changeIndent(width);
    return true;
}

void Lexer::checkBlanksAreUniform() const {
    const std::string_view line = rest();
    const std::string_view blanks = line.substr(0, line.find_first_not_of(" \t"));
    if (blanks.find(' ') != std::string_view::npos && blanks.find('\t') != std::string_view::npos) {
        பிழை("பொழி-110");
    }
}

std::size_t Lexer::getCurrentIndent() const {
    std::size_t width = 0;
    for (const char blank : text_.substr(lineStart_)) {
        if (blank == ' ') {
            ++width;
        } else if (blank == '\t') {
            width += TAB_WIDTH - width % TAB_WIDTH;
        } else {
            break;
        }
    }
    return width;
}

void Lexer::changeIndent(std::size_t width) {
    tokenStart_ = position_;
    if (width > indents_.back()) {
        indents_.push_back(width);
        push(makeToken(TokenType::INDENT, std::to_string(width)));
    }
    while (width < indents_.back()) {
        indents_.pop_back();
        push(makeToken(TokenType::DEDENT, std::to_string(indents_.back())));
        if (indents_.back() < width) {
            பிழை("பொழி-111");
        }
    }
}

void Lexer::closeIndents() {
    tokenStart_ = position_;
    while (indents_.back() > 0) {
        indents_.pop_back();
        push(makeToken(TokenType::DEDENT, "0"));
    }
    push(makeToken(TokenType::END_OF_FILE, ""));
}

/// The byte at the cursor; 0 at the end, so that a NUL byte reads as the end of the text.
char Lexer::peek() const {
    return position_ < text_.size() ? text_[position_] : '\0';
}

/// Takes one whole UTF-8 character, or what the end of the text leaves of it, and returns its first byte.
char Lexer::advance() {
    const char lead = peek();
    if (lead != 0) {
        position_ = std::min(position_ + getUTF8SequenceLength(lead), text_.size());
    }
    return lead;
}

std::string_view Lexer::rest() const {
    return text_.substr(position_);
}

std::string_view Lexer::character() const {
    const std::string_view text = rest();
    return text.empty() ? text : firstCharacter(text);
}

std::string_view Lexer::textSince(std::size_t start) const {
    return text_.substr(start, position_ - start);
}

void Lexer::skipWhitespace() {
    while (peek() == ' ' || peek() == '\t' || peek() == '\r') {
        ++position_;
    }
}

void Lexer::skipToLineEnd() {
    while (peek() != 0 && peek() != '\n') {
        advance();
    }
}

void Lexer::skipComments() {
    skipWhitespace();
    while (startsWith(rest(), COMMENT)) {
        if (startsWith(rest(), BLOCK_COMMENT)) {
            skipBlockComment();
        } else {
            skipToLineEnd();
        }
        skipWhitespace();
    }
}

void Lexer::skipBlockComment() {
    const std::size_t opening = position_ + BLOCK_COMMENT.size();
    const std::size_t closing = text_.find(BLOCK_COMMENT, opening);
    if (closing == std::string_view::npos) {
        பிழை("பொழி-118");
    }
    const std::string_view comment = text_.substr(opening, closing - opening);
    line_ += static_cast<std::int32_t>(std::count(comment.begin(), comment.end(), '\n'));
    position_ = closing + BLOCK_COMMENT.size();
}

void Lexer::பிழை(const std::string& code, Mend mend) const {
    const std::string_view fromLineStart = text_.substr(lineStart_);
    std::string lineText(fromLineStart.substr(0, fromLineStart.find('\n')));
    Fault fault{பிழைவகை::சொல்_பிழை, code, source_->path, line_, "", std::move(lineText)};
    fault.mend = std::move(mend);
    throw fault;
}

} // namespace pozhil

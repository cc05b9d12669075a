#include "parser/second/grammar.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {
namespace {

std::string closingText(TokenType type) {
    return type == TokenType::RPAREN ? ")" : type == TokenType::RBRACKET ? "]" : "}";
}

} // namespace

Grammar::Grammar(FileParse& parse)
    : parse_(parse), tokens_(parse.tokens), recovery_(parse.recovery), height_(parse.height) {}

void Grammar::notePlace(const void* part, ByteRange range) {
    parse_.places.add(part, parse_.sourceNumber, range);
}

void Grammar::enter() {
    if (!height_.enter()) {
        failHere(fault::NESTED_TOO_DEEP);
    }
}

void Grammar::wrap(Parts& parts) {
    if (!parts.wrap()) {
        failHere(fault::NESTED_TOO_DEEP);
    }
}

void Grammar::fail(int number, ByteRange range, std::vector<std::string> values) const {
    throw SyntaxFault{recovery_.faultAt(number, range, std::move(values))};
}

void Grammar::failHere(int number, std::vector<std::string> values) const {
    fail(number, tokens_.visibleRange(), std::move(values));
}

void Grammar::note(int number, ByteRange range, std::vector<std::string> values) {
    recovery_.note(recovery_.faultAt(number, range, std::move(values)));
}

Token Grammar::consumeName(const char* what) {
    if (canBeName(tokens_.peek())) {
        const Token& word = tokens_.advance();
        return {TokenType::IDENTIFIER, word.value, word.line};
    }
    std::string shown = tokens_.shown(tokens_.position());
    if (isWord(tokens_.peek())) {
        failHere(fault::RESERVED_WORD, {std::move(shown), what});
    }
    failHere(fault::NO_NAME, {what, std::move(shown)});
}

void Grammar::consumeClosing(TokenType type, std::size_t opening) {
    if (tokens_.accept(type)) {
        return;
    }
    failIfLeftOpen(type, opening);
    failHere(fault::NO_COMMA, {closingText(type), tokens_.shown(tokens_.position())});
}

void Grammar::consumeClosingOfOne(TokenType type, std::size_t opening) {
    if (tokens_.accept(type)) {
        return;
    }
    failIfLeftOpen(type, opening);
    failHere(fault::NO_SIGN, {"'" + closingText(type) + "'", tokens_.shown(tokens_.position())});
}

/// What stands on another line was most likely never meant to be in the bracket.
void Grammar::failIfLeftOpen(TokenType type, std::size_t opening) const {
    const bool isOnLine = tokens_.peek().line == tokens_.previous().line && !tokens_.isAtEnd();
    if (!isOnLine || (tokens_.isAtLineEnd() && tokens_.peek().value != ";")) {
        fail(fault::OPEN_BRACKET, tokens_.rangeOf(opening), {tokens_.at(opening).value, closingText(type)});
    }
}

void Grammar::consumeOpening(const char* what) {
    if (!tokens_.accept(TokenType::LPAREN)) {
        failHere(fault::NO_SIGN, {what, tokens_.shown(tokens_.position())});
    }
}

void Grammar::consumeColon() {
    if (tokens_.accept(TokenType::COLON)) {
        return;
    }
    const SecondFault missing =
        recovery_.faultAt(fault::NO_SIGN, tokens_.visibleRange(), {"':'", tokens_.shown(tokens_.position())});
    const bool isBeforeBlock = tokens_.check(TokenType::NEWLINE) && tokens_.peek(1).type == TokenType::INDENT;
    if (!isBeforeBlock) {
        throw SyntaxFault{missing};
    }
    recovery_.note(missing);
}

void Grammar::consumeStatementEnd() {
    if (tokens_.isAfterLineEnd() || tokens_.accept(TokenType::NEWLINE) || tokens_.isAtLineEnd()) {
        return;
    }
    failHere(fault::NO_STATEMENT_END, {tokens_.shown(tokens_.position() - 1), tokens_.shown(tokens_.position())});
}

ExpressionPtr Grammar::parseExpression() {
    return parse_.expressions.parseExpression();
}

} // namespace pozhil::second

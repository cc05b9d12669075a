#include "parser/second/databases.h"

#include "language/second/application_words.h"
#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {

namespace word = language::second::application;

bool DatabaseGrammar::isCallAhead(std::string_view name) const {
    return parse_.isInApplication && tokens_.peek().value == word::DATABASE && tokens_.check(TokenType::IDENTIFIER) &&
           tokens_.peek(1).type == TokenType::DOT && tokens_.peek(2).value == name &&
           tokens_.peek(3).type == TokenType::LPAREN;
}

bool DatabaseGrammar::isReadAhead() const {
    return isCallAhead(word::DATABASE_READ);
}

bool DatabaseGrammar::isWriteAhead() const {
    return isCallAhead(word::DATABASE_INSERT) || isCallAhead(word::DATABASE_UPDATE) ||
           isCallAhead(word::DATABASE_DELETE);
}

bool DatabaseGrammar::isWrite(const Expression& value) {
    return nodeCast<RTDBInsertExpression>(&value) != nullptr || nodeCast<RTDBUpdateExpression>(&value) != nullptr ||
           nodeCast<RTDBDeleteExpression>(&value) != nullptr;
}

StatementPtr DatabaseGrammar::parseRead() {
    const std::size_t first = tokens_.position();
    Parts parts(height_);
    ExpressionPtr path = parsePath();
    parts.next();
    const std::size_t opening = tokens_.position();
    consumeBrace();
    StatementList body = parse_.blocks.parseBracketed(TokenType::RBRACE);
    consumeClosingOfOne(TokenType::RBRACE, opening);
    return make<RTDBReadStatement>(first, std::move(path), std::move(body));
}

ExpressionPtr DatabaseGrammar::parseWrite() {
    const std::size_t first = tokens_.position();
    const std::string& name = tokens_.peek(2).value;
    Parts parts(height_);
    ExpressionPtr path = parsePath();
    if (name == word::DATABASE_DELETE) {
        return make<RTDBDeleteExpression>(first, std::move(path));
    }
    parts.next();
    std::unique_ptr<MapLiteral> entries = parseEntries();
    if (name == word::DATABASE_INSERT) {
        return make<RTDBInsertExpression>(first, std::move(path), std::move(entries));
    }
    return make<RTDBUpdateExpression>(first, std::move(path), std::move(entries));
}

/// The words of the call and the path in its bracket.
ExpressionPtr DatabaseGrammar::parsePath() {
    tokens_.advance();
    tokens_.advance();
    tokens_.advance();
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    ExpressionPtr path = parse_.expressions.parseInner();
    consumeClosingOfOne(TokenType::RPAREN, opening);
    return path;
}

void DatabaseGrammar::consumeBrace() {
    if (!tokens_.accept(TokenType::LBRACE)) {
        failHere(fault::NO_SIGN, {"'{'", tokens_.shown(tokens_.position())});
    }
}

/// { key : value, … }: keys are words or texts.
std::unique_ptr<MapLiteral> DatabaseGrammar::parseEntries() {
    const std::size_t opening = tokens_.position();
    consumeBrace();
    auto map = std::make_unique<MapLiteral>();
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RBRACE)) {
        siblings.next();
        const Token& key = tokens_.peek();
        if (!isWord(key) && key.type != TokenType::STRING) {
            failHere(fault::NO_NAME, {"சாவி", tokens_.shown(tokens_.position())});
        }
        tokens_.advance();
        if (!tokens_.accept(TokenType::COLON)) {
            failHere(fault::NO_SIGN, {"சாவிக்குப் பின் ':'", tokens_.shown(tokens_.position())});
        }
        map->entries.emplace_back(key.value, parse_.expressions.parseInner());
        if (!tokens_.accept(TokenType::COMMA)) {
            break;
        }
    }
    consumeClosing(TokenType::RBRACE, opening);
    place(*map, opening);
    return map;
}

} // namespace pozhil::second

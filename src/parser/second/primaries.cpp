#include "parser/second/primaries.h"

#include "parser/second/file_parse.h"
#include "parser/second/names.h"

namespace pozhil::second {

ExpressionPtr PrimaryGrammar::parsePrimary() {
    switch (tokens_.peek().type) {
    case TokenType::STRING: return parseLeaf<StringLiteral>();
    case TokenType::NUMBER: return parseNumber();
    case TokenType::BOOLEAN: return parseLeaf<BooleanLiteral>();
    case TokenType::LPAREN: return parseGrouping();
    case TokenType::LBRACKET: return parseList();
    case TokenType::LBRACE: return parseMap();
    case TokenType::PERCENT: return parsePercentage();
    default: break;
    }
    if (tokens_.checkWord("வினை")) {
        return parse_.functionValues.parseWordFunction();
    }
    if (parse_.databases.isWriteAhead()) {
        return parse_.databases.parseWrite();
    }
    if (parse_.widgets.isWidgetAhead()) {
        return parse_.widgets.parseWidgetExpression();
    }
    if (isNameHere()) {
        return parseLeaf<VariableAccess>();
    }
    failHere(fault::NO_VALUE, {tokens_.shown(tokens_.position())});
}

/// The word of an operator is a name where the operator would have nothing to work on.
bool PrimaryGrammar::isNameHere() const {
    if (!canBeName(tokens_.peek())) {
        return false;
    }
    const TokenType next = tokens_.peek(1).type;
    return tokens_.peek().type != TokenType::OPERATOR || !canBeginValue(tokens_.peek(1)) || next == TokenType::LPAREN ||
           next == TokenType::LBRACKET;
}

template <class Node> ExpressionPtr PrimaryGrammar::parseLeaf() {
    const std::size_t first = tokens_.position();
    return make<Node>(first, tokens_.advance().value);
}

ExpressionPtr PrimaryGrammar::parseNumber() {
    const bool hasPoint = tokens_.peek().value.find('.') != std::string::npos;
    return hasPoint ? parseLeaf<DoubleLiteral>() : parseLeaf<NumberLiteral>();
}

ExpressionPtr PrimaryGrammar::parsePercentage() {
    if (!parse_.takesPercentages) {
        note(fault::MISPLACED_PERCENTAGE, tokens_.rangeOf(tokens_.position()), {tokens_.peek().value});
    }
    return parseLeaf<PercentageLiteral>();
}

/// Brackets in a condition don't change what "=" most likely means.
ExpressionPtr PrimaryGrammar::parseGrouping() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    ExpressionPtr inner = parseExpression();
    consumeClosingOfOne(TokenType::RPAREN, first);
    return make<GroupingExpression>(first, std::move(inner));
}

ExpressionPtr PrimaryGrammar::parseList() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    ExpressionList elements;
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RBRACKET)) {
        siblings.next();
        elements.push_back(parse_.expressions.parseInner());
        if (!tokens_.accept(TokenType::COMMA)) {
            break;
        }
    }
    consumeClosing(TokenType::RBRACKET, first);
    auto list = make<ListLiteral>(first);
    list->elements = std::move(elements);
    return list;
}

ExpressionPtr PrimaryGrammar::parseMap() {
    const std::size_t first = tokens_.position();
    tokens_.advance();
    std::vector<std::pair<ExpressionPtr, ExpressionPtr>> entries;
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RBRACE)) {
        siblings.next();
        ExpressionPtr key = parseKey();
        if (!tokens_.accept(TokenType::COLON)) {
            failHere(fault::NO_SIGN, {"சாவிக்குப் பின் ':'", tokens_.shown(tokens_.position())});
        }
        siblings.next();
        entries.emplace_back(std::move(key), parse_.expressions.parseInner());
        if (!tokens_.accept(TokenType::COMMA)) {
            break;
        }
    }
    consumeClosing(TokenType::RBRACE, first);
    auto map = make<KeyedMapLiteral>(first);
    map->entries = std::move(entries);
    return map;
}

/// A bare word is the text of its letters, as in a text; any other value is a key as it is.
ExpressionPtr PrimaryGrammar::parseKey() {
    const Token& word = tokens_.peek();
    const bool isBareWord = isWord(word) && word.type != TokenType::BOOLEAN && tokens_.peek(1).type == TokenType::COLON;
    return isBareWord ? parseLeaf<StringLiteral>() : parse_.expressions.parseInner();
}

} // namespace pozhil::second

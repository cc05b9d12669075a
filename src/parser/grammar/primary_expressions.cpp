#include "parser/grammar/primary_expressions.h"

#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

template <class Node> ExpressionPtr literal(const Token& token) {
    auto node = std::make_unique<Node>(token.value);
    node->line = token.line;
    return node;
}

ExpressionPtr colorOrText(const Token& token) {
    if (token.value.empty() || token.value.front() != '#') {
        return literal<StringLiteral>(token);
    }
    auto node = std::make_unique<ColorExpression>(token.value, true);
    node->line = token.line;
    return node;
}

} // namespace

/// The innermost part of an expression: a literal, a name, or something in brackets.
ExpressionPtr PrimaryGrammar::parsePrimary() {
    if (cursor_.checkKeyword("வினை")) {
        return parse_.expressions.parseLambdaExpression();
    }
    if (ExpressionPtr write = parse_.database.parseDatabaseExpression()) {
        return write;
    }
    if (ExpressionPtr value = parseLiteral()) {
        return value;
    }
    if (parse_.widgets.isWidgetAhead()) {
        return parse_.widgets.parseWidgetExpression();
    }
    if (ExpressionPtr name = parseName()) {
        return name;
    }
    return parseGrouping();
}

/// An expression in parentheses, the last that may stand here.
ExpressionPtr PrimaryGrammar::parseGrouping() {
    const std::int32_t line = cursor_.peek().line;
    if (!cursor_.accept(TokenType::LPAREN)) {
        cursor_.பிழை("பொழி-201", line);
    }
    ExpressionPtr inner = parseExpression();
    cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    auto node = std::make_unique<GroupingExpression>(std::move(inner));
    node->line = line;
    return node;
}

/// A literal, null if none begins here. A text that starts with "#" is a colour wherever it stands.
ExpressionPtr PrimaryGrammar::parseLiteral() {
    switch (cursor_.peek().type) {
    case TokenType::STRING: return colorOrText(cursor_.advance());
    case TokenType::BOOLEAN: return literal<BooleanLiteral>(cursor_.advance());
    case TokenType::CHAR: return literal<CharLiteral>(cursor_.advance());
    case TokenType::PERCENT: return literal<PercentageLiteral>(cursor_.advance());
    case TokenType::NUMBER: {
        const Token& number = cursor_.advance();
        const bool hasPoint = number.value.find('.') != std::string::npos;
        return hasPoint ? literal<DoubleLiteral>(number) : literal<NumberLiteral>(number);
    }
    case TokenType::LBRACKET: return parseListLiteral(cursor_.advance().line);
    case TokenType::LBRACE: return parseMapLiteral(cursor_.advance().line);
    default: return nullptr;
    }
}

/// A name that is read, null if none begins here. Most words of the vocabulary can be names too; a statement's own word
/// has no line to give.
ExpressionPtr PrimaryGrammar::parseName() {
    switch (cursor_.peek().type) {
    case TokenType::KEYWORD:
    case TokenType::NAVIGATE:
    case TokenType::PAGE:
    case TokenType::DEFINITION: return std::make_unique<VariableAccess>(cursor_.advance().value);
    case TokenType::IDENTIFIER:
    case TokenType::HEADER:
    case TokenType::UI_BODY:
    case TokenType::STYLE:
    case TokenType::ON_PRESS:
    case TokenType::WIDTH:
    case TokenType::HEIGHT: return literal<VariableAccess>(cursor_.advance());
    case TokenType::BACKGROUND: {
        // The colours are read as members of this one word: நிறம்.சிவப்பு
        const bool isColorWord = cursor_.peek().value == "நிறம்" && cursor_.peekAhead(1).type == TokenType::DOT;
        return isColorWord ? literal<VariableAccess>(cursor_.advance()) : nullptr;
    }
    default: return isWidgetToken(cursor_.peek()) ? literal<VariableAccess>(cursor_.advance()) : nullptr;
    }
}

/// Elements on one line, the bracket already taken. A comma may stand after the last.
ExpressionPtr PrimaryGrammar::parseListLiteral(std::int32_t line) {
    auto list = std::make_unique<ListLiteral>();
    list->line = line;
    SideBySide siblings(nesting_);
    const auto isOver = [&] {
        return cursor_.check(TokenType::RBRACKET) || cursor_.check(TokenType::NEWLINE) || cursor_.isAtEnd();
    };
    while (!isOver()) {
        siblings.next();
        list->elements.push_back(parseExpression());
        if (!cursor_.accept(TokenType::COMMA) && !isOver()) {
            cursor_.பிழை("பொழி-207", cursor_.peek().line);
        }
    }
    cursor_.consume(TokenType::RBRACKET, "பொழி-205", line);
    return list;
}

/// Entries over as many lines as they need, the brace already taken.
std::unique_ptr<MapLiteral> PrimaryGrammar::parseMapLiteral(std::int32_t line) {
    auto map = std::make_unique<MapLiteral>();
    map->line = line;
    parseMapEntries(*map, KeyLayout::Kept);
    cursor_.consume(TokenType::RBRACE, "பொழி-206", line);
    return map;
}

void PrimaryGrammar::parseMapEntries(MapLiteral& map, KeyLayout afterKey) {
    SideBySide siblings(nesting_);
    do {
        siblings.next();
        cursor_.skipLayout();
        if (cursor_.check(TokenType::RBRACE)) {
            break;
        }
        if (!cursor_.check(TokenType::STRING) && !cursor_.check(TokenType::IDENTIFIER)) {
            cursor_.பிழை("பொழி-212", cursor_.peek().line);
        }
        std::string key = cursor_.advance().value;
        if (afterKey == KeyLayout::Skipped) {
            cursor_.skipLayout();
        }
        cursor_.consume(TokenType::COLON, "பொழி-202");
        cursor_.skipLayout();
        map.entries.emplace_back(std::move(key), parseExpression());
        cursor_.skipLayout();
    } while (cursor_.accept(TokenType::COMMA));
    cursor_.skipLayout();
}

} // namespace pozhil

#include "parser/parser.h"
#include "parser/siblings.h"
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
ExpressionPtr Parser::parsePrimary() {
    if (checkKeyword("வினை")) {
        return parseLambdaExpression();
    }
    if (ExpressionPtr write = parseDatabaseExpression()) {
        return write;
    }
    if (ExpressionPtr value = parseLiteral()) {
        return value;
    }
    if (isWidgetAhead()) {
        return parseWidgetExpression();
    }
    if (ExpressionPtr name = parseName()) {
        return name;
    }
    const std::int32_t line = peek().line;
    if (accept(TokenType::LPAREN)) {
        ExpressionPtr inner = parseExpression();
        consume(TokenType::RPAREN, "பொழி-204", line);
        auto node = std::make_unique<GroupingExpression>(std::move(inner));
        node->line = line;
        return node;
    }
    பிழை("பொழி-201", line);
}

/// A literal, null if none begins here. A text that starts with "#" is a colour wherever it stands.
ExpressionPtr Parser::parseLiteral() {
    switch (peek().type) {
    case TokenType::STRING: return colorOrText(advance());
    case TokenType::BOOLEAN: return literal<BooleanLiteral>(advance());
    case TokenType::CHAR: return literal<CharLiteral>(advance());
    case TokenType::PERCENT: return literal<PercentageLiteral>(advance());
    case TokenType::NUMBER: {
        const Token& number = advance();
        const bool hasPoint = number.value.find('.') != std::string::npos;
        return hasPoint ? literal<DoubleLiteral>(number) : literal<NumberLiteral>(number);
    }
    case TokenType::LBRACKET: return parseListLiteral(advance().line);
    case TokenType::LBRACE: return parseMapLiteral(advance().line);
    default: return nullptr;
    }
}

/// A name that is read, null if none begins here. Most words of the vocabulary can be names too; a statement's own word
/// has no line to give.
ExpressionPtr Parser::parseName() {
    switch (peek().type) {
    case TokenType::KEYWORD:
    case TokenType::NAVIGATE:
    case TokenType::PAGE:
    case TokenType::DEFINITION: return std::make_unique<VariableAccess>(advance().value);
    case TokenType::IDENTIFIER:
    case TokenType::HEADER:
    case TokenType::UI_BODY:
    case TokenType::STYLE:
    case TokenType::ON_PRESS:
    case TokenType::WIDTH:
    case TokenType::HEIGHT: return literal<VariableAccess>(advance());
    case TokenType::BACKGROUND: {
        // The colours are read as members of this one word: நிறம்.சிவப்பு
        const bool isColorWord = peek().value == "நிறம்" && peekBehind(1).type == TokenType::DOT;
        return isColorWord ? literal<VariableAccess>(advance()) : nullptr;
    }
    default: return isWidgetToken(peek()) ? literal<VariableAccess>(advance()) : nullptr;
    }
}

/// Elements on one line, the bracket already taken. A comma may stand behind the last.
ExpressionPtr Parser::parseListLiteral(std::int32_t line) {
    auto list = std::make_unique<ListLiteral>();
    list->line = line;
    Siblings siblings(*this);
    const auto isOver = [this] { return check(TokenType::RBRACKET) || check(TokenType::NEWLINE) || is_at_end(); };
    while (!isOver()) {
        siblings.next();
        list->elements.push_back(parseExpression());
        if (!accept(TokenType::COMMA) && !isOver()) {
            பிழை("பொழி-207", peek().line);
        }
    }
    consume(TokenType::RBRACKET, "பொழி-205", line);
    return list;
}

/// Entries over as many lines as they need, the brace already taken.
std::unique_ptr<MapLiteral> Parser::parseMapLiteral(std::int32_t line) {
    auto map = std::make_unique<MapLiteral>();
    map->line = line;
    parseMapEntries(*map, KeyLayout::Kept);
    consume(TokenType::RBRACE, "பொழி-206", line);
    return map;
}

/// key : value { , key : value }, up to the closing brace.
/// \param behindKey whether a line may end between a key and its colon
void Parser::parseMapEntries(MapLiteral& map, KeyLayout behindKey) {
    Siblings siblings(*this);
    do {
        siblings.next();
        skipLayout();
        if (check(TokenType::RBRACE)) {
            break;
        }
        if (!check(TokenType::STRING) && !check(TokenType::IDENTIFIER)) {
            பிழை("பொழி-212", peek().line);
        }
        std::string key = advance().value;
        if (behindKey == KeyLayout::Skipped) {
            skipLayout();
        }
        consume(TokenType::COLON, "பொழி-202");
        skipLayout();
        map.entries.emplace_back(std::move(key), parseExpression());
        skipLayout();
    } while (accept(TokenType::COMMA));
    skipLayout();
}

/// வினை [ ( ] names [ ) ] : expr
ExpressionPtr Parser::parseLambdaExpression() {
    const std::int32_t line = advance().line;
    const bool hasParenthesis = accept(TokenType::LPAREN);
    std::vector<Token> parameters;
    if (!check(TokenType::RPAREN) && !check(TokenType::COLON)) {
        do {
            skipNewlines();
            if (isValidVariableName(peek())) {
                parameters.push_back(advance());
            }
            accept(TokenType::COMMA);
            skipNewlines();
        } while (isValidVariableName(peek()));
    }
    if (hasParenthesis) {
        consume(TokenType::RPAREN, "பொழி-204");
    }
    consume(TokenType::COLON, "பொழி-202");
    auto lambda = std::make_unique<LambdaExpression>(std::move(parameters), parseExpression());
    lambda->line = line;
    return lambda;
}

} // namespace pozhil

#include "parser/grammar/primary_expressions.h"

#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {

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
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.peek().line;
    if (!cursor_.accept(TokenType::LPAREN)) {
        cursor_.பிழை("பொழி-201", line);
    }
    ExpressionPtr inner = parseExpression();
    cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    return makeNode<GroupingExpression>(first, line, std::move(inner));
}

/// The token at the cursor as a node of its own.
template <class Node> ExpressionPtr PrimaryGrammar::makeLeaf() {
    const std::size_t first = cursor_.position();
    const Token& token = cursor_.advance();
    return makeNode<Node>(first, token.line, token.value);
}

/// A literal, null if none begins here. A text that starts with "#" is a colour wherever it stands.
ExpressionPtr PrimaryGrammar::parseLiteral() {
    switch (cursor_.peek().type) {
    case TokenType::STRING: return parseText();
    case TokenType::BOOLEAN: return makeLeaf<BooleanLiteral>();
    case TokenType::CHAR: return makeLeaf<CharLiteral>();
    case TokenType::PERCENT: return makeLeaf<PercentageLiteral>();
    case TokenType::NUMBER: {
        const bool hasPoint = cursor_.peek().value.find('.') != std::string::npos;
        return hasPoint ? makeLeaf<DoubleLiteral>() : makeLeaf<NumberLiteral>();
    }
    case TokenType::LBRACKET: return parseListLiteral();
    case TokenType::LBRACE: return parseMapLiteral();
    default: return nullptr;
    }
}

ExpressionPtr PrimaryGrammar::parseText() {
    const std::string& text = cursor_.peek().value;
    if (text.empty() || text.front() != '#') {
        return makeLeaf<StringLiteral>();
    }
    const std::size_t first = cursor_.position();
    const Token& token = cursor_.advance();
    return makeNode<ColorExpression>(first, token.line, token.value, true);
}

/// A name that is read, null if none begins here. Most words of the vocabulary can be names too; a statement's own word
/// has no line to give.
ExpressionPtr PrimaryGrammar::parseName() {
    switch (cursor_.peek().type) {
    case TokenType::KEYWORD:
    case TokenType::NAVIGATE:
    case TokenType::PAGE:
    case TokenType::DEFINITION: {
        ExpressionPtr name = makeLeaf<VariableAccess>();
        name->line = 0;
        return name;
    }
    case TokenType::IDENTIFIER:
    case TokenType::HEADER:
    case TokenType::UI_BODY:
    case TokenType::STYLE:
    case TokenType::ON_PRESS:
    case TokenType::WIDTH:
    case TokenType::HEIGHT: return makeLeaf<VariableAccess>();
    case TokenType::BACKGROUND: {
        // The colours are read as members of this one word: நிறம்.சிவப்பு
        const bool isColorWord = cursor_.peek().value == "நிறம்" && cursor_.peekAhead(1).type == TokenType::DOT;
        return isColorWord ? makeLeaf<VariableAccess>() : nullptr;
    }
    default: return isWidgetToken(cursor_.peek()) ? makeLeaf<VariableAccess>() : nullptr;
    }
}

/// Elements on one line. A comma may stand after the last.
ExpressionPtr PrimaryGrammar::parseListLiteral() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
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
    return placed(first, std::move(list));
}

/// Entries over as many lines as they need.
ExpressionPtr PrimaryGrammar::parseMapLiteral() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
    auto map = std::make_unique<MapLiteral>();
    map->line = line;
    parseMapEntries(*map, KeyLayout::Kept);
    cursor_.consume(TokenType::RBRACE, "பொழி-206", line);
    return placed(first, std::move(map));
}

void PrimaryGrammar::parseMapEntries(MapLiteral& map, KeyLayout afterKey) {
    const TokenCursor::FreeLayout entries(cursor_);
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

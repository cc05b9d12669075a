#include "parser/parser.h"
#include "parser/siblings.h"

#include <utility>

namespace pozhil {

/// A database form that is a value, null if none begins here.
ExpressionPtr Parser::parseDatabaseExpression() {
    switch (peek().type) {
    case TokenType::RTDB_INSERT: return parseRTDBWrite<RTDBInsertExpression>();
    case TokenType::RTDB_UPDATE: return parseRTDBWrite<RTDBUpdateExpression>();
    case TokenType::RTDB_DELETE: return parseRTDBDeleteExpression();
    default: return nullptr;
    }
}

/// ( path ), the word already taken. An open bracket is reported at the \p line of the word.
ExpressionPtr Parser::parseDatabasePath(std::int32_t line) {
    consume(TokenType::LPAREN, "பொழி-203", line);
    ExpressionPtr path = parseExpression();
    consume(TokenType::RPAREN, "பொழி-204");
    return path;
}

/// word ( path ) { entries }
template <class Node> ExpressionPtr Parser::parseRTDBWrite() {
    const std::int32_t line = advance().line;
    Siblings parts(*this);
    ExpressionPtr path = parseDatabasePath(line);
    skipNewlines();
    consume(TokenType::LBRACE, "பொழி-206");
    parts.next();
    auto data = std::make_unique<MapLiteral>();
    data->line = line;
    parseMapEntries(*data, KeyLayout::Skipped);
    consume(TokenType::RBRACE, "பொழி-206");
    auto node = std::make_unique<Node>(std::move(path), std::move(data));
    node->line = line;
    return node;
}

/// நிகழ்நேர.தரவுஅழி ( path )
ExpressionPtr Parser::parseRTDBDeleteExpression() {
    const std::int32_t line = advance().line;
    auto node = std::make_unique<RTDBDeleteExpression>(parseDatabasePath(line));
    node->line = line;
    return node;
}

/// நிகழ்நேர.தரவுபடி ( path ) { statements }
StatementPtr Parser::parseRTDBReadStatement() {
    const std::int32_t line = advance().line;
    Siblings parts(*this);
    ExpressionPtr path = parseDatabasePath(line);
    skipNewlines();
    consume(TokenType::LBRACE, "பொழி-206");
    StatementList body;
    for (skipLayout(); !check(TokenType::RBRACE) && !is_at_end(); skipLayout()) {
        parts.next();
        if (StatementPtr statement = parseStatement(false)) {
            body.push_back(std::move(statement));
        }
    }
    consume(TokenType::RBRACE, "பொழி-206");
    auto node = std::make_unique<RTDBReadStatement>(std::move(path), std::move(body));
    node->line = line;
    return node;
}

} // namespace pozhil

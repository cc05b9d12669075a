#include "parser/grammar/database.h"

#include "parser/file_parse.h"

#include <utility>

namespace pozhil {

ExpressionPtr DatabaseGrammar::parseDatabaseExpression() {
    switch (cursor_.peek().type) {
    case TokenType::RTDB_INSERT: return parseRTDBWrite<RTDBInsertExpression>();
    case TokenType::RTDB_UPDATE: return parseRTDBWrite<RTDBUpdateExpression>();
    case TokenType::RTDB_DELETE: return parseRTDBDeleteExpression();
    default: return nullptr;
    }
}

/// ( path ), the word already taken. An open bracket is reported at the \p line of the word.
ExpressionPtr DatabaseGrammar::parseDatabasePath(std::int32_t line) {
    cursor_.consume(TokenType::LPAREN, "பொழி-203", line);
    ExpressionPtr path = parseExpression();
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
    return path;
}

/// word ( path ) { entries }
template <class Node> ExpressionPtr DatabaseGrammar::parseRTDBWrite() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
    SideBySide parts(nesting_);
    ExpressionPtr path = parseDatabasePath(line);
    cursor_.skipNewlines();
    cursor_.consume(TokenType::LBRACE, "பொழி-206");
    parts.next();
    const std::size_t brace = cursor_.position() - 1;
    auto data = std::make_unique<MapLiteral>();
    data->line = line;
    parse_.primaries.parseMapEntries(*data, PrimaryGrammar::KeyLayout::Skipped);
    cursor_.consume(TokenType::RBRACE, "பொழி-206");
    return makeNode<Node>(first, line, std::move(path), placed(brace, std::move(data)));
}

/// நிகழ்நேர.தரவுஅழி ( path )
ExpressionPtr DatabaseGrammar::parseRTDBDeleteExpression() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
    return makeNode<RTDBDeleteExpression>(first, line, parseDatabasePath(line));
}

StatementPtr DatabaseGrammar::parseRTDBReadStatement() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
    SideBySide parts(nesting_);
    ExpressionPtr path = parseDatabasePath(line);
    cursor_.skipNewlines();
    cursor_.consume(TokenType::LBRACE, "பொழி-206");
    const TokenCursor::FreeLayout statements(cursor_);
    StatementList body;
    for (cursor_.skipLayout(); !cursor_.check(TokenType::RBRACE) && !cursor_.isAtEnd(); cursor_.skipLayout()) {
        parts.next();
        const auto parseEntry = [&] {
            if (StatementPtr statement = parseStatement(false)) {
                body.push_back(std::move(statement));
            }
        };
        recovery_.attemptStatement(parseEntry, Recovery::Enclosure::Brackets);
    }
    cursor_.consume(TokenType::RBRACE, "பொழி-206");
    return makeNode<RTDBReadStatement>(first, line, std::move(path), std::move(body));
}

} // namespace pozhil

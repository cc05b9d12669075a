#include "parser/parser.h"
#include "parser/siblings.h"
#include "parser/widget_tokens.h"

#include <iterator>
#include <utility>

namespace pozhil {
namespace {

/// More top-level statements than this are taken for a parser that goes round in circles.
constexpr int MAX_TOP_LEVEL_STEPS = 100000;

} // namespace

bool isValidVariableName(const Token& token) {
    switch (token.type) {
    case TokenType::IDENTIFIER:
    case TokenType::KEYWORD:
    case TokenType::PAGE:
    case TokenType::WIDTH:
    case TokenType::HEIGHT:
    case TokenType::STYLE:
    case TokenType::ON_PRESS:
    case TokenType::BACKGROUND: return true;
    default: return isWidgetToken(token);
    }
}

Parser::Parser(std::vector<Token> tokens, std::string source, std::string filename,
               std::vector<std::string> moduleDirectories)
    : tokens_(std::move(tokens)), source_(std::move(source)), filename_(std::move(filename)),
      moduleDirectories_(std::move(moduleDirectories)) {}

Program Parser::parse() {
    Program program;
    skipNewlines();
    Siblings siblings(*this);
    for (int step = 0; !is_at_end(); ++step) {
        if (step > MAX_TOP_LEVEL_STEPS) {
            பிழை("பொழி-291", peek().line);
        }
        siblings.next();
        const std::size_t start = current_;
        StatementPtr statement = parseStatement(false);
        if (statement != nullptr) {
            program.statements.push_back(std::move(statement));
        } else if (check(TokenType::NEWLINE) || check(TokenType::DEDENT) || current_ == start) {
            advance();
        }
        skipNewlines();
    }
    program.statements.insert(program.statements.begin(), std::make_move_iterator(importedStatements_.begin()),
                              std::make_move_iterator(importedStatements_.end()));
    importedStatements_.clear();
    return program;
}

/// Chooses the statement by its first token. Null without a diagnostic means that there was none to parse, or that it
/// leaves no node.
StatementPtr Parser::parseStatement(bool inStruct) {
    enterNesting();
    if (checkKeyword("வடிவமைப்பு")) {
        return parseAbstractStructStatement();
    }
    if (checkKeyword("நூஇறக்கி")) {
        return parseImportStatement();
    }
    if (checkKeyword("அச்சிடு")) {
        return parsePrintStatement();
    }
    if (checkKeyword("எனில்")) {
        return parseIfStatement();
    }
    if (check(TokenType::RTDB_READ)) {
        return parseRTDBReadStatement();
    }
    if (check(TokenType::WEBAPP)) {
        return parseWebApp();
    }
    if (check(TokenType::UPDATE)) {
        return parseSetStateStatement();
    }
    if (checkKeyword("முயற்சி")) {
        return parseTryCatchStatement();
    }
    if (checkKeyword("சுற்று")) {
        return parseWhileStatement();
    }
    if (checkKeyword("காத்திரு")) {
        return parseWaitStatement();
    }
    if (checkKeyword("தேர்வு")) {
        return parseSwitchStatement();
    }
    if (checkKeyword("ஒவ்வொன்றாக")) {
        return parseForStatement();
    }
    if (checkKeyword("நிறுத்து")) {
        return parseSingleWord<BreakStatement>();
    }
    if (checkKeyword("தொடர்")) {
        return parseSingleWord<ContinueStatement>();
    }
    if (checkKeyword("கட்டமைப்பு")) {
        return parseStructDefinitionStatement();
    }
    if (checkKeyword("விடு")) {
        return parseSingleWord<PassStatement>();
    }
    if (checkKeyword("வகை") && peekBehind(1).type == TokenType::IDENTIFIER) {
        return parseVagaiStatement();
    }
    if (checkKeyword("செயல்") && peekBehind(1).type != TokenType::ASSIGN) {
        return parseFunctionDefinitionStatement(inStruct);
    }
    if (checkKeyword("திரும்பு")) {
        return parseReturnStatement();
    }
    const bool isVisibilityWord = inStruct && checkKeyword("பொது");
    if (isVisibilityWord || check(TokenType::DEDENT) || check(TokenType::NEWLINE)) {
        return nullptr;
    }
    checkStatementStart();
    return parseStatementFromExpression(inStruct);
}

/// Faults that are told best by the first tokens of a statement, before its expression is parsed.
void Parser::checkStatementStart() {
    const Token& first = peek();
    if (check(TokenType::INDENT)) {
        பிழை("பொழி-111", first.line);
    }
    if (restOfLineHolds(TokenType::COLON, "வினை", functionSearchEnd_)) {
        பிழை("பொழி-234", first.line);
    }
    if (check(TokenType::RPAREN) || check(TokenType::RBRACE) || check(TokenType::RBRACKET)) {
        பிழை("பொழி-209", first.line);
    }
    const Token& second = peekBehind(1);
    const bool isLiteral =
        second.type == TokenType::NUMBER || second.type == TokenType::STRING || second.type == TokenType::LBRACE;
    if (check(TokenType::IDENTIFIER) && isLiteral && second.line == first.line) {
        பிழை("பொழி-208", first.line);
    }
    if ((check(TokenType::COMMA) || check(TokenType::NUMBER)) &&
        restOfLineHolds(TokenType::RBRACKET, "", listSearchEnd_)) {
        பிழை("பொழி-209", first.line);
    }
}

/// Whether a token of this type stands on the rest of the current line, behind a token with this text if one is given.
/// \param searchEnd end of the last search that found none, since many statements of one line ask for the same
bool Parser::restOfLineHolds(TokenType type, std::string_view behindText, std::size_t& searchEnd) const {
    if (current_ < searchEnd) {
        return false;
    }
    bool armed = behindText.empty();
    std::size_t index = current_;
    for (; index < tokens_.size(); ++index) {
        const Token& token = tokens_[index];
        if (token.type == TokenType::NEWLINE || token.line != peek().line) {
            break;
        }
        if (armed && token.type == type) {
            return true;
        }
        armed = armed || token.value == behindText;
    }
    searchEnd = index;
    return false;
}

StatementPtr Parser::parseStatementFromExpression(bool inStruct) {
    if (inStruct && check(TokenType::IDENTIFIER) && peekBehind(1).type == TokenType::ASSIGN) {
        return parseFieldDeclaration();
    }
    ExpressionPtr expression = parseExpression();
    if (accept(TokenType::ASSIGN)) {
        return parseVarDeclaration(std::move(expression), inStruct);
    }
    if (check(TokenType::COMPOUND_ASSIGN) || check(TokenType::INCREMENT) || check(TokenType::DECREMENT)) {
        return parseCompoundAssignmentStatement(std::move(expression));
    }
    if (check(TokenType::RESERVED_136)) {
        return parseIncrementStatement(std::move(expression));
    }
    if (inStruct) {
        பிழை("பொழி-210", peek().line);
    }
    return parseExpressionStatement(std::move(expression));
}

/// A statement must have an effect: a bare value is refused.
StatementPtr Parser::parseExpressionStatement(ExpressionPtr expression) {
    const Expression* node = expression.get();
    if (auto* widget = dynamic_cast<WidgetExpression*>(expression.get())) {
        return std::move(widget->widget);
    }
    const bool hasEffect =
        nodeCast<CallExpression>(node) != nullptr || nodeCast<AssignmentExpression>(node) != nullptr ||
        nodeCast<SetMemberExpression>(node) != nullptr || nodeCast<RTDBInsertExpression>(node) != nullptr ||
        nodeCast<RTDBUpdateExpression>(node) != nullptr || nodeCast<RTDBDeleteExpression>(node) != nullptr;
    if (!hasEffect) {
        பிழை("பொழி-201", peek().line);
    }
    return std::make_unique<ExpressionStatement>(std::move(expression));
}

/// Parses the statements behind a colon, from the line's end to the closing DEDENT.
std::unique_ptr<BlockStatement> Parser::parseBlockStatement(bool inStruct) {
    consume(TokenType::NEWLINE, "பொழி-202");
    skipNewlines();
    consume(TokenType::INDENT, "பொழி-202");
    auto block = std::make_unique<BlockStatement>();
    Siblings siblings(*this);
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        siblings.next();
        StatementPtr statement = parseStatement(inStruct);
        const bool isNull = statement == nullptr;
        if (!isNull) {
            block->statements.push_back(std::move(statement));
        }
        endStatementInBlock(isNull);
    }
    consume(TokenType::DEDENT, "பொழி-292");
    return block;
}

/// The line end that a statement needs, unless it is the last of its block or its own block has just been closed.
void Parser::endStatementInBlock(bool isNull) {
    if (check(TokenType::DEDENT)) {
        return;
    }
    if (!isNull && previous().type != TokenType::DEDENT) {
        consume(TokenType::NEWLINE, "பொழி-202");
    }
    skipNewlines();
}

std::unique_ptr<BlockStatement> Parser::parseColonAndBlock() {
    consume(TokenType::COLON, "பொழி-202");
    return parseBlockStatement(false);
}

/// The colon, line end and indent that open a list of members. Faults are reported at \p line, -1 being the current.
void Parser::parseIndentedHeader(std::int32_t line) {
    consume(TokenType::COLON, "பொழி-202", line);
    consume(TokenType::NEWLINE, "பொழி-202", line);
    skipNewlines();
    consume(TokenType::INDENT, "பொழி-202", line);
    skipNewlines();
}

template <class Node> StatementPtr Parser::parseSingleWord() {
    advance();
    return std::make_unique<Node>();
}

StatementPtr Parser::parseSetStateStatement() {
    const std::int32_t line = advance().line;
    consume(TokenType::LPAREN, "பொழி-203", line);
    consume(TokenType::RPAREN, "பொழி-204", line);
    return std::make_unique<SetStateStatement>();
}

} // namespace pozhil

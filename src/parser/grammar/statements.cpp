#include "parser/grammar/statements.h"

#include "parser/file_parse.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace pozhil {
namespace {

/// More top-level statements than this are taken for a parser that goes round in circles.
constexpr int MAX_TOP_LEVEL_STEPS = 100000;

using StatementRule = StatementPtr (*)(FileParse& parse);

/// A rule of a family, called on the parse that the family belongs to.
template <auto family, auto rule> StatementPtr ruleOf(FileParse& parse) {
    return ((parse.*family).*rule)();
}

template <class Node> StatementPtr singleWord(FileParse& parse) {
    parse.cursor.advance();
    return std::make_unique<Node>();
}

StatementPtr setState(FileParse& parse) {
    const std::int32_t line = parse.cursor.advance().line;
    parse.cursor.consume(TokenType::LPAREN, "பொழி-203", line);
    parse.cursor.consume(TokenType::RPAREN, "பொழி-204", line);
    return std::make_unique<SetStateStatement>();
}

/// The rule for a statement that \p first alone tells, null if it doesn't.
StatementRule statementRule(const Token& first) {
    using Flow = ControlFlowGrammar;
    constexpr auto FLOW = &FileParse::controlFlow;
    struct Row {
        std::string_view word;
        StatementRule rule;
    };
    static constexpr Row ROWS[] = {
        {"அச்சிடு", ruleOf<FLOW, &Flow::parsePrintStatement>},
        {"எனில்", ruleOf<FLOW, &Flow::parseIfStatement>},
        {"சுற்று", ruleOf<FLOW, &Flow::parseWhileStatement>},
        {"ஒவ்வொன்றாக", ruleOf<FLOW, &Flow::parseForStatement>},
        {"தேர்வு", ruleOf<FLOW, &Flow::parseSwitchStatement>},
        {"முயற்சி", ruleOf<FLOW, &Flow::parseTryCatchStatement>},
        {"காத்திரு", ruleOf<FLOW, &Flow::parseWaitStatement>},
        {"திரும்பு", ruleOf<FLOW, &Flow::parseReturnStatement>},
        {"நிறுத்து", singleWord<BreakStatement>},
        {"தொடர்", singleWord<ContinueStatement>},
        {"விடு", singleWord<PassStatement>},
        {"கட்டமைப்பு", ruleOf<&FileParse::structures, &StructureGrammar::parseStructDefinitionStatement>},
        {"வடிவமைப்பு", ruleOf<&FileParse::functions, &FunctionGrammar::parseAbstractStructStatement>},
        {"நூஇறக்கி", ruleOf<&FileParse::imports, &ImportGrammar::parseImportStatement>},
    };
    switch (first.type) {
    case TokenType::RTDB_READ: return ruleOf<&FileParse::database, &DatabaseGrammar::parseRTDBReadStatement>;
    case TokenType::WEBAPP: return ruleOf<&FileParse::applications, &ApplicationGrammar::parseWebApp>;
    case TokenType::UPDATE: return setState;
    case TokenType::KEYWORD: break;
    default: return nullptr;
    }
    const auto* found =
        std::find_if(std::begin(ROWS), std::end(ROWS), [&](const Row& row) { return row.word == first.value; });
    return found == std::end(ROWS) ? nullptr : found->rule;
}

} // namespace

Program StatementGrammar::parseProgram() {
    Program program;
    cursor_.skipNewlines();
    SideBySide siblings(nesting_);
    for (int step = 0; !cursor_.isAtEnd(); ++step) {
        if (step > MAX_TOP_LEVEL_STEPS) {
            cursor_.பிழை("பொழி-291", cursor_.peek().line);
        }
        siblings.next();
        recovery_.attemptStatement([&] { parseTopLevelStatement(program); });
    }
    recovery_.noteScanFaults();
    StatementList imported = parse_.imports.takeStatements();
    program.statements.insert(program.statements.begin(), std::make_move_iterator(imported.begin()),
                              std::make_move_iterator(imported.end()));
    return program;
}

void StatementGrammar::parseTopLevelStatement(Program& program) {
    const std::size_t start = cursor_.position();
    StatementPtr statement = parseStatement(false);
    if (statement != nullptr) {
        program.statements.push_back(std::move(statement));
    } else if (cursor_.check(TokenType::NEWLINE) || cursor_.check(TokenType::DEDENT) || cursor_.position() == start) {
        cursor_.advance();
    }
    cursor_.skipNewlines();
}

StatementPtr StatementGrammar::parseStatement(bool inStruct) {
    nesting_.enter();
    const ScopedValue<bool> ownLines(isInList_, false);
    const std::size_t first = cursor_.position();
    return placed(first, chooseStatement(inStruct));
}

/// Most statements are told by their first token alone.
StatementPtr StatementGrammar::chooseStatement(bool inStruct) {
    if (const StatementRule rule = statementRule(cursor_.peek())) {
        return rule(parse_);
    }
    if (cursor_.checkKeyword("வகை") && cursor_.peekAhead(1).type == TokenType::IDENTIFIER) {
        return parse_.functions.parseVagaiStatement();
    }
    if (cursor_.checkKeyword("செயல்") && cursor_.peekAhead(1).type != TokenType::ASSIGN) {
        return parse_.functions.parseFunctionDefinitionStatement(inStruct);
    }
    const bool isVisibilityWord = inStruct && cursor_.checkKeyword("பொது");
    if (isVisibilityWord || cursor_.check(TokenType::DEDENT) || cursor_.check(TokenType::NEWLINE)) {
        return nullptr;
    }
    checkStatementStart();
    return parseStatementFromExpression(inStruct);
}

/// Faults that are told best by the first tokens of a statement, before its expression is parsed.
void StatementGrammar::checkStatementStart() {
    const Token& first = cursor_.peek();
    if (cursor_.check(TokenType::INDENT)) {
        cursor_.பிழை("பொழி-111", first.line);
    }
    if (cursor_.restOfLineHolds(TokenType::COLON, "வினை", functionSearchEnd_)) {
        cursor_.பிழை("பொழி-234", first.line);
    }
    if (cursor_.check(TokenType::RPAREN) || cursor_.check(TokenType::RBRACE) || cursor_.check(TokenType::RBRACKET)) {
        cursor_.பிழை("பொழி-209", first.line);
    }
    const Token& second = cursor_.peekAhead(1);
    const bool isLiteral =
        second.type == TokenType::NUMBER || second.type == TokenType::STRING || second.type == TokenType::LBRACE;
    if (cursor_.check(TokenType::IDENTIFIER) && isLiteral && second.line == first.line) {
        cursor_.பிழை("பொழி-208", first.line);
    }
    if ((cursor_.check(TokenType::COMMA) || cursor_.check(TokenType::NUMBER)) &&
        cursor_.restOfLineHolds(TokenType::RBRACKET, "", listSearchEnd_)) {
        cursor_.பிழை("பொழி-209", first.line);
    }
}

StatementPtr StatementGrammar::parseStatementFromExpression(bool inStruct) {
    if (inStruct && cursor_.check(TokenType::IDENTIFIER) && cursor_.peekAhead(1).type == TokenType::ASSIGN) {
        return parse_.structures.parseFieldDeclaration();
    }
    ExpressionPtr expression = parseExpression();
    if (cursor_.accept(TokenType::ASSIGN)) {
        return parse_.assignments.parseVarDeclaration(std::move(expression), inStruct);
    }
    if (cursor_.check(TokenType::COMPOUND_ASSIGN) || cursor_.check(TokenType::INCREMENT) ||
        cursor_.check(TokenType::DECREMENT)) {
        return parse_.assignments.parseCompoundAssignmentStatement(std::move(expression));
    }
    if (cursor_.check(TokenType::RESERVED_136)) {
        return parse_.assignments.parseIncrementStatement(std::move(expression));
    }
    if (inStruct) {
        cursor_.பிழை("பொழி-210", cursor_.peek().line);
    }
    return parseExpressionStatement(std::move(expression));
}

/// A statement must have an effect: a bare value is refused.
StatementPtr StatementGrammar::parseExpressionStatement(ExpressionPtr expression) {
    const Expression* node = expression.get();
    if (auto* widget = dynamic_cast<WidgetExpression*>(expression.get())) {
        return std::move(widget->widget);
    }
    const bool hasEffect =
        nodeCast<CallExpression>(node) != nullptr || nodeCast<AssignmentExpression>(node) != nullptr ||
        nodeCast<SetMemberExpression>(node) != nullptr || nodeCast<RTDBInsertExpression>(node) != nullptr ||
        nodeCast<RTDBUpdateExpression>(node) != nullptr || nodeCast<RTDBDeleteExpression>(node) != nullptr;
    if (!hasEffect) {
        cursor_.பிழை("பொழி-201", cursor_.peek().line);
    }
    return std::make_unique<ExpressionStatement>(std::move(expression));
}

} // namespace pozhil

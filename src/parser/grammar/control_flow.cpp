#include "parser/grammar/control_flow.h"

#include "parser/file_parse.h"
#include "parser/variable_names.h"

#include <utility>

namespace pozhil {

StatementPtr ControlFlowGrammar::parsePrintStatement() {
    cursor_.advance();
    const std::int32_t line = cursor_.peek().line;
    const bool hasParenthesis = cursor_.accept(TokenType::LPAREN);
    ExpressionList arguments;
    if (!hasParenthesis || !cursor_.check(TokenType::RPAREN)) {
        SideBySide siblings(nesting_);
        do {
            siblings.next();
            arguments.push_back(parseExpression());
        } while (cursor_.accept(TokenType::COMMA));
    }
    if (hasParenthesis) {
        cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    }
    return std::make_unique<PrintStatement>(std::move(arguments));
}

StatementPtr ControlFlowGrammar::parseIfStatement() {
    cursor_.advance();
    if (cursor_.check(TokenType::COLON) || cursor_.check(TokenType::NEWLINE)) {
        cursor_.பிழை("பொழி-221", cursor_.peek().line);
    }
    SideBySide parts(nesting_);
    ExpressionPtr condition = parseExpression();
    parts.next();
    auto thenBranch = parse_.blocks.parseColonAndBlock();
    StatementPtr elseBranch;
    parts.next();
    if (cursor_.checkKeyword("இல்லைஎனில்")) {
        nesting_.enter();
        const std::size_t first = cursor_.position();
        elseBranch = placed(first, parseIfStatement());
    } else if (cursor_.checkKeyword("இல்லை")) {
        cursor_.advance();
        elseBranch = parse_.blocks.parseColonAndBlock();
    }
    return std::make_unique<IfStatement>(std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

StatementPtr ControlFlowGrammar::parseWhileStatement() {
    cursor_.advance();
    if (cursor_.check(TokenType::COLON) || cursor_.check(TokenType::NEWLINE)) {
        cursor_.பிழை("பொழி-222", cursor_.peek().line);
    }
    SideBySide parts(nesting_);
    ExpressionPtr condition = parseExpression();
    parts.next();
    return std::make_unique<WhileStatement>(std::move(condition), parse_.blocks.parseColonAndBlock());
}

StatementPtr ControlFlowGrammar::parseForStatement() {
    cursor_.advance();
    Token variable = cursor_.consumeName("பொழி-223");
    if (!cursor_.checkKeyword("இல்")) {
        cursor_.பிழை("பொழி-223", cursor_.peek().line);
    }
    cursor_.advance();
    SideBySide parts(nesting_);
    ExpressionPtr iterable = parseExpression();
    parts.next();
    return std::make_unique<ForStatement>(std::move(variable), std::move(iterable), parse_.blocks.parseColonAndBlock());
}

StatementPtr ControlFlowGrammar::parseSwitchStatement() {
    const std::int32_t line = cursor_.advance().line;
    SideBySide parts(nesting_);
    ExpressionPtr subject = parseExpression();
    parse_.blocks.parseIndentedHeader(line);
    std::vector<CaseBlock> cases;
    std::unique_ptr<BlockStatement> defaultBlock;
    while (!cursor_.check(TokenType::DEDENT) && !cursor_.isAtEnd()) {
        parts.next();
        if (cursor_.checkKeyword("நிலை")) {
            cursor_.advance();
            ExpressionPtr value = parseExpression();
            parts.next();
            cases.push_back({std::move(value), parse_.blocks.parseColonAndBlock()});
        } else if (cursor_.checkKeyword("மற்றவை")) {
            cursor_.advance();
            cursor_.consume(TokenType::COLON, "பொழி-202");
            if (defaultBlock != nullptr) {
                cursor_.பிழை("பொழி-225", cursor_.peek().line);
            }
            defaultBlock = parse_.blocks.parseBlockStatement(false);
        } else {
            cursor_.பிழை("பொழி-224", cursor_.peek().line);
        }
        cursor_.skipNewlines();
    }
    cursor_.consume(TokenType::DEDENT, "பொழி-292");
    return std::make_unique<SwitchStatement>(std::move(subject), std::move(cases), std::move(defaultBlock));
}

StatementPtr ControlFlowGrammar::parseTryCatchStatement() {
    cursor_.advance();
    SideBySide parts(nesting_);
    auto tryBlock = parse_.blocks.parseColonAndBlock();
    if (!cursor_.checkKeyword("பிடி")) {
        cursor_.பிழை("பொழி-210", cursor_.peek().line);
    }
    cursor_.advance();
    std::string errorName = "பிழை";
    const std::int32_t line = cursor_.peek().line;
    if (cursor_.accept(TokenType::LPAREN)) {
        if (isValidVariableName(cursor_.peek())) {
            errorName = cursor_.advance().value;
        }
        cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    }
    parts.next();
    auto catchBlock = parse_.blocks.parseColonAndBlock();
    return std::make_unique<TryCatchStatement>(std::move(tryBlock), std::move(catchBlock), std::move(errorName));
}

StatementPtr ControlFlowGrammar::parseWaitStatement() {
    cursor_.advance();
    return std::make_unique<WaitStatement>(parseExpression());
}

StatementPtr ControlFlowGrammar::parseReturnStatement() {
    const std::int32_t line = cursor_.advance().line;
    if (!parse_.functions.isInsideFunction()) {
        cursor_.பிழை("பொழி-233", line);
    }
    const bool isBare = cursor_.check(TokenType::NEWLINE) || cursor_.check(TokenType::DEDENT);
    return std::make_unique<ReturnStatement>(isBare ? nullptr : parseExpression());
}

} // namespace pozhil

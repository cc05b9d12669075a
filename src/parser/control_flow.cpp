#include "parser/parser.h"
#include "parser/siblings.h"

#include <utility>

namespace pozhil {

/// அச்சிடு expr { , expr }, in parentheses or without.
StatementPtr Parser::parsePrintStatement() {
    advance();
    const std::int32_t line = peek().line;
    const bool hasParenthesis = accept(TokenType::LPAREN);
    ExpressionList arguments;
    if (!hasParenthesis || !check(TokenType::RPAREN)) {
        Siblings siblings(*this);
        do {
            siblings.next();
            arguments.push_back(parseExpression());
        } while (accept(TokenType::COMMA));
    }
    if (hasParenthesis) {
        consume(TokenType::RPAREN, "பொழி-204", line);
    }
    return std::make_unique<PrintStatement>(std::move(arguments));
}

/// எனில் expr : block, then இல்லைஎனில் and இல்லை branches that stand directly behind the block.
StatementPtr Parser::parseIfStatement() {
    advance();
    if (check(TokenType::COLON) || check(TokenType::NEWLINE)) {
        பிழை("பொழி-221", peek().line);
    }
    Siblings parts(*this);
    ExpressionPtr condition = parseExpression();
    parts.next();
    auto thenBranch = parseColonAndBlock();
    StatementPtr elseBranch;
    parts.next();
    if (checkKeyword("இல்லைஎனில்")) {
        enterNesting();
        elseBranch = parseIfStatement();
    } else if (checkKeyword("இல்லை")) {
        advance();
        elseBranch = parseColonAndBlock();
    }
    return std::make_unique<IfStatement>(std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

/// சுற்று expr : block
StatementPtr Parser::parseWhileStatement() {
    advance();
    if (check(TokenType::COLON) || check(TokenType::NEWLINE)) {
        பிழை("பொழி-222", peek().line);
    }
    Siblings parts(*this);
    ExpressionPtr condition = parseExpression();
    parts.next();
    return std::make_unique<WhileStatement>(std::move(condition), parseColonAndBlock());
}

/// ஒவ்வொன்றாக name இல் expr : block
StatementPtr Parser::parseForStatement() {
    advance();
    Token variable = consumeName("பொழி-223");
    if (!checkKeyword("இல்")) {
        பிழை("பொழி-223", peek().line);
    }
    advance();
    Siblings parts(*this);
    ExpressionPtr iterable = parseExpression();
    parts.next();
    return std::make_unique<ForStatement>(std::move(variable), std::move(iterable), parseColonAndBlock());
}

/// தேர்வு expr : then நிலை expr : blocks and at most one மற்றவை : block, in any order.
StatementPtr Parser::parseSwitchStatement() {
    const std::int32_t line = advance().line;
    Siblings parts(*this);
    ExpressionPtr subject = parseExpression();
    parseIndentedHeader(line);
    std::vector<CaseBlock> cases;
    std::unique_ptr<BlockStatement> defaultBlock;
    while (!check(TokenType::DEDENT) && !is_at_end()) {
        parts.next();
        if (checkKeyword("நிலை")) {
            advance();
            ExpressionPtr value = parseExpression();
            parts.next();
            cases.push_back({std::move(value), parseColonAndBlock()});
        } else if (checkKeyword("மற்றவை")) {
            advance();
            consume(TokenType::COLON, "பொழி-202");
            if (defaultBlock != nullptr) {
                பிழை("பொழி-225", peek().line);
            }
            defaultBlock = parseBlockStatement(false);
        } else {
            பிழை("பொழி-224", peek().line);
        }
        skipNewlines();
    }
    consume(TokenType::DEDENT, "பொழி-292");
    return std::make_unique<SwitchStatement>(std::move(subject), std::move(cases), std::move(defaultBlock));
}

/// முயற்சி : block பிடி [ ( name ) ] : block
StatementPtr Parser::parseTryCatchStatement() {
    advance();
    Siblings parts(*this);
    auto tryBlock = parseColonAndBlock();
    if (!checkKeyword("பிடி")) {
        பிழை("பொழி-210", peek().line);
    }
    advance();
    std::string errorName = "பிழை";
    const std::int32_t line = peek().line;
    if (accept(TokenType::LPAREN)) {
        if (isValidVariableName(peek())) {
            errorName = advance().value;
        }
        consume(TokenType::RPAREN, "பொழி-204", line);
    }
    parts.next();
    auto catchBlock = parseColonAndBlock();
    return std::make_unique<TryCatchStatement>(std::move(tryBlock), std::move(catchBlock), std::move(errorName));
}

StatementPtr Parser::parseWaitStatement() {
    advance();
    return std::make_unique<WaitStatement>(parseExpression());
}

StatementPtr Parser::parseReturnStatement() {
    const std::int32_t line = advance().line;
    if (functionDepth_ == 0) {
        பிழை("பொழி-233", line);
    }
    const bool isBare = check(TokenType::NEWLINE) || check(TokenType::DEDENT);
    return std::make_unique<ReturnStatement>(isBare ? nullptr : parseExpression());
}

/// A declaration whose "=" parseAssignment left standing.
StatementPtr Parser::parseVarDeclaration(ExpressionPtr target, bool inStruct) {
    const auto* variable = nodeCast<VariableAccess>(target.get());
    if (variable == nullptr) {
        if (inStruct) {
            பிழை("பொழி-210", peek().line);
        }
        return parseSetStatement(std::move(target));
    }
    ExpressionPtr value = parseExpression();
    const VarType type = declaredType(*value);
    return std::make_unique<VarDeclaration>(variable->name, std::move(value), type);
}

/// What an initialiser tells of its variable's type at sight.
VarType Parser::declaredType(const Expression& initializer) const {
    if (nodeCast<ListLiteral>(&initializer) != nullptr) {
        return VarType::List;
    }
    if (nodeCast<MapLiteral>(&initializer) != nullptr) {
        return VarType::Map;
    }
    const auto* call = nodeCast<CallExpression>(&initializer);
    if (call == nullptr) {
        return VarType::Auto;
    }
    if (const auto* name = nodeCast<VariableAccess>(call->callee.get())) {
        if (name->name == "இப்போதுநேரம்") {
            return VarType::Time;
        }
        return structs_.count(name->name) != 0 ? VarType::Object : VarType::Auto;
    }
    if (const auto* get = nodeCast<GetExpression>(call->callee.get())) {
        const auto* object = nodeCast<VariableAccess>(get->object.get());
        const bool makesTime = object != nullptr && object->name == "நேரம்" && get->member.value == "உருவாக்கு";
        return makesTime ? VarType::Time : VarType::Auto;
    }
    return VarType::Auto;
}

StatementPtr Parser::parseSetStatement(ExpressionPtr target) {
    return std::make_unique<SetStatement>(std::move(target), parseExpression());
}

StatementPtr Parser::parseCompoundAssignmentStatement(ExpressionPtr target) {
    Token op = advance();
    return std::make_unique<CompoundAssignmentStatement>(std::move(target), std::move(op), parseExpression());
}

StatementPtr Parser::parseIncrementStatement(ExpressionPtr target) {
    return std::make_unique<IncrementStatement>(std::move(target), advance());
}

} // namespace pozhil

#include "parser/grammar/expressions.h"

#include "language/operators.h"
#include "parser/file_parse.h"
#include "parser/variable_names.h"

#include <string_view>
#include <utility>

namespace pozhil {
namespace {

constexpr int LOOSEST_LEVEL = 0;
constexpr int LAST_LOGICAL_LEVEL = 1;

int binaryLevel(const Token& token) {
    if (token.type != TokenType::OPERATOR) {
        return language::NO_LEVEL;
    }
    const language::Operator* found = language::findOperator(token.value);
    return found == nullptr ? language::NO_LEVEL : found->level;
}

bool isAssignmentOperator(TokenType type) {
    return type == TokenType::ASSIGN || type == TokenType::COMPOUND_ASSIGN || type == TokenType::RESERVED_132 ||
           type == TokenType::INCREMENT || type == TokenType::DECREMENT;
}

template <class Node> Node* as(const ExpressionPtr& expression) {
    return dynamic_cast<Node*>(expression.get());
}

} // namespace

ExpressionPtr ExpressionGrammar::parseExpression() {
    nesting_.enter();
    return parseAssignment();
}

ExpressionPtr ExpressionGrammar::parseAssignment() {
    if (isArrowFunctionAhead()) {
        return parseArrowFunction();
    }
    const std::size_t first = cursor_.position();
    ExpressionPtr left = parseTernary();
    if (cursor_.check(TokenType::COLON)) {
        auto* get = as<GetExpression>(left);
        const auto* object = get == nullptr ? nullptr : as<VariableAccess>(get->object);
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            // The one place where a colon assigns: காட்சி_நிலை.name : value
            nesting_.enter();
            const std::int32_t line = cursor_.advance().line;
            ExpressionPtr value = parseAssignment();
            return makeNode<SetMemberExpression>(first, line, std::move(get->object), std::move(get->member),
                                                 std::move(value));
        }
    }
    return isAssignmentOperator(cursor_.peek().type) ? parseAssignedValue(std::move(left), first) : std::move(left);
}

/// The operator and value after an assignment's target. An element and a member are simply set: only a name keeps its
/// compound operator.
ExpressionPtr ExpressionGrammar::parseAssignedValue(ExpressionPtr left, std::size_t first) {
    nesting_.enter();
    Token op = cursor_.advance();
    const std::int32_t line = op.line;
    ExpressionPtr value = parseAssignment();
    if (auto* element = as<IndexExpression>(left)) {
        ExpressionList arguments;
        arguments.push_back(std::move(element->object));
        arguments.push_back(std::move(element->index));
        arguments.push_back(std::move(value));
        return makeNode<CallExpression>(
            first, line, placed(first, std::make_unique<VariableAccess>("_set_index_internal")), std::move(arguments));
    }
    if (auto* get = as<GetExpression>(left)) {
        return makeNode<SetMemberExpression>(first, line, std::move(get->object), std::move(get->member),
                                             std::move(value));
    }
    if (auto* variable = as<VariableAccess>(left)) {
        return makeNode<AssignmentExpression>(first, line, std::move(variable->name), std::move(op), std::move(value));
    }
    cursor_.பிழை("பொழி-211", line);
}

/// "=>", or "=" with பெரிது after it, so many tokens after the cursor.
bool ExpressionGrammar::isArrowAt(std::size_t offset) const {
    const Token& token = cursor_.peekAhead(offset);
    if (token.value == "=>") {
        return true;
    }
    const Token& next = cursor_.peekAhead(offset + 1);
    return token.type == TokenType::ASSIGN && (next.value == ">" || next.value == "பெரிது");
}

/// Whether name => or ( ... ) => begins here.
bool ExpressionGrammar::isArrowFunctionAhead() {
    if (isValidVariableName(cursor_.peek())) {
        return isArrowAt(1);
    }
    if (!cursor_.check(TokenType::LPAREN)) {
        return false;
    }
    const std::size_t end = cursor_.bracketEnd();
    return cursor_.peekAhead(end - cursor_.position()).type == TokenType::RPAREN &&
           isArrowAt(end - cursor_.position() + 1);
}

/// name => expr, or ( names ) => expr
ExpressionPtr ExpressionGrammar::parseArrowFunction() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.peek().line;
    std::vector<Token> parameters;
    if (cursor_.accept(TokenType::LPAREN)) {
        if (!cursor_.check(TokenType::RPAREN)) {
            do {
                cursor_.skipNewlines();
                parameters.push_back(cursor_.consumeName("பொழி-232"));
            } while (cursor_.accept(TokenType::COMMA));
        }
        cursor_.consume(TokenType::RPAREN, "பொழி-204");
    } else {
        parameters.push_back(cursor_.advance());
    }
    const bool isOneToken = cursor_.peek().value == "=>";
    cursor_.advance();
    if (!isOneToken) {
        cursor_.advance();
    }
    return makeNode<LambdaExpression>(first, line, std::move(parameters), parseExpression());
}

/// condition எனில் a இல்லைஎனில் b, or condition ? a : b
ExpressionPtr ExpressionGrammar::parseTernary() {
    const std::size_t first = cursor_.position();
    SideBySide parts(nesting_);
    ExpressionPtr condition = parseBinary(LOOSEST_LEVEL);
    if (!cursor_.checkKeyword("எனில்") && !cursor_.check(TokenType::QUESTION)) {
        return condition;
    }
    parts.wrap();
    const std::int32_t line = cursor_.advance().line;
    ExpressionPtr thenBranch = parseExpression();
    if (!cursor_.checkKeyword("இல்லைஎனில்") && !cursor_.check(TokenType::COLON)) {
        cursor_.பிழை("பொழி-202", cursor_.peek().line);
    }
    cursor_.advance();
    parts.next();
    ExpressionPtr elseBranch = parseTernary();
    return makeNode<TernaryExpression>(first, line, std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

/// Operands joined by operators of this level or tighter ones; equal levels group to the left.
ExpressionPtr ExpressionGrammar::parseBinary(int loosestLevel) {
    const std::size_t first = cursor_.position();
    SideBySide operands(nesting_);
    ExpressionPtr left = parseUnary();
    while (true) {
        const int level = binaryLevel(cursor_.peek());
        if (level < loosestLevel) {
            return left;
        }
        operands.wrap();
        Token op = cursor_.advance();
        const std::int32_t line = op.line;
        ExpressionPtr right = parseBinary(level + 1);
        if (level <= LAST_LOGICAL_LEVEL) {
            left = makeNode<LogicalExpression>(first, line, std::move(left), std::move(op), std::move(right));
        } else {
            left = makeNode<BinaryExpression>(first, line, std::move(left), std::move(op), std::move(right));
        }
    }
}

ExpressionPtr ExpressionGrammar::parseUnary() {
    const bool isUnaryWord = cursor_.checkKeyword("இல்லை") || cursor_.checkKeyword("என்னவகை") ||
                             cursor_.checkKeyword("எதிர்இருமை") ||
                             (cursor_.check(TokenType::OPERATOR) && cursor_.peek().value == "கழி");
    if (!isUnaryWord && !cursor_.check(TokenType::BIT_NOT) && !cursor_.check(TokenType::UNARY_PLUS) &&
        !cursor_.check(TokenType::UNARY_MINUS)) {
        return parseCall();
    }
    nesting_.enter();
    const std::size_t first = cursor_.position();
    Token op = cursor_.advance();
    const std::int32_t line = op.line;
    return makeNode<UnaryExpression>(first, line, std::move(op), parseUnary());
}

/// A primary with any number of calls, members and indices after it.
ExpressionPtr ExpressionGrammar::parseCall() {
    const std::size_t first = cursor_.position();
    SideBySide links(nesting_);
    ExpressionPtr left = parse_.primaries.parsePrimary();
    while (true) {
        const std::int32_t line = cursor_.peek().line;
        if (cursor_.accept(TokenType::LPAREN)) {
            links.wrap();
            left = makeNode<CallExpression>(first, line, std::move(left), parseArguments(line));
        } else if (cursor_.accept(TokenType::DOT) || cursor_.accept(TokenType::ARROW)) {
            links.wrap();
            left = parseMember(std::move(left), first);
        } else if (cursor_.accept(TokenType::LBRACKET)) {
            links.wrap();
            ExpressionPtr index = parseIndex(line);
            left = makeNode<IndexExpression>(first, line, std::move(left), std::move(index));
        } else {
            return left;
        }
    }
}

/// The name after a dot. A member of an enumeration becomes its number at once.
ExpressionPtr ExpressionGrammar::parseMember(ExpressionPtr object, std::size_t first) {
    Token member = cursor_.consumeName("பொழி-210");
    if (const auto* variable = as<VariableAccess>(object)) {
        const auto enumeration = declarations_.enums.find(variable->name);
        if (enumeration != declarations_.enums.end()) {
            const auto ordinal = enumeration->second.find(member.value);
            if (ordinal != enumeration->second.end()) {
                return placed(first, std::make_unique<NumberLiteral>(std::to_string(ordinal->second)));
            }
        }
    }
    const std::int32_t line = member.line;
    return makeNode<GetExpression>(first, line, std::move(object), std::move(member));
}

ExpressionList ExpressionGrammar::parseArguments(std::int32_t line) {
    ExpressionList arguments;
    if (!cursor_.check(TokenType::RPAREN)) {
        SideBySide siblings(nesting_);
        do {
            siblings.next();
            arguments.push_back(parseExpression());
        } while (cursor_.accept(TokenType::COMMA));
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    return arguments;
}

/// expr ], the bracket already taken.
ExpressionPtr ExpressionGrammar::parseIndex(std::int32_t line) {
    ExpressionPtr index = parseExpression();
    cursor_.consume(TokenType::RBRACKET, "பொழி-205", line);
    return index;
}

ExpressionPtr ExpressionGrammar::parseLambdaExpression() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.advance().line;
    const bool hasParenthesis = cursor_.accept(TokenType::LPAREN);
    std::vector<Token> parameters;
    if (!cursor_.check(TokenType::RPAREN) && !cursor_.check(TokenType::COLON)) {
        do {
            cursor_.skipNewlines();
            if (isValidVariableName(cursor_.peek())) {
                parameters.push_back(cursor_.advance());
            }
            cursor_.accept(TokenType::COMMA);
            cursor_.skipNewlines();
        } while (isValidVariableName(cursor_.peek()));
    }
    if (hasParenthesis) {
        cursor_.consume(TokenType::RPAREN, "பொழி-204");
    }
    cursor_.consume(TokenType::COLON, "பொழி-202");
    return makeNode<LambdaExpression>(first, line, std::move(parameters), parseExpression());
}

} // namespace pozhil

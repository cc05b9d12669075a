#include "language/operators.h"
#include "parser/parser.h"
#include "parser/siblings.h"

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

template <class Node, class... Arguments> ExpressionPtr makeNode(std::int32_t line, Arguments&&... arguments) {
    auto node = std::make_unique<Node>(std::forward<Arguments>(arguments)...);
    node->line = line;
    return node;
}

template <class Node> Node* as(const ExpressionPtr& expression) {
    return dynamic_cast<Node*>(expression.get());
}

} // namespace

ExpressionPtr Parser::parseExpression() {
    enterNesting();
    return parseAssignment();
}

ExpressionPtr Parser::parseAssignment() {
    if (isArrowFunctionAhead()) {
        return parseArrowFunction();
    }
    ExpressionPtr left = parseTernary();
    if (check(TokenType::COLON)) {
        auto* get = as<GetExpression>(left);
        const auto* object = get == nullptr ? nullptr : as<VariableAccess>(get->object);
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            // The one place where a colon assigns: காட்சி_நிலை.name : value
            enterNesting();
            const std::int32_t line = advance().line;
            ExpressionPtr value = parseAssignment();
            return makeNode<SetMemberExpression>(line, std::move(get->object), std::move(get->member),
                                                 std::move(value));
        }
    }
    return isAssignmentOperator(peek().type) ? parseAssignedValue(std::move(left)) : std::move(left);
}

/// The operator and value behind an assignment's target. An element and a member are simply set: only a name keeps its
/// compound operator.
ExpressionPtr Parser::parseAssignedValue(ExpressionPtr left) {
    enterNesting();
    Token op = advance();
    const std::int32_t line = op.line;
    ExpressionPtr value = parseAssignment();
    if (auto* element = as<IndexExpression>(left)) {
        ExpressionList arguments;
        arguments.push_back(std::move(element->object));
        arguments.push_back(std::move(element->index));
        arguments.push_back(std::move(value));
        return makeNode<CallExpression>(line, std::make_unique<VariableAccess>("_set_index_internal"),
                                        std::move(arguments));
    }
    if (auto* get = as<GetExpression>(left)) {
        return makeNode<SetMemberExpression>(line, std::move(get->object), std::move(get->member), std::move(value));
    }
    if (auto* variable = as<VariableAccess>(left)) {
        return makeNode<AssignmentExpression>(line, std::move(variable->name), std::move(op), std::move(value));
    }
    பிழை("பொழி-211", line);
}

/// "=>", or "=" with பெரிது behind it, so many tokens behind the cursor.
bool Parser::isArrowAt(std::size_t offset) const {
    const Token& token = peekBehind(offset);
    if (token.value == "=>") {
        return true;
    }
    const Token& next = peekBehind(offset + 1);
    return token.type == TokenType::ASSIGN && (next.value == ">" || next.value == "பெரிது");
}

/// Whether name => or ( ... ) => begins here.
bool Parser::isArrowFunctionAhead() {
    if (isValidVariableName(peek())) {
        return isArrowAt(1);
    }
    if (!check(TokenType::LPAREN)) {
        return false;
    }
    const std::size_t end = bracketEnd();
    return tokens_[end].type == TokenType::RPAREN && isArrowAt(end - current_ + 1);
}

/// Index of the first closing parenthesis, line end or end of the tokens from the cursor on; nesting isn't counted.
/// The last search is remembered, since every bracket of a nest asks for the same token.
std::size_t Parser::bracketEnd() {
    if (current_ >= bracketSearchStart_ && current_ <= bracketSearchEnd_) {
        return bracketSearchEnd_;
    }
    bracketSearchStart_ = current_;
    std::size_t end = current_;
    while (tokens_[end].type != TokenType::RPAREN && tokens_[end].type != TokenType::NEWLINE &&
           tokens_[end].type != TokenType::END_OF_FILE) {
        ++end;
    }
    bracketSearchEnd_ = end;
    return end;
}

/// name => expr, or ( names ) => expr
ExpressionPtr Parser::parseArrowFunction() {
    const std::int32_t line = peek().line;
    std::vector<Token> parameters;
    if (accept(TokenType::LPAREN)) {
        if (!check(TokenType::RPAREN)) {
            do {
                skipNewlines();
                parameters.push_back(consumeName("பொழி-232"));
            } while (accept(TokenType::COMMA));
        }
        consume(TokenType::RPAREN, "பொழி-204");
    } else {
        parameters.push_back(advance());
    }
    const bool isOneToken = peek().value == "=>";
    advance();
    if (!isOneToken) {
        advance();
    }
    return makeNode<LambdaExpression>(line, std::move(parameters), parseExpression());
}

/// condition எனில் a இல்லைஎனில் b, or condition ? a : b
ExpressionPtr Parser::parseTernary() {
    Siblings parts(*this);
    ExpressionPtr condition = parseBinary(LOOSEST_LEVEL);
    if (!checkKeyword("எனில்") && !check(TokenType::QUESTION)) {
        return condition;
    }
    parts.wrap();
    const std::int32_t line = advance().line;
    ExpressionPtr thenBranch = parseExpression();
    if (!checkKeyword("இல்லைஎனில்") && !check(TokenType::COLON)) {
        பிழை("பொழி-202", peek().line);
    }
    advance();
    parts.next();
    ExpressionPtr elseBranch = parseTernary();
    return makeNode<TernaryExpression>(line, std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

/// Operands joined by operators of this level or tighter ones; equal levels group to the left.
ExpressionPtr Parser::parseBinary(int loosestLevel) {
    Siblings operands(*this);
    ExpressionPtr left = parseUnary();
    while (true) {
        const int level = binaryLevel(peek());
        if (level < loosestLevel) {
            return left;
        }
        operands.wrap();
        Token op = advance();
        const std::int32_t line = op.line;
        ExpressionPtr right = parseBinary(level + 1);
        left = level <= LAST_LOGICAL_LEVEL
                   ? makeNode<LogicalExpression>(line, std::move(left), std::move(op), std::move(right))
                   : makeNode<BinaryExpression>(line, std::move(left), std::move(op), std::move(right));
    }
}

ExpressionPtr Parser::parseUnary() {
    const bool isUnaryWord = checkKeyword("இல்லை") || checkKeyword("என்னவகை") || checkKeyword("எதிர்இருமை") ||
                             (check(TokenType::OPERATOR) && peek().value == "கழி");
    if (!isUnaryWord && !check(TokenType::BIT_NOT) && !check(TokenType::UNARY_PLUS) && !check(TokenType::UNARY_MINUS)) {
        return parseCall();
    }
    enterNesting();
    Token op = advance();
    const std::int32_t line = op.line;
    return makeNode<UnaryExpression>(line, std::move(op), parseUnary());
}

/// A primary with any number of calls, members and indices behind it.
ExpressionPtr Parser::parseCall() {
    Siblings links(*this);
    ExpressionPtr left = parsePrimary();
    while (true) {
        const std::int32_t line = peek().line;
        if (accept(TokenType::LPAREN)) {
            links.wrap();
            left = makeNode<CallExpression>(line, std::move(left), parseArguments(line));
        } else if (accept(TokenType::DOT) || accept(TokenType::ARROW)) {
            links.wrap();
            left = parseMember(std::move(left));
        } else if (accept(TokenType::LBRACKET)) {
            links.wrap();
            left = parseIndexExpression(std::move(left), line);
        } else {
            return left;
        }
    }
}

/// The name behind a dot. A member of an enumeration becomes its number at once.
ExpressionPtr Parser::parseMember(ExpressionPtr object) {
    Token member = consumeName("பொழி-210");
    if (const auto* variable = as<VariableAccess>(object)) {
        const auto enumeration = enums_.find(variable->name);
        if (enumeration != enums_.end()) {
            const auto ordinal = enumeration->second.find(member.value);
            if (ordinal != enumeration->second.end()) {
                return std::make_unique<NumberLiteral>(std::to_string(ordinal->second));
            }
        }
    }
    const std::int32_t line = member.line;
    return makeNode<GetExpression>(line, std::move(object), std::move(member));
}

ExpressionList Parser::parseArguments(std::int32_t line) {
    ExpressionList arguments;
    if (!check(TokenType::RPAREN)) {
        Siblings siblings(*this);
        do {
            siblings.next();
            arguments.push_back(parseExpression());
        } while (accept(TokenType::COMMA));
    }
    consume(TokenType::RPAREN, "பொழி-204", line);
    return arguments;
}

ExpressionPtr Parser::parseIndexExpression(ExpressionPtr object, std::int32_t line) {
    ExpressionPtr index = parseExpression();
    consume(TokenType::RBRACKET, "பொழி-205", line);
    return makeNode<IndexExpression>(line, std::move(object), std::move(index));
}

} // namespace pozhil

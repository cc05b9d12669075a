#include "parser/second/expressions.h"

#include "language/operators.h"
#include "parser/second/file_parse.h"
#include "parser/second/names.h"
#include "parser/tree/shapes.h"

namespace pozhil::second {
namespace {

constexpr int LOOSEST_LEVEL = 0;
constexpr int LAST_LOGICAL_LEVEL = 1;
constexpr const char* MINUS = "கழி";
constexpr const char* NEGATIVE = "குறை";

int binaryLevel(const Token& token) {
    if (token.type != TokenType::OPERATOR) {
        return language::NO_LEVEL;
    }
    const language::Operator* found = language::findOperator(token.value);
    return found == nullptr ? language::NO_LEVEL : found->level;
}

/// Whether \p node compares the result of a comparison.
bool isChain(const Expression& node) {
    const auto* binary = nodeCast<BinaryExpression>(&node);
    return isComparison(node) && (isComparison(*binary->left) || isComparison(*binary->right));
}

bool isPlace(const Expression& node) {
    return nodeCast<VariableAccess>(&node) != nullptr || nodeCast<IndexExpression>(&node) != nullptr ||
           nodeCast<GetExpression>(&node) != nullptr;
}

} // namespace

ExpressionPtr ExpressionGrammar::parseExpression() {
    enter();
    return parseAssignment();
}

ExpressionPtr ExpressionGrammar::parseCondition() {
    const ScopedValue<bool> inCondition(isInCondition_, true);
    return parseExpression();
}

ExpressionPtr ExpressionGrammar::parseInner() {
    return outsideCondition([&] { return parseExpression(); });
}

ExpressionPtr ExpressionGrammar::parseAssignment() {
    if (isArrowFunctionAhead()) {
        return parse_.functionValues.parseArrowFunction();
    }
    const std::size_t first = tokens_.position();
    ExpressionPtr left = parseTernary();
    const bool isAssignment = tokens_.check(TokenType::ASSIGN) || tokens_.check(TokenType::COMPOUND_ASSIGN);
    if (!isAssignment || isValueOver()) {
        return left;
    }
    return isInCondition_ ? parseMistakenComparison(std::move(left), first)
                          : parseAssignedValue(std::move(left), first);
}

/// The operator and value after an assignment's target. A step by one may do without its value.
ExpressionPtr ExpressionGrammar::parseAssignedValue(ExpressionPtr target, std::size_t first) {
    if (!isPlace(*target)) {
        fail(fault::NO_PLACE, tokens_.rangeFrom(first), {tokens_.shown(tokens_.position())});
    }
    enter();
    const std::size_t opIndex = tokens_.position();
    Token op = tokens_.advance();
    const bool isStep = language::findOperator(op.value, language::OperatorKind::Step) != nullptr;
    ExpressionPtr value;
    if (!isStep || canBeginValue(tokens_.peek())) {
        value = parseAssignment();
    }
    auto node = make<PlaceAssignment>(first, std::move(target), std::move(op), std::move(value));
    notePlace(&node->op, tokens_.rangeOf(opIndex));
    return node;
}

ExpressionPtr ExpressionGrammar::parseMistakenComparison(ExpressionPtr left, std::size_t first) {
    note(fault::ASSIGNMENT_IN_CONDITION, tokens_.rangeOf(tokens_.position()), {tokens_.peek().value});
    enter();
    Token op = tokens_.advance();
    op.type = TokenType::OPERATOR;
    op.value = "சமம்";
    ExpressionPtr right = parseAssignment();
    return make<BinaryExpression>(first, std::move(left), std::move(op), std::move(right));
}

/// Whether name => or ( ... ) => begins here.
bool ExpressionGrammar::isArrowFunctionAhead() const {
    if (tokens_.check(TokenType::LPAREN)) {
        const std::size_t closing = tokens_.closingOf(tokens_.position());
        return closing != TokenReader::NONE && tokens_.at(closing + 1).type == TokenType::ARROW;
    }
    return isWord(tokens_.peek()) && tokens_.peek(1).type == TokenType::ARROW;
}

/// condition எனில் a இல்லைஎனில் b, or condition ? a : b
ExpressionPtr ExpressionGrammar::parseTernary() {
    const std::size_t first = tokens_.position();
    Parts parts(height_);
    ExpressionPtr condition = parseBinary(LOOSEST_LEVEL);
    const bool isWritten = tokens_.checkWord("எனில்");
    if (isValueOver() || (!isWritten && !tokens_.check(TokenType::QUESTION))) {
        return condition;
    }
    wrap(parts);
    tokens_.advance();
    ExpressionPtr thenBranch = parseExpression();
    const bool isJoined = isWritten ? tokens_.acceptWord("இல்லைஎனில்") : tokens_.accept(TokenType::COLON);
    // Either word goes with either sign.
    if (!isJoined && !(isWritten ? tokens_.accept(TokenType::COLON) : tokens_.acceptWord("இல்லைஎனில்"))) {
        failHere(fault::NO_SIGN, {isWritten ? "'இல்லைஎனில்'" : "':'", tokens_.shown(tokens_.position())});
    }
    parts.next();
    ExpressionPtr elseBranch = isArrowFunctionAhead() ? parse_.functionValues.parseArrowFunction() : parseTernary();
    return make<TernaryExpression>(first, std::move(condition), std::move(thenBranch), std::move(elseBranch));
}

/// Operands joined by operators of this level or tighter ones; equal levels group to the left.
ExpressionPtr ExpressionGrammar::parseBinary(int loosestLevel) {
    const std::size_t first = tokens_.position();
    Parts operands(height_);
    ExpressionPtr left = parseUnary();
    while (true) {
        const int level = binaryLevel(tokens_.peek());
        if (level < loosestLevel || isValueOver()) {
            return left;
        }
        wrap(operands);
        const std::size_t opIndex = tokens_.position();
        Token op = tokens_.advance();
        ExpressionPtr right = parseBinary(level + 1);
        checkComparison(op, opIndex, *left, *right);
        const Token* placedOp = nullptr;
        if (level <= LAST_LOGICAL_LEVEL) {
            auto node = make<LogicalExpression>(first, std::move(left), std::move(op), std::move(right));
            placedOp = &node->op;
            left = std::move(node);
        } else {
            auto node = make<BinaryExpression>(first, std::move(left), std::move(op), std::move(right));
            placedOp = &node->op;
            left = std::move(node);
        }
        notePlace(placedOp, tokens_.rangeOf(opIndex));
    }
}

/// a < b < c compares a truth value, which nobody means.
void ExpressionGrammar::checkComparison(const Token& op, std::size_t opIndex, const Expression& left,
                                        const Expression& right) {
    const bool isKnown = isChain(left) || isChain(right);
    const bool compares = language::findOperator(op.value, language::OperatorKind::Comparison) != nullptr;
    if (compares && (isComparison(left) || isComparison(right)) && !isKnown) {
        note(fault::CHAINED_COMPARISON, tokens_.rangeOf(opIndex), {op.value});
    }
}

ExpressionPtr ExpressionGrammar::parseUnary() {
    const Token& word = tokens_.peek();
    const bool isMinus = tokens_.checkWord(MINUS);
    const bool isUnary = isMinus || tokens_.checkWord("இல்லை") || word.type == TokenType::BIT_NOT ||
                         word.type == TokenType::UNARY_PLUS || word.type == TokenType::UNARY_MINUS;
    if (!isUnary) {
        return parsePostfix();
    }
    if (tokens_.checkWord("இல்லை") && tokens_.isWordAt(1, "எனில்")) {
        failHere(fault::SPLIT_WORD);
    }
    enter();
    const std::size_t first = tokens_.position();
    Token op = tokens_.advance();
    if (isMinus) {
        op = {TokenType::UNARY_MINUS, NEGATIVE, op.line};
    }
    auto node = make<UnaryExpression>(first, std::move(op), parseUnary());
    notePlace(&node->op, tokens_.rangeOf(first));
    return node;
}

/// A value with any number of calls, members and elements after it.
ExpressionPtr ExpressionGrammar::parsePostfix() {
    const std::size_t first = tokens_.position();
    Parts links(height_);
    ExpressionPtr left = parse_.primaries.parsePrimary();
    while (!isValueOver()) {
        const std::size_t opening = tokens_.position();
        if (tokens_.accept(TokenType::LPAREN)) {
            wrap(links);
            ExpressionList arguments = parseArguments(opening);
            left = make<CallExpression>(first, std::move(left), std::move(arguments));
        } else if (tokens_.accept(TokenType::LBRACKET)) {
            wrap(links);
            ExpressionPtr index = parseInner();
            consumeClosingOfOne(TokenType::RBRACKET, opening);
            left = make<IndexExpression>(first, std::move(left), std::move(index));
        } else if (tokens_.accept(TokenType::DOT)) {
            wrap(links);
            left = parseMember(std::move(left), first);
        } else {
            break;
        }
    }
    return left;
}

/// Whether the value ended with its line: nothing but the block of a function does so, and what comes next begins another
/// statement.
bool ExpressionGrammar::isValueOver() const {
    return tokens_.isAfterLineEnd();
}

/// After a dot nothing but a name can stand, so that every word may be one.
ExpressionPtr ExpressionGrammar::parseMember(ExpressionPtr object, std::size_t first) {
    const std::size_t index = tokens_.position();
    if (!isWord(tokens_.peek())) {
        failHere(fault::NO_NAME, {"புள்ளிக்குப் பின் பண்பு அல்லது செயல்", tokens_.shown(index)});
    }
    const Token& word = tokens_.advance();
    auto node = make<GetExpression>(first, std::move(object), Token{TokenType::IDENTIFIER, word.value, word.line});
    notePlace(&node->member, tokens_.rangeOf(index));
    return node;
}

ExpressionList ExpressionGrammar::parseArguments(std::size_t opening) {
    ExpressionList arguments;
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RPAREN)) {
        siblings.next();
        arguments.push_back(parseInner());
        if (!tokens_.accept(TokenType::COMMA)) {
            break;
        }
    }
    consumeClosing(TokenType::RPAREN, opening);
    return arguments;
}

} // namespace pozhil::second

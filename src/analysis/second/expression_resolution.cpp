#include "analysis/second/resolution.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/suggestions.h"
#include "language/operators.h"
#include "language/second/builtins.h"
#include "parser/tree/shapes.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <variant>

namespace pozhil::second {
namespace {

using resolved::BinaryOperator;
using resolved::UnaryOperator;

UnaryOperator unaryOperator(std::string_view word) {
    static const std::map<std::string_view, UnaryOperator> operators = {
        {"!", UnaryOperator::Not},
        {"-", UnaryOperator::Minus},
        {"+", UnaryOperator::Plus},
        {"~", UnaryOperator::BitNot},
    };
    const auto* const row = language::findOperator(word);
    const auto found = operators.find(row == nullptr ? word : row->symbol);
    return found == operators.end() ? UnaryOperator::Not : found->second;
}

const std::map<std::string_view, BinaryOperator>& binaryOperators() {
    static const std::map<std::string_view, BinaryOperator> operators = {
        {"+", BinaryOperator::Add},        {"-", BinaryOperator::Subtract},    {"*", BinaryOperator::Multiply},
        {"/", BinaryOperator::Divide},     {"%", BinaryOperator::Remainder},   {"", BinaryOperator::Join},
        {"==", BinaryOperator::Equal},     {"!=", BinaryOperator::NotEqual},   {"<", BinaryOperator::Less},
        {"<=", BinaryOperator::LessEqual}, {">", BinaryOperator::Greater},     {">=", BinaryOperator::GreaterEqual},
        {"&", BinaryOperator::BitAnd},     {"|", BinaryOperator::BitOr},       {"^", BinaryOperator::BitXor},
        {"<<", BinaryOperator::ShiftLeft}, {">>", BinaryOperator::ShiftRight},
    };
    return operators;
}

bool isBracketed(const Expression& node) {
    return nodeCast<GroupingExpression>(&node) != nullptr;
}

/// Makes the resolved node of each class of the tree.
class ValueMaker {
public:
    explicit ValueMaker(Resolution& resolution) : resolution_(resolution) {}

    resolved::ExpressionPtr take() { return std::move(result_); }

    void visit(const VariableAccess& node) { result_ = resolveName(resolution_, node); }
    void visit(const NumberLiteral& node) { result_ = resolveNumber(resolution_, node, &node, false); }
    void visit(const DoubleLiteral& node) { result_ = resolveDecimal(resolution_, node); }
    void visit(const CallExpression& node) { result_ = resolveCall(resolution_, node); }
    void visit(const GetExpression& node) { result_ = resolveMember(resolution_, node); }
    void visit(const KeyedMapLiteral& node) { result_ = resolveMap(resolution_, node); }
    void visit(const PlaceAssignment& node) { result_ = resolveAssignmentValue(resolution_, node); }
    void visit(const LambdaExpression& node) { takeLambda(node); }
    void visit(const FunctionExpression& node) { takeLambda(node); }

    void visit(const StringLiteral& node) {
        auto literal = makeNode<resolved::TextLiteral>(resolution_.placeOf(&node));
        literal->value = node.value;
        result_ = std::move(literal);
    }

    void visit(const BooleanLiteral& node) {
        auto literal = makeNode<resolved::TruthLiteral>(resolution_.placeOf(&node));
        literal->value = node.value == "மெய்";
        result_ = std::move(literal);
    }

    void visit(const BinaryExpression& node) {
        auto binary = makeNode<resolved::Binary>(resolution_.placeOf(&node));
        binary->op = binaryOperator(node.op.value);
        binary->left = resolveValue(resolution_, node.left.get());
        if (auto* const unary = dynamic_cast<resolved::Unary*>(binary->left.get())) {
            unary->deniesComparison = unary->op == UnaryOperator::Not && isComparison(node) && !isBracketed(*node.left);
        }
        binary->right = resolveValue(resolution_, node.right.get());
        result_ = std::move(binary);
    }

    void visit(const LogicalExpression& node) {
        auto logical = makeNode<resolved::Logical>(resolution_.placeOf(&node));
        const auto* const row = language::findOperator(node.op.value);
        logical->isAnd = row != nullptr && row->symbol == "&&";
        logical->left = resolveValue(resolution_, node.left.get());
        logical->right = resolveValue(resolution_, node.right.get());
        result_ = std::move(logical);
    }

    void visit(const UnaryExpression& node) {
        const UnaryOperator op = unaryOperator(node.op.value);
        const auto* const number = nodeCast<NumberLiteral>(node.right.get());
        if (op == UnaryOperator::Minus && number != nullptr) {
            result_ = resolveNumber(resolution_, *number, &node, true);
            return;
        }
        auto unary = makeNode<resolved::Unary>(resolution_.placeOf(&node));
        unary->op = op;
        unary->operand = resolveValue(resolution_, node.right.get());
        result_ = std::move(unary);
    }

    void visit(const TernaryExpression& node) {
        auto choice = makeNode<resolved::Conditional>(resolution_.placeOf(&node));
        choice->condition = resolveValue(resolution_, node.condition.get());
        choice->thenValue = resolveValue(resolution_, node.thenBranch.get());
        choice->mayBeReversed = isComparison(*withoutBrackets(node.thenBranch.get()));
        choice->elseValue = resolveValue(resolution_, node.elseBranch.get());
        result_ = std::move(choice);
    }

    void visit(const IndexExpression& node) {
        auto element = makeNode<resolved::ElementRead>(resolution_.placeOf(&node));
        element->container = resolveValue(resolution_, node.object.get());
        element->index = resolveValue(resolution_, node.index.get());
        result_ = std::move(element);
    }

    void visit(const GroupingExpression& node) { result_ = resolveValue(resolution_, node.inner.get()); }

    // Told already.
    void visit(const RTDBInsertExpression&) {}
    void visit(const RTDBUpdateExpression&) {}
    void visit(const RTDBDeleteExpression&) {}

    void visit(const ListLiteral& node) {
        auto list = makeNode<resolved::ListLiteral>(resolution_.placeOf(&node));
        list->elements = resolveValues(resolution_, node.elements);
        result_ = std::move(list);
    }

private:
    template <class Node> void takeLambda(const Node& node) {
        const resolved::Function* const function = resolution_.model.scopeOf.at(&node)->function;
        result_ = functionValue(resolution_, function, resolution_.placeOf(&node));
    }

    Resolution& resolution_;
    resolved::ExpressionPtr result_;
};

/// A key of a map that is known before the program runs.
using LiteralKey = std::variant<bool, std::int64_t, std::string>;

/// The key as maps hold it, however it is written; nothing for one that is calculated, or that can't be a key.
std::optional<LiteralKey> literalKey(const resolved::Expression& key) {
    if (const auto* text = nodeCast<resolved::TextLiteral>(&key)) {
        return text->value;
    }
    if (const auto* whole = nodeCast<resolved::WholeLiteral>(&key)) {
        return whole->value;
    }
    if (const auto* truth = nodeCast<resolved::TruthLiteral>(&key)) {
        return truth->value;
    }
    const auto* decimal = nodeCast<resolved::DecimalLiteral>(&key);
    // Larger ones have too few digits to be written as whole numbers.
    constexpr double LIMIT = 1e15;
    const bool isWhole =
        decimal != nullptr && std::trunc(decimal->value) == decimal->value && std::abs(decimal->value) <= LIMIT;
    return isWhole ? std::optional<LiteralKey>(static_cast<std::int64_t>(decimal->value)) : std::nullopt;
}

std::string shown(const LiteralKey& key) {
    if (const auto* text = std::get_if<std::string>(&key)) {
        return *text;
    }
    const auto* whole = std::get_if<std::int64_t>(&key);
    return whole != nullptr ? std::to_string(*whole) : std::get<bool>(key) ? "மெய்" : "பொய்";
}

} // namespace

BinaryOperator binaryOperator(std::string_view word) {
    const auto* const row = language::findOperator(word);
    const auto found = binaryOperators().find(row == nullptr ? word : row->symbol);
    return found == binaryOperators().end() ? BinaryOperator::Add : found->second;
}

resolved::ExpressionPtr unknownValue(resolved::Place place) {
    return makeNode<resolved::VariableRead>(place);
}

resolved::ExpressionPtr resolveValue(Resolution& resolution, const Expression* expression) {
    ValueMaker maker(resolution);
    visitNode(maker, expression, SecondExpressionClasses());
    auto value = maker.take();
    return value == nullptr ? unknownValue(resolution.placeOf(expression)) : std::move(value);
}

resolved::ExpressionList resolveValues(Resolution& resolution, const ExpressionList& expressions) {
    resolved::ExpressionList values;
    values.reserve(expressions.size());
    for (const ExpressionPtr& one : expressions) {
        values.push_back(resolveValue(resolution, one.get()));
    }
    return values;
}

resolved::ExpressionPtr resolveMap(Resolution& resolution, const KeyedMapLiteral& map) {
    auto result = makeNode<resolved::MapLiteral>(resolution.placeOf(&map));
    std::set<LiteralKey> keys;
    for (const auto& [key, value] : map.entries) {
        auto resolvedKey = resolveValue(resolution, key.get());
        const std::optional<LiteralKey> literal = literalKey(*resolvedKey);
        if (literal && !keys.insert(*literal).second) {
            resolution.model.faults.add(fault::DOUBLE_KEY, resolution.placeOf(key.get()), {shown(*literal)});
        }
        result->entries.emplace_back(std::move(resolvedKey), resolveValue(resolution, value.get()));
    }
    return result;
}

resolved::ExpressionPtr functionValue(Resolution& resolution, const resolved::Function* function,
                                      resolved::Place place) {
    const auto holder = resolution.model.holders.find(function);
    if (holder != resolution.model.holders.end()) {
        auto read = makeNode<resolved::VariableRead>(place);
        read->variable = holder->second;
        return read;
    }
    auto value = makeNode<resolved::FunctionValue>(place);
    value->function = function;
    return value;
}

resolved::ExpressionPtr resolveName(Resolution& resolution, const VariableAccess& name) {
    const resolved::Place place = resolution.placeOf(&name);
    const Meaning meaning = resolution.meaningOf(name.name, Use::Read);
    if (isDoubtful(resolution.model, meaning, name.name)) {
        return unknownValue(place);
    }
    if (meaning.variable != nullptr) {
        auto read = makeNode<resolved::VariableRead>(place);
        read->variable = meaning.variable;
        return read;
    }
    if (meaning.function != nullptr) {
        return functionValue(resolution, meaning.function, place);
    }
    if (!meaning.isUnknown()) {
        tellNameWithoutValue(resolution, meaning, name.name, place);
        return unknownValue(place);
    }
    if (name.name == NOTHING_NAME) {
        return makeNode<resolved::NothingLiteral>(place);
    }
    if (const auto* builtin = language::second::findBuiltin(language::second::BuiltinForm::Call, name.name)) {
        auto value = makeNode<resolved::BuiltinValue>(place);
        value->builtin = builtin;
        return value;
    }
    if (const auto* word = findPageBuiltin(resolution.model, language::second::BuiltinForm::PageWord, name.name)) {
        auto call = makeNode<resolved::BuiltinCall>(place);
        call->builtin = word;
        return call;
    }
    tellUnknownName(resolution, name.name, place);
    return unknownValue(place);
}

} // namespace pozhil::second

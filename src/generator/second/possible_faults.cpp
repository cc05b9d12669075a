#include "generator/second/possible_faults.h"

#include "analysis/second/resolved/visit.h"
#include "generator/second/types.h"

#include <algorithm>

namespace pozhil::resolved::writer {
namespace {

/// Whether an operator takes all operands of this type.
bool isSafe(UnaryOperator op, Type operand) {
    switch (op) {
    case UnaryOperator::Not: return operand == Type::Truth;
    case UnaryOperator::BitNot: return operand == Type::Whole;
    case UnaryOperator::Plus: return isNumber(operand);
    // Of the least whole number there is no opposite.
    default: return operand == Type::Decimal;
    }
}

/// Whether an operator takes all operands of these types.
bool isSafe(BinaryOperator op, Type left, Type right) {
    const bool areWhole = left == Type::Whole && right == Type::Whole;
    const bool areNumbers = isNumber(left) && isNumber(right);
    switch (op) {
    case BinaryOperator::Join:
    case BinaryOperator::Equal:
    case BinaryOperator::NotEqual: return true;
    case BinaryOperator::Less:
    case BinaryOperator::LessEqual:
    case BinaryOperator::Greater:
    case BinaryOperator::GreaterEqual: return areNumbers;
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
    case BinaryOperator::BitXor: return areWhole;
    // The result of whole numbers may not fit.
    case BinaryOperator::Add:
    case BinaryOperator::Subtract:
    case BinaryOperator::Multiply: return areNumbers && !areWhole;
    default: return false;
    }
}

bool canBeKey(const Expression& key) {
    return dynamic_cast<const TextLiteral*>(&key) != nullptr || dynamic_cast<const WholeLiteral*>(&key) != nullptr ||
           dynamic_cast<const TruthLiteral*>(&key) != nullptr;
}

/// Finds out whether one expression may fail.
class FaultFinder {
public:
    bool isIn(const Expression& expression) {
        visitExpression(*this, &expression);
        return mayFail_;
    }

    void visit(const WholeLiteral&) { mayFail_ = false; }
    void visit(const DecimalLiteral&) { mayFail_ = false; }
    void visit(const TruthLiteral&) { mayFail_ = false; }
    void visit(const TextLiteral&) { mayFail_ = false; }
    void visit(const NothingLiteral&) { mayFail_ = false; }
    void visit(const FunctionValue&) { mayFail_ = false; }
    void visit(const BuiltinValue&) { mayFail_ = false; }
    void visit(const VariableRead& read) { mayFail_ = read.isChecked; }

    void visit(const ListLiteral& list) {
        mayFail_ = std::any_of(list.elements.begin(), list.elements.end(),
                               [this](const ExpressionPtr& element) { return isIn(*element); });
    }
    void visit(const MapLiteral& map) {
        mayFail_ = std::any_of(map.entries.begin(), map.entries.end(),
                               [this](const auto& entry) { return !canBeKey(*entry.first) || isIn(*entry.second); });
    }
    void visit(const Unary& unary) { mayFail_ = !isSafe(unary.op, typeOf(*unary.operand)) || isIn(*unary.operand); }
    void visit(const Binary& binary) {
        // The right side is the short one of a chain.
        mayFail_ = isIn(*binary.right) || !isSafe(binary.op, typeOf(*binary.left), typeOf(*binary.right)) ||
                   isIn(*binary.left);
    }
    void visit(const Logical& logical) { mayFail_ = isInCondition(*logical.left) || isInCondition(*logical.right); }
    void visit(const Conditional& conditional) {
        mayFail_ =
            isInCondition(*conditional.condition) || isIn(*conditional.thenValue) || isIn(*conditional.elseValue);
    }

    /// Elements and members need not be there, and calls may do anything.
    template <class Other> void visit(const Other&) { mayFail_ = true; }

private:
    bool isInCondition(const Expression& expression) { return typeOf(expression) != Type::Truth || isIn(expression); }

    bool mayFail_ = true;
};

} // namespace

bool mayFail(const Expression& expression) {
    return FaultFinder().isIn(expression);
}

} // namespace pozhil::resolved::writer

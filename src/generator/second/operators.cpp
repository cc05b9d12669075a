#include "generator/second/operators.h"

namespace pozhil::resolved::writer {
namespace {

const char* functionOf(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Add: return "add";
    case BinaryOperator::Subtract: return "subtract";
    case BinaryOperator::Multiply: return "multiply";
    case BinaryOperator::Divide: return "divide";
    case BinaryOperator::Remainder: return "remainder";
    case BinaryOperator::Join: return "join";
    case BinaryOperator::Equal: return "equal";
    case BinaryOperator::NotEqual: return "!equal";
    case BinaryOperator::Less: return "less";
    case BinaryOperator::LessEqual: return "lessEqual";
    case BinaryOperator::Greater: return "greater";
    case BinaryOperator::GreaterEqual: return "greaterEqual";
    case BinaryOperator::BitAnd: return "bitAnd";
    case BinaryOperator::BitOr: return "bitOr";
    case BinaryOperator::BitXor: return "bitXor";
    case BinaryOperator::ShiftLeft: return "shiftLeft";
    default: return "shiftRight";
    }
}

bool isEquality(BinaryOperator op) {
    return op == BinaryOperator::Equal || op == BinaryOperator::NotEqual;
}

/// Numbers are compared natively, truth values only for being equal.
std::pair<Wanted, Wanted> comparedOperands(const Binary& binary) {
    const Type left = typeOf(*binary.left);
    const Type right = typeOf(*binary.right);
    const bool areTruths = left == Type::Truth && right == Type::Truth && isEquality(binary.op);
    const bool hasValue = left == Type::Value || right == Type::Value;
    return areTruths || hasValue ? std::pair{Wanted::AsIs, Wanted::AsIs}
                                 : std::pair{Wanted::NumberOrValue, Wanted::NumberOrValue};
}

void collectPieces(const Expression& expression, std::vector<const Expression*>& pieces) {
    const auto* join = dynamic_cast<const Binary*>(&expression);
    if (join != nullptr && join->op == BinaryOperator::Join) {
        collectPieces(*join->left, pieces);
        collectPieces(*join->right, pieces);
    } else {
        pieces.push_back(&expression);
    }
}

} // namespace

std::pair<Wanted, Wanted> wantedOperands(const Binary& binary) {
    switch (binary.op) {
    case BinaryOperator::Equal:
    case BinaryOperator::NotEqual:
    case BinaryOperator::Less:
    case BinaryOperator::LessEqual:
    case BinaryOperator::Greater:
    case BinaryOperator::GreaterEqual: return comparedOperands(binary);
    case BinaryOperator::Join: return {Wanted::AsIs, Wanted::AsIs};
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
    case BinaryOperator::BitXor:
    case BinaryOperator::ShiftLeft:
    case BinaryOperator::ShiftRight: return {Wanted::WholeOrValue, Wanted::WholeOrValue};
    default: return {Wanted::NumberOrValue, Wanted::NumberOrValue};
    }
}

std::string operation(BinaryOperator op, const std::string& operands, const std::string& place) {
    return std::string(functionOf(op)) + "(" + operands + (isEquality(op) ? ")" : ", " + place + ")");
}

std::vector<const Expression*> joinedPieces(const Binary& join) {
    std::vector<const Expression*> pieces;
    collectPieces(join, pieces);
    return pieces;
}

} // namespace pozhil::resolved::writer

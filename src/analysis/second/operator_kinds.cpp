#include "analysis/second/operator_kinds.h"

namespace pozhil::second {
namespace {

using resolved::BinaryOperator;
using resolved::Kind;
using resolved::UnaryOperator;

/// Sums, differences, products and remainders: whole numbers stay whole, with a decimal they become decimals.
Kind arithmetic(Kind left, Kind right) {
    if (!isNumber(left) || !isNumber(right)) {
        return Kind::Any;
    }
    return left == Kind::Whole && right == Kind::Whole ? Kind::Whole : Kind::Decimal;
}

/// கூட்டு also joins texts, a text with anything, and lists.
Kind sum(Kind left, Kind right) {
    if (left == Kind::Text || right == Kind::Text) {
        return Kind::Text;
    }
    return left == Kind::List && right == Kind::List ? Kind::List : arithmetic(left, right);
}

bool mayBeNumber(Kind kind) {
    return kind == Kind::Any || isNumber(kind);
}

bool mayBeSum(Kind left, Kind right) {
    const bool isOpen = left == Kind::Any || right == Kind::Any || left == Kind::Text || right == Kind::Text;
    return isOpen || (isNumber(left) && isNumber(right)) || (left == Kind::List && right == Kind::List);
}

/// Numbers stand in an order, and texts do.
bool mayBeOrdered(Kind left, Kind right) {
    const auto isOrdered = [](Kind kind) { return mayBeNumber(kind) || kind == Kind::Text; };
    const bool isMixed = (isNumber(left) && right == Kind::Text) || (left == Kind::Text && isNumber(right));
    return isOrdered(left) && isOrdered(right) && !isMixed;
}

} // namespace

Kind resultOf(BinaryOperator op, Kind left, Kind right) {
    switch (op) {
    case BinaryOperator::Add: return sum(left, right);
    case BinaryOperator::Subtract:
    case BinaryOperator::Multiply:
    case BinaryOperator::Remainder: return arithmetic(left, right);
    case BinaryOperator::Divide: return Kind::Decimal;
    case BinaryOperator::Join: return Kind::Text;
    case BinaryOperator::Equal:
    case BinaryOperator::NotEqual:
    case BinaryOperator::Less:
    case BinaryOperator::LessEqual:
    case BinaryOperator::Greater:
    case BinaryOperator::GreaterEqual: return Kind::Truth;
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
    case BinaryOperator::BitXor:
    case BinaryOperator::ShiftLeft:
    case BinaryOperator::ShiftRight: return Kind::Whole;
    }
    return Kind::Any;
}

Kind resultOf(UnaryOperator op, Kind operand) {
    switch (op) {
    case UnaryOperator::Not: return Kind::Truth;
    case UnaryOperator::BitNot: return Kind::Whole;
    case UnaryOperator::Minus:
    case UnaryOperator::Plus: return isNumber(operand) ? operand : Kind::Any;
    }
    return Kind::Any;
}

bool mayApply(BinaryOperator op, Kind left, Kind right) {
    switch (op) {
    case BinaryOperator::Add: return mayBeSum(left, right);
    case BinaryOperator::Join:
    case BinaryOperator::Equal:
    case BinaryOperator::NotEqual: return true;
    case BinaryOperator::Less:
    case BinaryOperator::LessEqual:
    case BinaryOperator::Greater:
    case BinaryOperator::GreaterEqual: return mayBeOrdered(left, right);
    default: return mayBeNumber(left) && mayBeNumber(right);
    }
}

bool mayApply(UnaryOperator op, Kind operand) {
    return op == UnaryOperator::Not ? operand == Kind::Any || operand == Kind::Truth : mayBeNumber(operand);
}

bool mayHaveElements(Kind container) {
    return container == Kind::Any || container == Kind::List || container == Kind::Map || container == Kind::Text;
}

bool mayBeIndex(Kind container, Kind index) {
    if (index == Kind::Any || container == Kind::Any) {
        return true;
    }
    const bool isKey = isNumber(index) || index == Kind::Text || index == Kind::Truth;
    return container == Kind::Map ? isKey : isNumber(index);
}

const char* wordOf(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Add: return "கூட்டு";
    case BinaryOperator::Subtract: return "கழி";
    case BinaryOperator::Multiply: return "பெருக்கு";
    case BinaryOperator::Divide: return "வகு";
    case BinaryOperator::Remainder: return "மீதி";
    case BinaryOperator::Join: return "இணை";
    case BinaryOperator::Equal: return "சமம்";
    case BinaryOperator::NotEqual: return "சமமில்லை";
    case BinaryOperator::Less: return "சிறிது";
    case BinaryOperator::LessEqual: return "சிறிதுசமம்";
    case BinaryOperator::Greater: return "பெரிது";
    case BinaryOperator::GreaterEqual: return "பெரிதுசமம்";
    case BinaryOperator::BitAnd: return "பெருக்குஇருமை";
    case BinaryOperator::BitOr: return "கூட்டுஇருமை";
    case BinaryOperator::BitXor: return "வேறுஇருமை";
    case BinaryOperator::ShiftLeft: return "இடதுஇருமை";
    case BinaryOperator::ShiftRight: return "வலதுஇருமை";
    }
    return "";
}

const char* wordOf(UnaryOperator op) {
    switch (op) {
    case UnaryOperator::Not: return "இல்லை";
    case UnaryOperator::Minus: return "குறை";
    case UnaryOperator::Plus: return "மிகை";
    case UnaryOperator::BitNot: return "எதிர்இருமை";
    }
    return "";
}

const char* wordOf(Kind kind) {
    switch (kind) {
    case Kind::Any: return "மதிப்பு";
    case Kind::Whole: return "எண்";
    case Kind::Decimal: return "தசம எண்";
    case Kind::Truth: return "நிலை";
    case Kind::Text: return "உரை";
    case Kind::List: return "பட்டியல்";
    case Kind::Map: return "அகராதி";
    case Kind::Object: return "பொருள்";
    case Kind::Function: return "வினை";
    case Kind::Time: return "நேரம்";
    case Kind::Nothing: return "வெறுமை";
    }
    return "";
}

} // namespace pozhil::second

#include "generator/second/types.h"

#include "analysis/second/resolved/visit.h"

namespace pozhil::resolved::writer {
namespace {

/// Of a sum, difference, product or remainder.
Type typeOfArithmetic(Type left, Type right) {
    if (!isNumber(left) || !isNumber(right)) {
        return Type::Value;
    }
    return left == Type::Whole && right == Type::Whole ? Type::Whole : Type::Decimal;
}

/// Finds the type of one expression.
class TypeFinder {
public:
    Type of(const Expression& expression) {
        visitExpression(*this, &expression);
        return type_;
    }

    void visit(const VariableRead& read) { type_ = typeOf(*read.variable); }
    void visit(const WholeLiteral&) { type_ = Type::Whole; }
    void visit(const DecimalLiteral&) { type_ = Type::Decimal; }
    void visit(const TruthLiteral&) { type_ = Type::Truth; }
    void visit(const Logical&) { type_ = Type::Truth; }
    void visit(const FunctionCall& call) { type_ = typeOf(*call.function); }

    void visit(const Unary& unary) {
        if (unary.op == UnaryOperator::Not) {
            type_ = Type::Truth;
        } else if (unary.op == UnaryOperator::BitNot) {
            type_ = Type::Whole;
        } else {
            const Type operand = of(*unary.operand);
            type_ = isNumber(operand) ? operand : Type::Value;
        }
    }

    void visit(const Binary& binary) {
        const Type left = of(*binary.left);
        type_ = typeOfOperation(binary.op, left, of(*binary.right));
    }

    void visit(const Conditional& conditional) {
        const Type thenType = of(*conditional.thenValue);
        type_ = thenType == of(*conditional.elseValue) ? thenType : Type::Value;
    }

    void visit(const AssignmentValue& assignment) {
        type_ =
            assignment.target->form == TargetPlace::Form::Variable ? typeOf(*assignment.target->variable) : Type::Value;
    }

    void visit(const BuiltinCall& call) {
        using language::second::ResultKind;
        switch (call.builtin->result) {
        case ResultKind::Whole: type_ = Type::Whole; break;
        case ResultKind::Decimal: type_ = Type::Decimal; break;
        case ResultKind::Truth: type_ = Type::Truth; break;
        case ResultKind::OfFirstArgument: {
            const Type first = of(*call.arguments.front().value);
            type_ = isNumber(first) ? first : Type::Value;
            break;
        }
        default: type_ = Type::Value;
        }
    }

    template <class Other> void visit(const Other&) { type_ = Type::Value; }

private:
    Type type_ = Type::Value;
};

} // namespace

const char* nameOf(Type type) {
    switch (type) {
    case Type::Whole: return "Whole";
    case Type::Decimal: return "Decimal";
    case Type::Truth: return "bool";
    default: return "Value";
    }
}

Type typeOf(Kind kind) {
    switch (kind) {
    case Kind::Whole: return Type::Whole;
    case Kind::Decimal: return Type::Decimal;
    case Kind::Truth: return Type::Truth;
    default: return Type::Value;
    }
}

Type typeOf(const Expression& expression) {
    return TypeFinder().of(expression);
}

Type typeOf(const Function& function) {
    return typeOf(function.result);
}

Type typeOf(const Variable& variable) {
    return typeOf(variable.kind);
}

Type typeOfOperation(BinaryOperator op, Type left, Type right) {
    switch (op) {
    case BinaryOperator::Add:
    case BinaryOperator::Subtract:
    case BinaryOperator::Multiply:
    case BinaryOperator::Remainder: return typeOfArithmetic(left, right);
    case BinaryOperator::Divide: return Type::Decimal;
    case BinaryOperator::Join: return Type::Value;
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
    case BinaryOperator::BitXor:
    case BinaryOperator::ShiftLeft:
    case BinaryOperator::ShiftRight: return Type::Whole;
    default: return Type::Truth;
    }
}

std::string converted(const std::string& text, Type from, Type to) {
    if (from == to) {
        return text;
    }
    if (to == Type::Value) {
        return "Value(" + text + ")";
    }
    if (from == Type::Whole && to == Type::Decimal) {
        return "static_cast<Decimal>(" + text + ")";
    }
    const std::string value = from == Type::Value ? text : "Value(" + text + ")";
    switch (to) {
    case Type::Whole: return value + ".whole()";
    case Type::Decimal: return value + ".decimal()";
    default: return value + ".truth()";
    }
}

} // namespace pozhil::resolved::writer

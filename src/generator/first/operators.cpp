#include "language/operators.h"
#include "base/number_text.h"
#include "generator/first/generator.h"

#include <string_view>

namespace pozhil {
namespace {

using language::findOperator;
using language::OperatorKind;

bool isComparison(std::string_view word) {
    return findOperator(word, OperatorKind::Comparison) != nullptr;
}

bool isContainer(VarType type) {
    return type == VarType::List || type == VarType::Map || type == VarType::Object;
}

bool isNumber(VarType type) {
    return type == VarType::Integer || type == VarType::Double;
}

bool isZeroLiteral(const Expression* expression) {
    if (const auto* number = nodeCast<NumberLiteral>(expression)) {
        return toAsciiDigits(number->value) == "0";
    }
    const auto* decimal = nodeCast<DoubleLiteral>(expression);
    return decimal != nullptr && (decimal->value == "0.0" || decimal->value == "0.");
}

bool isNativeLiteral(const Expression* expression) {
    return nodeCast<NumberLiteral>(expression) != nullptr || nodeCast<DoubleLiteral>(expression) != nullptr ||
           nodeCast<StringLiteral>(expression) != nullptr || nodeCast<BooleanLiteral>(expression) != nullptr;
}

} // namespace

std::string Generator::mapOperator(const std::string& word) const {
    const language::Operator* found = findOperator(word);
    if (found == nullptr || found->symbol.empty()) {
        பிழை("பொழி-304", 0, "Operator: " + word);
    }
    return std::string(found->symbol);
}

/// a கூட்டு b  ->  fn_add_any(std::any(a), std::any(b)), and so on: words with a runtime function call it, the others
/// are native arithmetic over casts
void Generator::visitBinaryExpression(const BinaryExpression* node) {
    const VarType left = inferExpressionType(node->left.get());
    const VarType right = inferExpressionType(node->right.get());
    checkOperandTypes(node, left, right);
    const std::string& word = node->op.value;
    if (word == "இணை") {
        out_ << "std::string(fn_any_to_string(";
        visitExpression(node->left.get());
        out_ << ") + fn_any_to_string(";
        visitExpression(node->right.get());
        out_ << "))";
    } else if (word == "கூட்டு" || word == "வகு" || isComparison(word)) {
        out_ << (word == "கூட்டு" ? "fn_add_any(" : word == "வகு" ? "fn_div_any(" : "fn_compare_any(");
        emitAny(node->left.get());
        out_ << ", ";
        emitAny(node->right.get());
        if (isComparison(word)) {
            out_ << ", \"" << word << "\"";
        }
        out_ << ")";
    } else {
        emitNativeArithmetic(node, left, right);
    }
}

/// What can be refused at sight: arithmetic on containers, division by a literal zero, text mixed with numbers.
void Generator::checkOperandTypes(const BinaryExpression* node, VarType left, VarType right) const {
    const std::string& word = node->op.value;
    if (findOperator(word, OperatorKind::Arithmetic) == nullptr) {
        return;
    }
    if (isContainer(left) || isContainer(right)) {
        பிழை("பொழி-304", node->line, "");
    }
    if (word == "வகு" && isZeroLiteral(node->right.get())) {
        பிழை("பொழி-301", node->line, "");
    }
    if ((left == VarType::Text && isNumber(right)) || (isNumber(left) && right == VarType::Text)) {
        பிழை("பொழி-303", node->line, "");
    }
}

void Generator::emitNativeArithmetic(const BinaryExpression* node, VarType left, VarType right) {
    const auto either = [&](VarType type) { return left == type || right == type; };
    const std::string_view castType = either(VarType::Boolean)  ? "bool"
                                      : either(VarType::Double) ? "long double"
                                                                : "long long";
    const auto emitOperand = [&](const Expression* operand) {
        if (isNativeLiteral(operand)) {
            visitExpression(operand);
            return;
        }
        out_ << "std::any_cast<" << castType << ">(";
        emitCastOperand(operand);
        out_ << ")";
    };
    emitOperand(node->left.get());
    out_ << " " << mapOperator(node->op.value) << " ";
    emitOperand(node->right.get());
}

/// a மற்றும் b  ->  (a && b), both sides native, so that the right one is only evaluated when it matters
void Generator::visitLogicalExpression(const LogicalExpression* node) {
    out_ << "(";
    emitCondition(node->left.get());
    out_ << " " << mapOperator(node->op.value) << " ";
    emitCondition(node->right.get());
    out_ << ")";
}

void Generator::visitUnaryExpression(const UnaryExpression* node) {
    const std::string& word = node->op.value;
    if (word == "இல்லை") {
        out_ << "fn_logic_not(";
        visitExpression(node->right.get());
        out_ << ")";
    } else if (word == "எதிர்இருமை") {
        out_ << "std::any(~std::any_cast<long long>(";
        emitCastOperand(node->right.get());
        out_ << "))";
    } else {
        out_ << mapOperator(word) << "(";
        visitExpression(node->right.get());
        out_ << ")";
    }
}

/// x = v  ->  (x = std::any(v), x);  x கூட்டிசேர் v  ->  (x = std::any(std::any_cast<long long>(x) + v), x)
void Generator::visitAssignmentExpression(const AssignmentExpression* node) {
    const bool isConstant = node->name == "மாறிலி" || node->name.rfind("மாறிலி_", 0) == 0;
    if (isConstant && varTypes_.count(node->name) != 0) {
        பிழை("பொழி-315", node->line, "");
    }
    const bool isLocal = !currentFunction_.empty() && localVars_.count(node->name) != 0;
    const std::string target = isLocal ? node->name : "global_vars[\"" + node->name + "\"]";
    setVarType(node->name, inferExpressionType(node->value.get()));
    out_ << "(" << target << " = ";
    const std::string_view symbol = language::compoundArithmetic(node->op.value);
    if (!symbol.empty()) {
        out_ << "std::any(std::any_cast<long long>(" << target << ") " << symbol << " ";
        visitExpression(node->value.get());
        out_ << ")";
    } else {
        const VarType type = inferExpressionType(node->value.get());
        if (isContainer(type) || type == VarType::Time) {
            visitExpression(node->value.get());
        } else {
            emitAny(node->value.get());
        }
    }
    out_ << ", " << target << ")";
}

} // namespace pozhil

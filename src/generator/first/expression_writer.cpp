#include "generator/first/expression_writer.h"

#include "base/number_text.h"
#include "generator/first/names.h"
#include "generator/web/page/web_emitter.h"
#include "language/builtins.h"
#include "language/operators.h"
#include "parser/tree/shapes.h"
#include "parser/tree/visit.h"

namespace pozhil {
namespace {

using language::OperatorKind;

std::string_view symbolOf(std::string_view word) {
    return language::findOperator(word)->symbol;
}

bool isOfKind(std::string_view word, OperatorKind kind) {
    return language::findOperator(word, kind) != nullptr;
}

bool isNativeLiteral(const Expression* expression) {
    return nodeCast<NumberLiteral>(expression) != nullptr || nodeCast<DoubleLiteral>(expression) != nullptr ||
           nodeCast<StringLiteral>(expression) != nullptr || nodeCast<BooleanLiteral>(expression) != nullptr;
}

bool isZero(const Expression* expression) {
    const auto* number = nodeCast<NumberLiteral>(withoutBrackets(expression));
    return number != nullptr && toAsciiDigits(number->value).find_first_not_of('0') == std::string::npos;
}

/// The function of the runtime that carries out an operator; empty for native arithmetic.
std::string_view runtimeFunction(std::string_view word) {
    if (word == "கூட்டு") {
        return "fn_add_any";
    }
    if (word == "வகு") {
        return "fn_div_any";
    }
    return isOfKind(word, OperatorKind::Comparison) ? "fn_compare_any" : "";
}

} // namespace

ExpressionWriter::ExpressionWriter(Emission& emission)
    : emission_(emission), out_(emission.out), calls_(emission, *this) {}

void ExpressionWriter::write(const Expression* expression) {
    visitExpression(*this, expression);
}

void ExpressionWriter::writeAny(const Expression* expression) {
    out_ << "std::any(";
    write(expression);
    out_ << ")";
}

void ExpressionWriter::writeAnyList(const ExpressionList& expressions) {
    bool isFirst = true;
    for (const ExpressionPtr& expression : expressions) {
        out_ << (isFirst ? "" : ", ");
        writeAny(expression.get());
        isFirst = false;
    }
}

void ExpressionWriter::writeCastOperand(const Expression* expression) {
    if (isZero(expression)) {
        writeAny(expression);
    } else {
        write(expression);
    }
}

void ExpressionWriter::writeCondition(const Expression* condition) {
    const bool isNative =
        nodeCast<BinaryExpression>(condition) != nullptr || nodeCast<LogicalExpression>(condition) != nullptr;
    if (isNative) {
        write(condition);
        return;
    }
    out_ << "std::any_cast<bool>(";
    writeCastOperand(condition);
    out_ << ")";
}

void ExpressionWriter::visit(const NumberLiteral& node) {
    out_ << toAsciiDigits(node.value) << "LL";
}

void ExpressionWriter::visit(const DoubleLiteral& node) {
    out_ << toAsciiDigits(node.value) << "L";
}

void ExpressionWriter::visit(const StringLiteral& node) {
    out_ << "std::string(u8\"" << node.value << "\")";
}

void ExpressionWriter::visit(const CharLiteral& node) {
    out_ << "_PozhilChar{std::string(u8\"" << node.value << "\")}";
}

void ExpressionWriter::visit(const BooleanLiteral& node) {
    out_ << (node.value == "மெய்" ? "true" : "false");
}

void ExpressionWriter::visit(const ListLiteral& node) {
    out_ << "std::vector<std::any>({";
    writeAnyList(node.elements);
    out_ << "})";
}

void ExpressionWriter::visit(const MapLiteral& node) {
    out_ << "std::map<std::string, std::any>({";
    bool isFirst = true;
    for (const auto& [key, value] : node.entries) {
        out_ << (isFirst ? "" : ", ") << "{\"" << key << "\", ";
        writeAny(value.get());
        out_ << "}";
        isFirst = false;
    }
    out_ << "})";
}

void ExpressionWriter::visit(const GroupingExpression& node) {
    out_ << "(";
    write(node.inner.get());
    out_ << ")";
}

/// A native variable of the function being emitted, or an entry of the one global map.
void ExpressionWriter::visit(const VariableAccess& node) {
    out_ << variableAt(emission_.facts.names.next(&node), node.name);
}

/// x = v  ->  (x = std::any(v), x);  x கூட்டிசேர் v  ->  (x = std::any(std::any_cast<long long>(x) + v), x)
void ExpressionWriter::visit(const AssignmentExpression& node) {
    const AssignmentFact& fact = emission_.facts.assignments.next(&node);
    const std::string target = variableAt(fact.place, node.name);
    const bool isBare = fact.isBare;
    const std::string_view arithmetic = language::compoundArithmetic(node.op.value);
    out_ << "(" << target << " = ";
    if (!arithmetic.empty()) {
        out_ << "std::any(std::any_cast<long long>(" << target << ") " << arithmetic << " ";
        write(node.value.get());
        out_ << ")";
    } else if (isBare) {
        write(node.value.get());
    } else {
        writeAny(node.value.get());
    }
    out_ << ", " << target << ")";
}

/// காட்சி_நிலை.name = v  ->  the overlay's visibility;  a.b = v  ->  fn_set_property(a, "b", ...)
void ExpressionWriter::visit(const SetMemberExpression& node) {
    const auto* object = nodeCast<VariableAccess>(node.object.get());
    if (object != nullptr && object->name == "காட்சி_நிலை") {
        out_ << globalVariable(node.member.value) << " = ";
        writeAny(node.value.get());
        return;
    }
    out_ << "fn_set_property(";
    write(node.object.get());
    out_ << ", \"" << node.member.value << "\", ";
    writeAny(node.value.get());
    out_ << ", " << emission_.placeArguments(node.line >= 1 ? node.line : node.member.line) << ")";
}

/// a.b: a member of an input widget, a property of an object, or a part of a time value
void ExpressionWriter::visit(const GetExpression& node) {
    const std::string& member = node.member.value;
    switch (emission_.facts.members.next(&node)) {
    case MemberKind::Input: calls_.writeInputProperty(node); break;
    case MemberKind::Property:
        out_ << "fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(";
        write(node.object.get());
        out_ << "), \"" << member << "\", " << emission_.placeArguments(node.line) << ")";
        break;
    case MemberKind::TimePart: calls_.writeTimePart(node); break;
    }
}

/// a[i]  ->  fn_எடு(a, std::any(i), file, line)
void ExpressionWriter::visit(const IndexExpression& node) {
    out_ << "fn_எடு(";
    write(node.object.get());
    out_ << ", ";
    writeAny(node.index.get());
    out_ << ", " << emission_.placeArguments(node.line) << ")";
}

void ExpressionWriter::visit(const TernaryExpression& node) {
    out_ << "(";
    write(node.condition.get());
    out_ << " ? ";
    write(node.thenBranch.get());
    out_ << " : ";
    write(node.elseBranch.get());
    out_ << ")";
}

/// (a) => a  ->  std::function<std::any(std::any)>([=](std::any a) { return std::any(a); })
void ExpressionWriter::visit(const LambdaExpression& node) {
    std::string declarations;
    for (const Token& parameter : node.parameters) {
        declarations += declarations.empty() ? "std::any " : ", std::any ";
        declarations += emittedVariableName(parameter.value);
    }
    out_ << "std::function<std::any(" << anyTypes(node.parameters.size()) << ")>([=](" << declarations << ") { return ";
    writeAny(node.body.get());
    out_ << "; })";
}

void ExpressionWriter::visit(const CallExpression& node) {
    calls_.write(node);
}

/// a கூட்டு b  ->  fn_add_any(std::any(a), std::any(b)), and so on: words with a runtime function call it, the others
/// are native arithmetic over casts
void ExpressionWriter::visit(const BinaryExpression& node) {
    const VarType operands = emission_.facts.arithmetic.next(&node).operands;
    const std::string& word = node.op.value;
    const std::string_view function = runtimeFunction(word);
    if (isOfKind(word, OperatorKind::Join)) {
        out_ << "std::string(fn_any_to_string(";
        write(node.left.get());
        out_ << ") + fn_any_to_string(";
        write(node.right.get());
        out_ << "))";
    } else if (function.empty()) {
        writeNativeArithmetic(node, operands);
    } else {
        out_ << function << "(";
        writeAny(node.left.get());
        out_ << ", ";
        writeAny(node.right.get());
        if (isOfKind(word, OperatorKind::Comparison)) {
            out_ << ", \"" << word << "\"";
        }
        out_ << ")";
    }
}

void ExpressionWriter::writeNativeArithmetic(const BinaryExpression& node, VarType operands) {
    const std::string_view castType = operands == VarType::Boolean  ? "bool"
                                      : operands == VarType::Double ? "long double"
                                                                    : "long long";
    const auto writeOperand = [&](const Expression* operand) {
        if (isNativeLiteral(operand)) {
            write(operand);
            return;
        }
        out_ << "std::any_cast<" << castType << ">(";
        writeCastOperand(operand);
        out_ << ")";
    };
    writeOperand(node.left.get());
    out_ << " " << symbolOf(node.op.value) << " ";
    writeOperand(node.right.get());
}

/// a மற்றும் b  ->  (a && b), both sides native, so that the right one is only evaluated when it matters
void ExpressionWriter::visit(const LogicalExpression& node) {
    out_ << "(";
    writeCondition(node.left.get());
    out_ << " " << symbolOf(node.op.value) << " ";
    writeCondition(node.right.get());
    out_ << ")";
}

void ExpressionWriter::visit(const UnaryExpression& node) {
    const std::string& word = node.op.value;
    if (word == "இல்லை") {
        out_ << "fn_logic_not(";
        write(node.right.get());
        out_ << ")";
    } else if (word == "எதிர்இருமை") {
        out_ << "std::any(~std::any_cast<long long>(";
        writeCastOperand(node.right.get());
        out_ << "))";
    } else {
        const bool isMinus = node.op.type == TokenType::UNARY_MINUS;
        const bool isPlus = node.op.type == TokenType::UNARY_PLUS;
        out_ << (isMinus ? "-" : isPlus ? "+" : symbolOf(word)) << "(";
        write(node.right.get());
        out_ << ")";
    }
}

/// What only web programs have stands in the same text in every edition.
void ExpressionWriter::writeForWeb(const Expression& expression) {
    emission_.web.writeExpression(&expression);
}

void ExpressionWriter::visit(const ColorExpression& node) {
    writeForWeb(node);
}

void ExpressionWriter::visit(const RTDBInsertExpression& node) {
    writeForWeb(node);
}

void ExpressionWriter::visit(const RTDBUpdateExpression& node) {
    writeForWeb(node);
}

void ExpressionWriter::visit(const RTDBDeleteExpression& node) {
    writeForWeb(node);
}

void ExpressionWriter::visit(const WidgetExpression& node) {
    writeForWeb(node);
}

} // namespace pozhil

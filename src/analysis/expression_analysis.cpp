#include "analysis/expression_analysis.h"

#include "base/number_text.h"
#include "language/builtins.h"
#include "language/operators.h"
#include "parser/tree/visit.h"

#include <cerrno>
#include <cstdlib>

namespace pozhil {
namespace {

/// The object whose members are the variables that show and hide widgets.
constexpr std::string_view VISIBILITY = "காட்சி_நிலை";

bool isOfKind(std::string_view word, language::OperatorKind kind) {
    return language::findOperator(word, kind) != nullptr;
}

bool isZeroLiteral(const Expression* expression) {
    if (const auto* number = nodeCast<NumberLiteral>(expression)) {
        return toAsciiDigits(number->value) == "0";
    }
    const auto* decimal = nodeCast<DoubleLiteral>(expression);
    return decimal != nullptr && (decimal->value == "0.0" || decimal->value == "0.");
}

bool isConstantName(const std::string& name) {
    return name == "மாறிலி" || name.rfind("மாறிலி_", 0) == 0;
}

} // namespace

ExpressionAnalysis::ExpressionAnalysis(Walk& walk) : walk_(walk), calls_(walk, *this) {}

void ExpressionAnalysis::analyse(const Expression* expression) {
    if (!visitExpression(*this, expression)) {
        walk_.faults.raisePlaceless("பொழி-399", expression, "Unknown expression type in generator");
    }
}

void ExpressionAnalysis::analyse(const ExpressionList& expressions) {
    for (const ExpressionPtr& expression : expressions) {
        analyse(expression.get());
    }
}

void ExpressionAnalysis::visit(const NumberLiteral& node) {
    errno = 0;
    std::strtoull(toAsciiDigits(node.value).c_str(), nullptr, 10);
    if (errno == ERANGE) {
        walk_.faults.raise("பொழி-305", node);
    }
}

void ExpressionAnalysis::visit(const ListLiteral& node) {
    analyse(node.elements);
}

void ExpressionAnalysis::visit(const MapLiteral& node) {
    analyseEntries(node);
}

void ExpressionAnalysis::analyseEntries(const MapLiteral& map) {
    for (const auto& entry : map.entries) {
        analyse(entry.second.get());
    }
}

void ExpressionAnalysis::visit(const GroupingExpression& node) {
    analyse(node.inner.get());
}

void ExpressionAnalysis::visit(const VariableAccess& node) {
    if (isSelfName(node.name) && !walk_.kinds.isInStructure()) {
        walk_.faults.raise("பொழி-325", node);
    }
    walk_.facts.names.add(&node, walk_.scope.isNative(node.name) ? Place::Native : Place::Global);
}

/// A constant is one by its name, and is given a value only once.
void ExpressionAnalysis::visit(const AssignmentExpression& node) {
    if (isConstantName(node.name) && walk_.scope.isAssigned(node.name)) {
        walk_.faults.raise("பொழி-315", node);
    }
    const bool isNative = !walk_.function.empty() && walk_.scope.isNative(node.name);
    walk_.scope.assign(node.name, walk_.kinds.of(node.value.get()));
    const bool isCompound = !language::compoundArithmetic(node.op.value).empty();
    // Asked anew, since the value may read the variable itself.
    const VarType kind = isCompound ? VarType::Any : walk_.kinds.of(node.value.get());
    walk_.facts.assignments.add(&node,
                                {isNative ? Place::Native : Place::Global, isContainer(kind) || kind == VarType::Time});
    analyse(node.value.get());
}

void ExpressionAnalysis::visit(const SetMemberExpression& node) {
    const auto* object = nodeCast<VariableAccess>(node.object.get());
    if (object == nullptr || object->name != VISIBILITY) {
        const VarType kind = walk_.kinds.of(node.object.get());
        if (kind == VarType::Time) {
            walk_.faults.raise("பொழி-322", node);
        }
        if (kind != VarType::Object) {
            walk_.faults.raise("பொழி-304", node, "இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது");
        }
        checkPrivacy(node.object.get(), node.member, node.line);
        analyse(node.object.get());
    }
    analyse(node.value.get());
}

/// The members that name an input widget rather than a variable go before, whatever the variable holds.
void ExpressionAnalysis::visit(const GetExpression& node) {
    const std::string& member = node.member.value;
    const bool isInput = nodeCast<VariableAccess>(node.object.get()) != nullptr &&
                         language::findMember(language::BuiltinForm::InputProperty, member) != nullptr;
    if (isInput) {
        walk_.facts.members.add(&node, MemberKind::Input);
        return;
    }
    const VarType kind = walk_.kinds.of(node.object.get());
    if (kind == VarType::Object) {
        checkPrivacy(node.object.get(), node.member, node.line);
        walk_.facts.members.add(&node, MemberKind::Property);
    } else if (kind == VarType::Time) {
        if (language::findMember(language::BuiltinForm::TimePart, member) == nullptr) {
            walk_.faults.raise("பொழி-304", node, "நேரப் பொருளில் '" + member + "' என்ற பகுதி இல்லை.");
        }
        walk_.facts.members.add(&node, MemberKind::TimePart);
    } else {
        walk_.faults.raise("பொழி-304", node, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
    analyse(node.object.get());
}

void ExpressionAnalysis::checkPrivacy(const Expression* object, const Token& member, std::int32_t line) const {
    const auto* variable = nodeCast<VariableAccess>(object);
    if (variable != nullptr && !isSelfName(variable->name) && walk_.structures.isPrivateField(member.value)) {
        walk_.faults.raise("பொழி-321", line, "'" + member.value + "'");
    }
}

void ExpressionAnalysis::visit(const IndexExpression& node) {
    analyse(node.object.get());
    analyse(node.index.get());
}

void ExpressionAnalysis::visit(const TernaryExpression& node) {
    analyse(node.condition.get());
    analyse(node.thenBranch.get());
    analyse(node.elseBranch.get());
}

void ExpressionAnalysis::visit(const LambdaExpression& node) {
    const std::size_t outer = walk_.scope.depth();
    for (const Token& parameter : node.parameters) {
        walk_.scope.addNative(parameter.value);
    }
    analyse(node.body.get());
    walk_.scope.leave(outer);
}

void ExpressionAnalysis::visit(const CallExpression& node) {
    calls_.analyse(node);
}

void ExpressionAnalysis::visit(const BinaryExpression& node) {
    const VarType left = walk_.kinds.of(node.left.get());
    const VarType right = walk_.kinds.of(node.right.get());
    checkOperandKinds(node, left, right);
    const std::string& word = node.op.value;
    const auto either = [&](VarType kind) { return left == kind || right == kind; };
    walk_.facts.arithmetic.add(&node, {either(VarType::Boolean)  ? VarType::Boolean
                                       : either(VarType::Double) ? VarType::Double
                                                                 : VarType::Integer});
    analyse(node.left.get());
    if (!isOfKind(word, language::OperatorKind::Join)) {
        checkOperator(word);
    }
    analyse(node.right.get());
}

/// What can be refused at sight: arithmetic on containers, division by a literal zero, text mixed with numbers.
void ExpressionAnalysis::checkOperandKinds(const BinaryExpression& node, VarType left, VarType right) const {
    const std::string& word = node.op.value;
    if (!isOfKind(word, language::OperatorKind::Arithmetic)) {
        return;
    }
    if (isContainer(left) || isContainer(right)) {
        walk_.faults.raise("பொழி-304", node);
    }
    if (word == "வகு" && isZeroLiteral(node.right.get())) {
        walk_.faults.raise("பொழி-301", node);
    }
    if ((left == VarType::Text && isNumber(right)) || (isNumber(left) && right == VarType::Text)) {
        walk_.faults.raise("பொழி-303", node);
    }
}

void ExpressionAnalysis::checkOperator(const std::string& word) const {
    const language::Operator* found = language::findOperator(word);
    if (found == nullptr || found->symbol.empty()) {
        walk_.faults.raise("பொழி-304", 0, "Operator: " + word);
    }
}

void ExpressionAnalysis::visit(const LogicalExpression& node) {
    analyse(node.left.get());
    checkOperator(node.op.value);
    analyse(node.right.get());
}

void ExpressionAnalysis::visit(const UnaryExpression& node) {
    const bool isSign = node.op.type == TokenType::UNARY_MINUS || node.op.type == TokenType::UNARY_PLUS;
    if (!isSign) {
        checkOperator(node.op.value);
    }
    analyse(node.right.get());
}

void ExpressionAnalysis::visit(const RTDBInsertExpression& node) {
    analyse(node.path.get());
    if (const auto* data = nodeCast<MapLiteral>(node.data.get())) {
        analyseEntries(*data);
    }
}

void ExpressionAnalysis::visit(const RTDBUpdateExpression& node) {
    analyse(node.path.get());
    analyseEntries(*node.data);
}

void ExpressionAnalysis::visit(const RTDBDeleteExpression& node) {
    analyse(node.path.get());
}

void ExpressionAnalysis::visit(const WidgetExpression& node) {
    walk_.widgets.visit(node);
}

} // namespace pozhil

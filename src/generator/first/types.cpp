#include "generator/first/generator.h"
#include "generator/first/names.h"
#include "language/builtins.h"
#include "language/operators.h"

#include <string_view>

namespace pozhil {
namespace {

using language::BuiltinForm;
using language::OperatorKind;
using language::ResultRule;

bool yieldsTruth(std::string_view word) {
    const language::Operator* found = language::findOperator(word);
    return found != nullptr && (found->kind == OperatorKind::Comparison || found->kind == OperatorKind::Logical);
}

template <class Node> bool isA(const Expression* expression) {
    return nodeCast<Node>(expression) != nullptr;
}

} // namespace

/// The best guess at a value's type before the program runs; Any is the usual answer. Operators ask for their operands'
/// types again and again on the way down, so answers are remembered until a name changes its type.
VarType Generator::inferExpressionType(const Expression* expression) {
    if (isA<NumberLiteral>(expression)) {
        return VarType::Integer;
    }
    if (isA<DoubleLiteral>(expression)) {
        return VarType::Double;
    }
    if (isA<StringLiteral>(expression)) {
        return VarType::Text;
    }
    if (isA<BooleanLiteral>(expression)) {
        return VarType::Boolean;
    }
    if (isA<ListLiteral>(expression)) {
        return VarType::List;
    }
    if (isA<MapLiteral>(expression)) {
        return VarType::Map;
    }
    if (isA<LambdaExpression>(expression)) {
        return VarType::Object;
    }
    if (const auto* call = nodeCast<CallExpression>(expression)) {
        return inferCallType(*call);
    }
    if (const auto* name = nodeCast<VariableAccess>(expression)) {
        return inferNameType(*name);
    }
    if (const auto* get = nodeCast<GetExpression>(expression)) {
        return inferMemberType(*get);
    }
    if (const auto* binary = nodeCast<BinaryExpression>(expression)) {
        return inferBinaryType(*binary);
    }
    if (const auto* ternary = nodeCast<TernaryExpression>(expression)) {
        return inferExpressionType(ternary->thenBranch.get());
    }
    return VarType::Any;
}

VarType Generator::inferCallType(const CallExpression& call) {
    if (const auto* get = nodeCast<GetExpression>(call.callee.get())) {
        const std::string& member = get->member.value;
        const auto* object = nodeCast<VariableAccess>(get->object.get());
        const language::Builtin* method = nullptr;
        if (object != nullptr && object->name == "நேரம்") {
            if (member == "உருவாக்கு") {
                return VarType::Time;
            }
            method = language::findMember(BuiltinForm::Clock, member);
        }
        method = method == nullptr ? language::findMember(BuiltinForm::TimeMethod, member) : method;
        return method == nullptr ? VarType::Any : method->result;
    }
    const auto* callee = nodeCast<VariableAccess>(call.callee.get());
    if (callee == nullptr) {
        return VarType::Any;
    }
    const language::Builtin* builtin = language::findBuiltin(callee->name);
    const ResultRule rule = builtin == nullptr ? ResultRule::Unknown : builtin->resultRule;
    if (rule == ResultRule::OfArgument) {
        return call.arguments.empty() ? VarType::Any : inferExpressionType(call.arguments.front().get());
    }
    if (rule == ResultRule::Firm) {
        return builtin->result;
    }
    if (knownStructs_.count(callee->name) != 0) {
        return VarType::Object;
    }
    return rule == ResultRule::UnlessStruct ? builtin->result : VarType::Any;
}

VarType Generator::inferNameType(const VariableAccess& name) const {
    if (isSelfName(name.name)) {
        if (currentStruct_.empty()) {
            பிழை("பொழி-325", name.line, "");
        }
        return VarType::Object;
    }
    if (localVars_.count(name.name) != 0) {
        return VarType::Any;
    }
    const auto known = varTypes_.find(name.name);
    return known == varTypes_.end() ? VarType::Any : known->second;
}

VarType Generator::inferMemberType(const GetExpression& get) const {
    const auto* object = nodeCast<VariableAccess>(get.object.get());
    if (object == nullptr) {
        return VarType::Any;
    }
    const auto known = varTypes_.find(object->name);
    if (known == varTypes_.end() || known->second != VarType::Time) {
        return VarType::Any;
    }
    const language::Builtin* part = language::findMember(BuiltinForm::TimePart, get.member.value);
    return part == nullptr ? VarType::Any : part->result;
}

/// The order of the rules matters to programs: a comparison of two whole numbers counts as a whole number.
VarType Generator::inferBinaryType(const BinaryExpression& binary) {
    const auto remembered = inferredTypes_.find(&binary);
    if (remembered != inferredTypes_.end() && remembered->second.epoch == typeEpoch_) {
        return remembered->second.type;
    }
    const VarType left = inferExpressionType(binary.left.get());
    const VarType right = inferExpressionType(binary.right.get());
    const auto either = [&](VarType type) { return left == type || right == type; };
    const std::string& word = binary.op.value;
    VarType type = VarType::Any;
    if ((word == "கூட்டு" || word == "இணை") && either(VarType::Text)) {
        type = VarType::Text;
    } else if (either(VarType::Double)) {
        type = VarType::Double;
    } else if (left == VarType::Integer && right == VarType::Integer) {
        type = VarType::Integer;
    } else if (yieldsTruth(word)) {
        type = VarType::Boolean;
    }
    inferredTypes_[&binary] = {typeEpoch_, type};
    return type;
}

void Generator::setVarType(const std::string& name, VarType type) {
    varTypes_[name] = type;
    ++typeEpoch_;
}

void Generator::setLocal(const std::string& name) {
    if (localVars_.insert(name).second) {
        localsLog_.push_back(name);
    }
    ++typeEpoch_;
}

/// Only the first \p count names that entered are native variables from here on. A scope is left so in time that goes
/// with its own names, however many stand outside.
void Generator::dropLocalsBehind(std::size_t count) {
    for (; localsLog_.size() > count; localsLog_.pop_back()) {
        localVars_.erase(localsLog_.back());
    }
    ++typeEpoch_;
}

} // namespace pozhil

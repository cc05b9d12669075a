#include "analysis/kinds.h"

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

bool isContainer(VarType kind) {
    return kind == VarType::List || kind == VarType::Map || kind == VarType::Object;
}

bool isNumber(VarType kind) {
    return kind == VarType::Integer || kind == VarType::Double;
}

/// Operators ask for their operands' kinds again and again on the way down, so answers are remembered until a name changes its kind.
VarType Kinds::of(const Expression* expression) {
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
        return ofCall(*call);
    }
    if (const auto* name = nodeCast<VariableAccess>(expression)) {
        return ofName(*name);
    }
    if (const auto* get = nodeCast<GetExpression>(expression)) {
        return ofMember(*get);
    }
    if (const auto* binary = nodeCast<BinaryExpression>(expression)) {
        return ofBinary(*binary);
    }
    if (const auto* ternary = nodeCast<TernaryExpression>(expression)) {
        return of(ternary->thenBranch.get());
    }
    return VarType::Any;
}

VarType Kinds::ofCall(const CallExpression& call) {
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
        return call.arguments.empty() ? VarType::Any : of(call.arguments.front().get());
    }
    if (rule == ResultRule::Firm) {
        return builtin->result;
    }
    if (structures_.isDefined(callee->name)) {
        return VarType::Object;
    }
    return rule == ResultRule::UnlessStruct ? builtin->result : VarType::Any;
}

VarType Kinds::ofName(const VariableAccess& name) const {
    if (isSelfName(name.name)) {
        if (!isInStructure_) {
            faults_.raise("பொழி-325", name.line);
        }
        return VarType::Object;
    }
    return scope_.isNative(name.name) ? VarType::Any : scope_.kindOf(name.name);
}

VarType Kinds::ofMember(const GetExpression& get) const {
    const auto* object = nodeCast<VariableAccess>(get.object.get());
    const bool isTime = object != nullptr && scope_.kindOf(object->name) == VarType::Time;
    return isTime && language::findMember(BuiltinForm::TimePart, get.member.value) != nullptr ? VarType::Integer
                                                                                              : VarType::Any;
}

/// The order of the rules matters to programs: a comparison of two whole numbers counts as a whole number.
VarType Kinds::ofBinary(const BinaryExpression& binary) {
    const auto remembered = remembered_.find(&binary);
    if (remembered != remembered_.end() && remembered->second.epoch == scope_.epoch()) {
        return remembered->second.kind;
    }
    const VarType left = of(binary.left.get());
    const VarType right = of(binary.right.get());
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
    remembered_[&binary] = {scope_.epoch(), type};
    return type;
}

} // namespace pozhil

#include "generator/first/generator.h"

namespace pozhil {

/// Only a declaration that an assignment could not take over arrives here; fields of structures go their own way.
void Generator::visitVarDeclaration(const VarDeclaration* node) {
    const std::string& name = node->name;
    const bool isInFunction = !currentFunction_.empty();
    if (name == "மாறிலி") {
        constantNames_.insert(name);
    }
    if (isInFunction && localVars_.count(name) == 0 && varTypes_.count(name) == 0) {
        setLocal(name);
        out_ << "std::any ";
    }
    const VarType type = node->type == VarType::Auto ? inferExpressionType(node->initializer.get()) : node->type;
    if (!isInFunction || type == VarType::Map || type == VarType::List) {
        setVarType(name, type);
    }
    const bool isNative = isInFunction && varTypes_.count(name) == 0;
    const std::string target = isNative ? name : "global_vars[\"" + name + "\"]";
    out_ << target;
    if (type == VarType::Object) {
        out_ << " = std::any();\n";
        const auto* call = nodeCast<CallExpression>(node->initializer.get());
        const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
        if (callee != nullptr && knownStructs_.count(callee->name) != 0) {
            emitObjectDeclaration(node, *call, callee->name);
            return;
        }
    }
    out_ << " = ";
    const VarType inferred = inferExpressionType(node->initializer.get());
    const bool isBare = type == VarType::Time || inferred == VarType::Object || inferred == VarType::List ||
                        inferred == VarType::Map || inferred == VarType::Time;
    if (isBare) {
        visitExpression(node->initializer.get());
    } else {
        emitAny(node->initializer.get());
    }
}

/// a[i] = v  ->  fn_index_ref(a, i) = v;  a.b = v  ->  a write into the object's properties
void Generator::visitSetStatement(const SetStatement* node) {
    if (const auto* element = nodeCast<IndexExpression>(node->target.get())) {
        out_ << "fn_index_ref(";
        visitExpression(element->object.get());
        out_ << ", ";
        emitAny(element->index.get());
        out_ << ") = ";
        emitAny(node->value.get());
        return;
    }
    const auto* get = nodeCast<GetExpression>(node->target.get());
    if (get == nullptr) {
        return;
    }
    const VarType type = inferExpressionType(get->object.get());
    if (type == VarType::Time) {
        பிழை("பொழி-322", get->line, "");
    }
    if (type != VarType::Object) {
        பிழை("பொழி-304", get->line, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
    checkPrivacy(get->object.get(), get->member, get->line);
    out_ << "std::any_cast<std::shared_ptr<_StructBase>>(";
    visitExpression(get->object.get());
    out_ << ")->properties[\"" << get->member.value << "\"] = ";
    emitAny(node->value.get());
}

void Generator::visitCompoundAssignmentStatement(const CompoundAssignmentStatement* node) {
    visitExpression(node->target.get());
    out_ << " = std::any(std::any_cast<long long>(";
    visitExpression(node->target.get());
    out_ << ") " << mapOperator(node->op.value) << " std::any_cast<long long>(";
    emitCastOperand(node->value.get());
    out_ << "))";
}

void Generator::visitIncrementStatement(const IncrementStatement* node) {
    visitExpression(node->target.get());
    out_ << " = std::any(std::any_cast<long long>(";
    visitExpression(node->target.get());
    out_ << ") " << mapOperator(node->op.value) << ")";
}

} // namespace pozhil

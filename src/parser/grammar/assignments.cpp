#include "parser/grammar/assignments.h"

#include "parser/file_parse.h"

#include <utility>

namespace pozhil {

StatementPtr AssignmentGrammar::parseVarDeclaration(ExpressionPtr target, bool inStruct) {
    const auto* variable = nodeCast<VariableAccess>(target.get());
    if (variable == nullptr) {
        if (inStruct) {
            cursor_.பிழை("பொழி-210", cursor_.peek().line);
        }
        return std::make_unique<SetStatement>(std::move(target), parseExpression());
    }
    ExpressionPtr value = parseExpression();
    const VarType type = declaredType(*value);
    return std::make_unique<VarDeclaration>(variable->name, std::move(value), type);
}

/// What an initialiser tells of its variable's type at sight.
VarType AssignmentGrammar::declaredType(const Expression& initializer) const {
    if (nodeCast<ListLiteral>(&initializer) != nullptr) {
        return VarType::List;
    }
    if (nodeCast<MapLiteral>(&initializer) != nullptr) {
        return VarType::Map;
    }
    const auto* call = nodeCast<CallExpression>(&initializer);
    if (call == nullptr) {
        return VarType::Auto;
    }
    if (const auto* name = nodeCast<VariableAccess>(call->callee.get())) {
        if (name->name == "இப்போதுநேரம்") {
            return VarType::Time;
        }
        return declarations_.structs.count(name->name) != 0 ? VarType::Object : VarType::Auto;
    }
    if (const auto* get = nodeCast<GetExpression>(call->callee.get())) {
        const auto* object = nodeCast<VariableAccess>(get->object.get());
        const bool makesTime = object != nullptr && object->name == "நேரம்" && get->member.value == "உருவாக்கு";
        return makesTime ? VarType::Time : VarType::Auto;
    }
    return VarType::Auto;
}

StatementPtr AssignmentGrammar::parseCompoundAssignmentStatement(ExpressionPtr target) {
    Token op = cursor_.advance();
    return std::make_unique<CompoundAssignmentStatement>(std::move(target), std::move(op), parseExpression());
}

StatementPtr AssignmentGrammar::parseIncrementStatement(ExpressionPtr target) {
    return std::make_unique<IncrementStatement>(std::move(target), cursor_.advance());
}

} // namespace pozhil

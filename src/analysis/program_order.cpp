#include "analysis/program_order.h"

namespace pozhil {
namespace {

void addCarriedOut(std::vector<const Statement*>& carried, const StatementList& statements) {
    for (const StatementPtr& statement : statements) {
        if (statement != nullptr && !isDefinition(statement.get())) {
            carried.push_back(statement.get());
        }
    }
}

void addAll(std::vector<const Statement*>& all, const StatementList& statements) {
    for (const StatementPtr& statement : statements) {
        all.push_back(statement.get());
    }
}

} // namespace

const CallExpression* asRange(const ForStatement& loop) {
    const auto* call = nodeCast<CallExpression>(loop.iterable.get());
    const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == "வரம்பு" ? call : nullptr;
}

bool isDefinition(const Statement* statement) {
    return nodeCast<StructDefinitionStatement>(statement) != nullptr ||
           nodeCast<FunctionDefinitionStatement>(statement) != nullptr ||
           nodeCast<AbstractStructDefinitionStatement>(statement) != nullptr;
}

std::vector<const Statement*> carriedOut(const LogicBlockNode& logic) {
    std::vector<const Statement*> carried;
    if (logic.block != nullptr) {
        addCarriedOut(carried, logic.block->statements);
    }
    return carried;
}

std::vector<const Statement*> carriedOut(const Program& program) {
    std::vector<const Statement*> carried;
    addCarriedOut(carried, program.statements);
    return carried;
}

std::vector<const WebAppNode*> applications(const Program& program) {
    std::vector<const WebAppNode*> found;
    for (const StatementPtr& statement : program.statements) {
        if (const auto* application = nodeCast<WebAppNode>(statement.get())) {
            found.push_back(application);
        }
    }
    return found;
}

std::vector<const Statement*> outermostStatements(const Program& program) {
    std::vector<const Statement*> statements;
    addAll(statements, program.statements);
    for (const WebAppNode* application : applications(program)) {
        const LogicBlockNode* logic = logicOf(*application);
        if (logic != nullptr && logic->block != nullptr) {
            addAll(statements, logic->block->statements);
        }
    }
    return statements;
}

const LogicBlockNode* logicOf(const WebAppNode& application) {
    return nodeCast<LogicBlockNode>(application.definition.get());
}

} // namespace pozhil

#include "generator/second/local_facts.h"

#include "generator/second/evaluation_order.h"
#include "generator/second/tree_walk.h"
#include "generator/second/types.h"

#include <algorithm>

namespace pozhil::resolved::writer {

/// Notes where the variables of a function are used.
class UseWalk : public TreeWalk {
public:
    explicit UseWalk(LocalFacts& facts) : facts_(facts) {}

    bool isMentioned(const Variable& variable) const { return mentioned_.count(&variable) != 0; }

protected:
    void onVariableRead(const VariableRead& read) override { mention(read.variable); }
    void onExpression(const Expression& expression) override {
        if (const auto* value = dynamic_cast<const FunctionValue*>(&expression)) {
            mentionCaptures(*value->function);
        }
    }
    void onWrite(const TargetPlace& target) override { mention(rootOf(target)); }
    void onStatement(const Statement& statement) override {
        if (const auto* counting = dynamic_cast<const CountingLoop*>(&statement)) {
            enter(*counting);
        } else if (const auto* each = dynamic_cast<const EachLoop*>(&statement)) {
            mention(each->variable);
        } else if (const auto* attempt = dynamic_cast<const Try*>(&statement)) {
            mention(attempt->variable);
        } else if (const auto* definition = dynamic_cast<const FunctionDefinition*>(&statement)) {
            facts_.definitions_.push_back(definition);
            mention(definition->variable);
            mentionCaptures(*definition->function);
        }
    }
    void afterStatement(const Statement& statement) override {
        if (const auto* counting = dynamic_cast<const CountingLoop*>(&statement)) {
            counting_.erase(counting_.find(counting->variable));
        }
    }

private:
    void enter(const CountingLoop& loop) {
        const bool isCountedAlready = counting_.count(loop.variable) != 0;
        if (loop.bodyAssigns || isCountedAlready || typeOf(*loop.variable) != Type::Whole) {
            facts_.usedElsewhere_.insert(loop.variable);
        }
        mentioned_.insert(loop.variable);
        facts_.countedBy_.insert(loop.variable);
        counting_.insert(loop.variable);
    }
    void mention(const Variable* variable) {
        mentioned_.insert(variable);
        if (counting_.count(variable) == 0) {
            facts_.usedElsewhere_.insert(variable);
        }
    }
    void mentionCaptures(const Function& function) {
        for (const Variable* captured : function.captures) {
            mention(captured);
        }
    }

    LocalFacts& facts_;
    std::unordered_set<const Variable*> mentioned_;
    /// Of the loops that stand around.
    std::unordered_multiset<const Variable*> counting_;
};

LocalFacts::LocalFacts(const Function* function, const Block& body) : function_(function) {
    UseWalk uses(*this);
    for (const StatementPtr& statement : body.statements) {
        const auto* assignment = dynamic_cast<const Assignment*>(statement.get());
        const bool isPlain =
            assignment != nullptr && !assignment->isCompound && assignment->target->form == TargetPlace::Form::Variable;
        const Variable* variable = isPlain ? assignment->target->variable : nullptr;
        const bool isOwn = variable != nullptr && isDeclaredInside(*variable) && !uses.isMentioned(*variable);
        if (isPlain) {
            uses.walk(assignment->value.get());
        }
        if (isOwn && !uses.isMentioned(*variable)) {
            declaring_.insert(assignment);
            declaredByAssignment_.insert(variable);
        }
        // What stands in the value is noted once more, which changes nothing.
        uses.walk(statement.get());
    }
}

bool LocalFacts::isDeclaredInside(const Variable& variable) const {
    return function_ != nullptr && variable.owner == function_ && !variable.isShared &&
           std::none_of(function_->parameters.begin(), function_->parameters.end(),
                        [&](const Parameter& parameter) { return parameter.variable == &variable; });
}

bool LocalFacts::livesInLoops(const Variable& variable) const {
    return isDeclaredInside(variable) && countedBy_.count(&variable) != 0 && usedElsewhere_.count(&variable) == 0;
}

std::vector<const Variable*> LocalFacts::declaredFirst() const {
    std::vector<const Variable*> variables;
    if (function_ != nullptr) {
        std::copy_if(function_->variables.begin(), function_->variables.end(), std::back_inserter(variables),
                     [&](const Variable* variable) {
                         return declaredByAssignment_.count(variable) == 0 && !livesInLoops(*variable);
                     });
    }
    return variables;
}

} // namespace pozhil::resolved::writer

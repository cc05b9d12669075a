#include "analysis/second/resolution.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/page_walk.h"
#include "language/second/builtins.h"
#include "parser/tree/shapes.h"

#include <string>

namespace pozhil::second {
namespace {

using language::second::BuiltinForm;

constexpr std::string_view RANGE = "வரம்பு";

/// The call of the built-in range that a loop goes over, null if it goes over anything else.
const CallExpression* rangeOf(const Resolution& resolution, const Expression* iterable) {
    const auto* const call = nodeCast<CallExpression>(withoutBrackets(iterable));
    const auto* const name = call == nullptr ? nullptr : nodeCast<VariableAccess>(withoutBrackets(call->callee.get()));
    const bool isRange = name != nullptr && name->name == RANGE && resolution.meaningOf(RANGE, Use::Call).isUnknown();
    const auto* const row = language::second::findBuiltin(BuiltinForm::Call, RANGE);
    const std::size_t count = isRange ? call->arguments.size() : 0;
    const bool isRightCount = isRange && count >= static_cast<std::size_t>(row->fewestArguments) &&
                              count <= static_cast<std::size_t>(row->mostArguments);
    return isRightCount ? call : nullptr;
}

/// Makes the resolved node of each class of the tree; definitions leave nothing where they stand.
class StatementMaker {
public:
    explicit StatementMaker(Resolution& resolution) : resolution_(resolution) {}

    resolved::StatementPtr take() { return std::move(result_); }

    void visit(const ExpressionStatement& node) {
        const auto* const assignment = nodeCast<PlaceAssignment>(node.expression.get());
        if (assignment != nullptr) {
            result_ = assign(*assignment);
            return;
        }
        auto evaluation = make<resolved::Evaluation>(node);
        evaluation->value = resolveValue(resolution_, node.expression.get());
        result_ = std::move(evaluation);
    }

    void visit(const PrintStatement& node) {
        auto print = make<resolved::Print>(node);
        print->values = resolveValues(resolution_, node.arguments);
        result_ = std::move(print);
    }

    void visit(const IfStatement& node) {
        auto choice = make<resolved::If>(node);
        choice->condition = resolveValue(resolution_, node.condition.get());
        choice->thenBranch = resolveBlock(resolution_, node.thenBranch.get());
        choice->elseBranch = resolveStatement(resolution_, node.elseBranch.get());
        result_ = std::move(choice);
    }

    void visit(const ReturnStatement& node) {
        auto result = make<resolved::Return>(node);
        if (resolution_.scope.function == nullptr) {
            resolution_.model.faults.add(fault::RETURN_OUTSIDE_FUNCTION, result->place);
        }
        if (node.value != nullptr) {
            result->value = resolveValue(resolution_, node.value.get());
        }
        result_ = std::move(result);
    }

    void visit(const ForStatement& node) {
        const CallExpression* const range = rangeOf(resolution_, node.iterable.get());
        if (range != nullptr) {
            countOver(node, *range);
        } else {
            goOver(node);
        }
    }

    void visit(const WhileStatement& node) {
        auto loop = make<resolved::While>(node);
        loop->condition = resolveValue(resolution_, node.condition.get());
        loop->body = loopBody(nullptr, node.body.get()).first;
        result_ = std::move(loop);
    }

    void visit(const BlockStatement& node) { result_ = resolveBlock(resolution_, &node); }

    void visit(const BreakStatement& node) {
        auto statement = make<resolved::Break>(node);
        if (resolution_.loops.empty()) {
            resolution_.model.faults.add(fault::BREAK_OUTSIDE_LOOP, statement->place);
        }
        result_ = std::move(statement);
    }

    void visit(const ContinueStatement& node) {
        auto statement = make<resolved::Continue>(node);
        if (resolution_.loops.empty()) {
            resolution_.model.faults.add(fault::CONTINUE_OUTSIDE_LOOP, statement->place);
        }
        result_ = std::move(statement);
    }

    void visit(const PassStatement& node) { result_ = make<resolved::Pass>(node); }

    void visit(const TryCatchStatement& node) {
        auto attempt = make<resolved::Try>(node);
        attempt->body = resolveBlock(resolution_, node.tryBlock.get());
        attempt->variable = resolution_.meaningOf(node.errorName, Use::Write).variable;
        markAssigned(attempt->variable);
        attempt->handler = resolveBlock(resolution_, node.catchBlock.get());
        result_ = std::move(attempt);
    }

    void visit(const SwitchStatement& node) {
        auto choice = make<resolved::Switch>(node);
        choice->subject = resolveValue(resolution_, node.subject.get());
        for (const CaseBlock& one : node.cases) {
            auto value = resolveValue(resolution_, one.value.get());
            choice->cases.push_back({std::move(value), resolveBlock(resolution_, one.body.get())});
        }
        if (node.defaultBlock != nullptr) {
            choice->otherwise = resolveBlock(resolution_, node.defaultBlock.get());
        }
        result_ = std::move(choice);
    }

    void visit(const WaitStatement& node) {
        auto wait = make<resolved::Wait>(node);
        wait->seconds = resolveValue(resolution_, node.duration.get());
        result_ = std::move(wait);
    }

    void visit(const WebAppNode& node) { result_ = resolveBlock(resolution_, logicOf(node)); }

    void visit(const RTDBReadStatement&) {} // told already

    void visit(const FunctionDefinitionStatement&) {}
    void visit(const StructDefinitionStatement&) {}
    void visit(const AbstractStructDefinitionStatement&) {}
    void visit(const FileVariablesStatement&) {}
    void visit(const ImportStatement&) {}
    void visit(const EnumerationStatement&) {}

private:
    template <class Node> std::unique_ptr<Node> make(const Statement& node) {
        return makeNode<Node>(resolution_.placeOf(&node));
    }

    resolved::StatementPtr assign(const PlaceAssignment& assignment) {
        auto result = makeNode<resolved::Assignment>(resolution_.placeOf(&assignment));
        result->target = resolveTarget(resolution_, assignment.target.get());
        result->isCompound = isCompound(assignment);
        if (result->isCompound) {
            result->op = compoundOperator(assignment);
        }
        result->value = assignedValue(resolution_, assignment);
        return result;
    }

    void countOver(const ForStatement& node, const CallExpression& range) {
        auto loop = make<resolved::CountingLoop>(node);
        auto values = resolveValues(resolution_, range.arguments);
        const bool hasFirst = values.size() > 1;
        loop->first = hasFirst ? std::move(values[0]) : nullptr;
        loop->last = std::move(values[hasFirst ? 1 : 0]);
        loop->step = values.size() > 2 ? std::move(values[2]) : nullptr;
        loop->variable = loopVariable(node);
        auto [body, isAssigned] = loopBody(loop->variable, node.body.get());
        loop->body = std::move(body);
        loop->bodyAssigns = isAssigned || isAssignedElsewhere(loop->variable);
        result_ = std::move(loop);
    }

    void goOver(const ForStatement& node) {
        auto loop = make<resolved::EachLoop>(node);
        loop->iterable = resolveValue(resolution_, node.iterable.get());
        loop->variable = loopVariable(node);
        loop->body = loopBody(loop->variable, node.body.get()).first;
        result_ = std::move(loop);
    }

    resolved::Variable* loopVariable(const ForStatement& node) {
        resolved::Variable* const variable = resolution_.meaningOf(node.variable.value, Use::Write).variable;
        markAssigned(variable);
        return variable;
    }

    /// \return the body, and whether it gives the loop's variable other values
    std::pair<resolved::BlockPtr, bool> loopBody(const resolved::Variable* variable, const BlockStatement* body) {
        resolution_.loops.push_back({variable});
        auto block = resolveBlock(resolution_, body);
        const bool isAssigned = resolution_.loops.back().isVariableAssigned;
        resolution_.loops.pop_back();
        return {std::move(block), isAssigned};
    }

    void markAssigned(const resolved::Variable* variable) {
        for (OpenLoop& loop : resolution_.loops) {
            loop.isVariableAssigned |= loop.variable != nullptr && loop.variable == variable;
        }
    }

    /// A function may assign the variable while the loop runs.
    bool isAssignedElsewhere(const resolved::Variable* variable) const {
        const auto facts = resolution_.model.variables.find(variable);
        return variable != nullptr &&
               (variable->isShared || (facts != resolution_.model.variables.end() && facts->second.isAssignedByPublic));
    }

    Resolution& resolution_;
    resolved::StatementPtr result_;
};

} // namespace

resolved::StatementPtr resolveStatement(Resolution& resolution, const Statement* statement) {
    StatementMaker maker(resolution);
    visitNode(maker, statement, SecondStatementClasses());
    return maker.take();
}

resolved::BlockPtr resolveBlock(Resolution& resolution, const BlockStatement* block) {
    if (block == nullptr) {
        return std::make_unique<resolved::Block>();
    }
    auto result = resolveStatements(resolution, block->statements);
    result->place = resolution.placeOf(block);
    return result;
}

resolved::BlockPtr resolveStatements(Resolution& resolution, const StatementList& statements) {
    auto block = std::make_unique<resolved::Block>();
    for (const StatementPtr& one : statements) {
        if (auto statement = resolveStatement(resolution, one.get())) {
            block->statements.push_back(std::move(statement));
        }
    }
    return block;
}

} // namespace pozhil::second

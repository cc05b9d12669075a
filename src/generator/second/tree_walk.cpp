#include "generator/second/tree_walk.h"

#include "analysis/second/resolved/visit.h"

namespace pozhil::resolved::writer {

/// Hands the parts of one node to the walk.
struct PartWalk {
    TreeWalk& walk;

    void visit(const VariableRead& read) { walk.onVariableRead(read); }
    void visit(const ListLiteral& list) {
        for (const ExpressionPtr& element : list.elements) {
            walk.walk(element.get());
        }
    }
    void visit(const MapLiteral& map) {
        for (const auto& [key, value] : map.entries) {
            walk.walk(key.get());
            walk.walk(value.get());
        }
    }
    void visit(const Unary& unary) { walk.walk(unary.operand.get()); }
    void visit(const Binary& binary) { both(binary); }
    void visit(const Logical& logical) { both(logical); }
    void visit(const Conditional& conditional) {
        walk.walk(conditional.condition.get());
        walk.walk(conditional.thenValue.get());
        walk.walk(conditional.elseValue.get());
    }
    void visit(const ElementRead& read) {
        walk.walk(read.container.get());
        walk.walk(read.index.get());
    }
    void visit(const MemberRead& read) { walk.walk(read.object.get()); }
    void visit(const AssignmentValue& assignment) { assign(assignment); }
    void visit(const FunctionCall& call) { arguments(call.arguments); }
    void visit(const ValueCall& call) {
        walk.walk(call.callee.get());
        arguments(call.arguments);
    }
    void visit(const MethodCall& call) {
        argument(call.object);
        arguments(call.arguments);
    }
    void visit(const Construction& construction) { arguments(construction.arguments); }
    void visit(const BuiltinCall& call) { arguments(call.arguments); }

    void visit(const Evaluation& evaluation) { walk.walk(evaluation.value.get()); }
    void visit(const Assignment& assignment) { assign(assignment); }
    void visit(const Print& print) {
        for (const ExpressionPtr& value : print.values) {
            walk.walk(value.get());
        }
    }
    void visit(const Wait& wait) { walk.walk(wait.seconds.get()); }
    void visit(const Return& statement) { walk.walk(statement.value.get()); }
    void visit(const Block& block) {
        for (const StatementPtr& statement : block.statements) {
            walk.walk(statement.get());
        }
    }
    void visit(const If& statement) {
        walk.walk(statement.condition.get());
        walk.walk(statement.thenBranch.get());
        walk.walk(statement.elseBranch.get());
    }
    void visit(const While& loop) {
        walk.walk(loop.condition.get());
        walk.walk(loop.body.get());
    }
    void visit(const CountingLoop& loop) {
        walk.walk(loop.first.get());
        walk.walk(loop.last.get());
        walk.walk(loop.step.get());
        walk.walk(loop.body.get());
    }
    void visit(const EachLoop& loop) {
        walk.walk(loop.iterable.get());
        walk.walk(loop.body.get());
    }
    void visit(const Switch& statement) {
        walk.walk(statement.subject.get());
        for (const Case& one : statement.cases) {
            walk.walk(one.value.get());
            walk.walk(one.body.get());
        }
        walk.walk(statement.otherwise.get());
    }
    void visit(const Try& statement) {
        walk.walk(statement.body.get());
        walk.walk(statement.handler.get());
    }

    /// Literals, functions as values, and statements without parts.
    template <class Leaf> void visit(const Leaf&) {}

private:
    template <class Node> void both(const Node& node) {
        walk.walk(node.left.get());
        walk.walk(node.right.get());
    }
    template <class Node> void assign(const Node& node) {
        walk.walk(*node.target);
        walk.walk(node.value.get());
        walk.onWrite(*node.target);
    }
    void argument(const Argument& argument) {
        walk.walk(argument.value.get());
        if (argument.target != nullptr) {
            walk.walk(*argument.target);
            walk.onWrite(*argument.target);
        }
    }
    void arguments(const Arguments& all) {
        for (const Argument& one : all) {
            argument(one);
        }
    }
};

void TreeWalk::walk(const Expression* expression) {
    if (expression != nullptr) {
        onExpression(*expression);
        PartWalk parts{*this};
        visitExpression(parts, expression);
    }
}

void TreeWalk::walk(const Statement* statement) {
    if (statement != nullptr) {
        onStatement(*statement);
        PartWalk parts{*this};
        visitStatement(parts, statement);
        afterStatement(*statement);
    }
}

void TreeWalk::walk(const TargetPlace& target) {
    if (target.container != nullptr) {
        walk(*target.container);
    }
    walk(target.index.get());
    walk(target.object.get());
}

} // namespace pozhil::resolved::writer

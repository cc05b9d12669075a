#pragma once

#include "analysis/second/resolved/visit.h"

#include <memory>
#include <type_traits>

namespace pozhil::second {

/// Goes over all parts of a resolved function in the order in which they are evaluated. Who derives from it handles some
/// classes of nodes and leaves the others to it; functions inside are not entered, since they run when they are called.
///
/// \tparam Derived the class that derives from it, with `using Walk::visit`
template <class Derived> class Walk {
public:
    void walk(resolved::Expression* expression) { dispatch(expression, resolved::ExpressionClasses()); }
    void walk(resolved::ExpressionPtr& expression) { self().walk(expression.get()); }
    void walk(resolved::StatementPtr& statement) { dispatch(statement.get(), resolved::StatementClasses()); }
    void walk(resolved::BlockPtr& block) { walkBlock(block.get()); }
    void walk(resolved::TargetPtr& target) {
        if (target != nullptr) {
            self().visit(*target);
        }
    }
    void walk(resolved::ExpressionList& expressions) {
        for (auto& one : expressions) {
            self().walk(one);
        }
    }
    /// A place that an argument is has the same parts as its value.
    void walk(resolved::Argument& argument) { self().walk(argument.value); }
    void walk(resolved::Arguments& arguments) {
        for (auto& one : arguments) {
            self().walk(one);
        }
    }

    void visit(resolved::WholeLiteral&) {}
    void visit(resolved::DecimalLiteral&) {}
    void visit(resolved::TruthLiteral&) {}
    void visit(resolved::TextLiteral&) {}
    void visit(resolved::NothingLiteral&) {}
    void visit(resolved::VariableRead&) {}
    void visit(resolved::FunctionValue&) {}
    void visit(resolved::BuiltinValue&) {}
    void visit(resolved::ListLiteral& node) { self().walk(node.elements); }
    void visit(resolved::MapLiteral& node) {
        for (auto& [key, value] : node.entries) {
            self().walk(key);
            self().walk(value);
        }
    }
    void visit(resolved::Unary& node) { self().walk(node.operand); }
    void visit(resolved::Binary& node) {
        self().walk(node.left);
        self().walk(node.right);
    }
    void visit(resolved::Logical& node) {
        self().walk(node.left);
        self().walk(node.right);
    }
    void visit(resolved::Conditional& node) {
        self().walk(node.condition);
        self().walk(node.thenValue);
        self().walk(node.elseValue);
    }
    void visit(resolved::ElementRead& node) {
        self().walk(node.container);
        self().walk(node.index);
    }
    void visit(resolved::MemberRead& node) { self().walk(node.object); }
    void visit(resolved::TargetPlace& node) {
        self().walk(node.container);
        self().walk(node.object);
        self().walk(node.index);
    }
    void visit(resolved::AssignmentValue& node) {
        self().walk(node.target);
        self().walk(node.value);
    }
    void visit(resolved::FunctionCall& node) { self().walk(node.arguments); }
    void visit(resolved::ValueCall& node) {
        self().walk(node.callee);
        self().walk(node.arguments);
    }
    void visit(resolved::MethodCall& node) {
        self().walk(node.object);
        self().walk(node.arguments);
    }
    void visit(resolved::Construction& node) { self().walk(node.arguments); }
    void visit(resolved::BuiltinCall& node) { self().walk(node.arguments); }

    void visit(resolved::Block& node) {
        for (auto& one : node.statements) {
            self().walk(one);
        }
    }
    void visit(resolved::Evaluation& node) { self().walk(node.value); }
    void visit(resolved::Assignment& node) {
        self().walk(node.target);
        self().walk(node.value);
    }
    void visit(resolved::FunctionDefinition&) {}
    void visit(resolved::Print& node) { self().walk(node.values); }
    void visit(resolved::Wait& node) { self().walk(node.seconds); }
    void visit(resolved::Return& node) { self().walk(node.value); }
    void visit(resolved::Break&) {}
    void visit(resolved::Continue&) {}
    void visit(resolved::Pass&) {}
    void visit(resolved::If& node) {
        self().walk(node.condition);
        self().walk(node.thenBranch);
        self().walk(node.elseBranch);
    }
    void visit(resolved::While& node) {
        self().walk(node.condition);
        self().walk(node.body);
    }
    void visit(resolved::CountingLoop& node) {
        self().walk(node.first);
        self().walk(node.last);
        self().walk(node.step);
        self().walk(node.body);
    }
    void visit(resolved::EachLoop& node) {
        self().walk(node.iterable);
        self().walk(node.body);
    }
    void visit(resolved::Switch& node) {
        self().walk(node.subject);
        for (resolved::Case& one : node.cases) {
            self().walk(one.value);
            self().walk(one.body);
        }
        self().walk(node.otherwise);
    }
    void visit(resolved::Try& node) {
        self().walk(node.body);
        self().walk(node.handler);
    }

protected:
    Walk() = default;
    ~Walk() = default;

    Derived& self() { return static_cast<Derived&>(*this); }

private:
    void walkBlock(resolved::Block* block) {
        if (block != nullptr) {
            self().visit(*block);
        }
    }

    /// The nodes belong to a program that is being made, so they may change.
    template <class Root, class... Nodes> void dispatch(Root* node, NodeClasses<Nodes...>) {
        const auto visitAs = [&](const auto* one) {
            if (one != nullptr) {
                using Node = std::remove_const_t<std::remove_pointer_t<decltype(one)>>;
                self().visit(const_cast<Node&>(*one));
            }
            return one != nullptr;
        };
        (visitAs(nodeCast<Nodes>(node)) || ...);
    }
};

/// Walks over all files, functions and fields of a program.
template <class Walker> void walkProgram(Walker& walker, resolved::Program& program) {
    for (resolved::File& file : program.files) {
        walker.walk(file.body);
    }
    for (const auto& function : program.functions) {
        walker.walk(function->body);
    }
    for (const auto& structure : program.structures) {
        for (resolved::Field& field : structure->fields) {
            walker.walk(field.initializer);
        }
    }
}

} // namespace pozhil::second

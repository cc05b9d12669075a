#pragma once

#include "parser/tree/visit.h"

namespace pozhil {

/// Hands the expressions and statements directly below a node to \p Take, in the order of the text. Properties of a
/// widget come in the order of their names.
template <class Take> class TreeParts {
public:
    explicit TreeParts(Take& take) : take_(take) {}

    /// What has nothing below it.
    template <class Node> void visit(const Node&) {}

    void visit(const GroupingExpression& node) { give(node.inner); }
    void visit(const ListLiteral& node) { giveAll(node.elements); }
    void visit(const MapLiteral& node) { giveEntries(node.entries); }
    void visit(const UnaryExpression& node) { give(node.right); }
    void visit(const BinaryExpression& node) { give(node.left, node.right); }
    void visit(const LogicalExpression& node) { give(node.left, node.right); }
    void visit(const TernaryExpression& node) { give(node.condition, node.thenBranch, node.elseBranch); }
    void visit(const CallExpression& node) {
        give(node.callee);
        giveAll(node.arguments);
    }
    void visit(const GetExpression& node) { give(node.object); }
    void visit(const SetMemberExpression& node) { give(node.object, node.value); }
    void visit(const IndexExpression& node) { give(node.object, node.index); }
    void visit(const AssignmentExpression& node) { give(node.value); }
    void visit(const LambdaExpression& node) { give(node.body); }
    void visit(const RTDBInsertExpression& node) { give(node.path, node.data); }
    void visit(const RTDBUpdateExpression& node) { give(node.path, node.data); }
    void visit(const RTDBDeleteExpression& node) { give(node.path); }
    void visit(const WidgetExpression& node) { give(node.widget); }

    void visit(const BlockStatement& node) { giveAll(node.statements); }
    void visit(const ExpressionStatement& node) { give(node.expression); }
    void visit(const PrintStatement& node) { giveAll(node.arguments); }
    void visit(const WaitStatement& node) { give(node.duration); }
    void visit(const ReturnStatement& node) { give(node.value); }
    void visit(const IfStatement& node) { give(node.condition, node.thenBranch, node.elseBranch); }
    void visit(const WhileStatement& node) { give(node.condition, node.body); }
    void visit(const ForStatement& node) { give(node.iterable, node.body); }
    void visit(const SwitchStatement& node) {
        give(node.subject);
        for (const CaseBlock& one : node.cases) {
            give(one.value, one.body);
        }
        give(node.defaultBlock);
    }
    void visit(const TryCatchStatement& node) { give(node.tryBlock, node.catchBlock); }
    void visit(const SetStatement& node) { give(node.target, node.value); }
    void visit(const CompoundAssignmentStatement& node) { give(node.target, node.value); }
    void visit(const IncrementStatement& node) { give(node.target); }
    void visit(const VarDeclaration& node) { give(node.initializer); }
    void visit(const FunctionDefinitionStatement& node) { give(node.body); }
    void visit(const StructDefinitionStatement& node) {
        giveAll(node.fields);
        giveAll(node.methods);
    }
    void visit(const RTDBReadStatement& node) {
        give(node.path);
        giveAll(node.body);
    }
    void visit(const WebAppNode& node) {
        giveEntries(node.properties);
        give(node.header, node.uiBody, node.definition);
    }
    void visit(const LogicBlockNode& node) { give(node.block); }
    void visit(const WidgetNode& node) {
        giveEntries(node.properties);
        giveAll(node.children);
        giveAll(node.eventStatements);
    }

private:
    template <class... Parts> void give(const Parts&... parts) { (giveOne(parts.get()), ...); }
    void giveOne(const Expression* part) {
        if (part != nullptr) {
            take_(part);
        }
    }
    void giveOne(const Statement* part) {
        if (part != nullptr) {
            take_(part);
        }
    }
    template <class List> void giveAll(const List& parts) {
        for (const auto& part : parts) {
            give(part);
        }
    }
    template <class Entries> void giveEntries(const Entries& entries) {
        for (const auto& entry : entries) {
            give(entry.second);
        }
    }

    Take& take_;
};

} // namespace pozhil

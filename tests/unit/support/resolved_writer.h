#pragma once

#include "analysis/second/resolved/visit.h"

#include <string>

namespace pozhil::test {

/// Writes resolved programs as told at resolvedText.
class ResolvedWriter {
public:
    std::string text(const resolved::Program& program);
    std::string text(const resolved::Expression* expression);
    std::string text(const resolved::Statement* statement);
    std::string text(const resolved::TargetPlace* target);

    void visit(const resolved::WholeLiteral& node) { written_ = std::to_string(node.value); }
    void visit(const resolved::DecimalLiteral& node);
    void visit(const resolved::TruthLiteral& node) { written_ = node.value ? "true" : "false"; }
    void visit(const resolved::TextLiteral& node) { written_ = '"' + node.value + '"'; }
    void visit(const resolved::NothingLiteral&) { written_ = "nothing"; }
    void visit(const resolved::ListLiteral& node) { write("list", listed(node.elements)); }
    void visit(const resolved::MapLiteral& node);
    void visit(const resolved::VariableRead& node) { written_ = name(node.variable, node.isChecked); }
    void visit(const resolved::FunctionValue& node);
    void visit(const resolved::BuiltinValue& node) { written_ = "@" + std::string(node.builtin->engineFunction); }
    void visit(const resolved::Unary& node);
    void visit(const resolved::Binary& node) { write(word(node.op), text(node.left.get()), text(node.right.get())); }
    void visit(const resolved::Logical& node) {
        write(node.isAnd ? "and" : "or", text(node.left.get()), text(node.right.get()));
    }
    void visit(const resolved::Conditional& node) {
        write("choose", text(node.condition.get()), text(node.thenValue.get()), text(node.elseValue.get()));
    }
    void visit(const resolved::ElementRead& node) {
        write("element", text(node.container.get()), text(node.index.get()));
    }
    void visit(const resolved::MemberRead& node) { write("member", text(node.object.get()), node.member); }
    void visit(const resolved::AssignmentValue& node) { writeAssignment(node); }
    void visit(const resolved::FunctionCall& node) { write("call", node.function->name, listed(node.arguments)); }
    void visit(const resolved::ValueCall& node) {
        write("call-value", text(node.callee.get()), listed(node.arguments));
    }
    void visit(const resolved::MethodCall& node) {
        write("method", argument(node.object), node.member, listed(node.arguments));
    }
    void visit(const resolved::Construction& node) { write("new", node.structure->name, listed(node.arguments)); }
    void visit(const resolved::BuiltinCall& node) {
        write("@" + std::string(node.builtin->engineFunction), listed(node.arguments));
    }

    void visit(const resolved::Block& node);
    void visit(const resolved::Evaluation& node) { write("do", text(node.value.get())); }
    void visit(const resolved::Assignment& node) { writeAssignment(node); }
    void visit(const resolved::FunctionDefinition& node);
    void visit(const resolved::Print& node) { write("print", listed(node.values)); }
    void visit(const resolved::Wait& node) { write("wait", text(node.seconds.get())); }
    void visit(const resolved::Return& node) { write("return", text(node.value.get())); }
    void visit(const resolved::Break&) { written_ = "(break)"; }
    void visit(const resolved::Continue&) { written_ = "(continue)"; }
    void visit(const resolved::Pass&) { written_ = "(pass)"; }
    void visit(const resolved::If& node) {
        write("if", text(node.condition.get()), block(node.thenBranch), text(node.elseBranch.get()));
    }
    void visit(const resolved::While& node) { write("while", text(node.condition.get()), block(node.body)); }
    void visit(const resolved::CountingLoop& node) {
        write(node.bodyAssigns ? "count-apart" : "count", name(node.variable, false), text(node.first.get()),
              text(node.last.get()), text(node.step.get()), block(node.body));
    }
    void visit(const resolved::EachLoop& node) {
        write("each", name(node.variable, false), text(node.iterable.get()), block(node.body));
    }
    void visit(const resolved::Switch& node);
    void visit(const resolved::Try& node) {
        write("try", block(node.body), name(node.variable, false), block(node.handler));
    }

private:
    template <class... Parts> void write(const std::string& head, const Parts&... parts) {
        std::string joined = head;
        ((joined += parts.empty() ? std::string() : " " + parts), ...);
        written_ = "(" + joined + ")";
    }

    template <class Node> void writeAssignment(const Node& node) {
        write(node.isCompound ? "set-" + word(node.op) : "set", text(node.target.get()), text(node.value.get()));
    }

    static std::string word(resolved::BinaryOperator op);
    static std::string name(const resolved::Variable* variable, bool isChecked);
    static std::string captures(const resolved::Function& function);
    std::string function(const resolved::Function& one);
    std::string structure(const resolved::Structure& one);
    std::string argument(const resolved::Argument& one);
    std::string block(const resolved::BlockPtr& one) { return text(one.get()); }
    std::string listed(const resolved::ExpressionList& expressions);
    std::string listed(const resolved::Arguments& arguments);

    std::string written_;
};

} // namespace pozhil::test

#include "meaning_check.h"

#include "analysis/second/walk.h"
#include "expectation.h"

namespace resolved = pozhil::resolved;

namespace {

class MeaningCheck : public pozhil::second::Walk<MeaningCheck> {
public:
    using Walk::visit;
    using Walk::walk;

    void walk(resolved::Argument& argument) {
        walk(argument.value);
        walk(argument.target);
    }

    void visit(resolved::VariableRead& node) {
        expect(node.variable != nullptr, "every name that is read has a variable");
        expect(!node.isChecked || node.variable->mayBeUnset, "only what may be unset is checked");
    }
    void visit(resolved::TargetPlace& node) {
        expect(node.form != resolved::TargetPlace::Form::Variable || node.variable != nullptr,
               "every name that is written has a variable");
        Walk::visit(node);
    }
    void visit(resolved::FunctionCall& node) {
        expect(node.function->body != nullptr, "only what has a body is called directly");
        expect(node.arguments.size() == node.function->parameters.size(), "direct calls give what is asked for");
        for (std::size_t index = 0; index < node.arguments.size(); ++index) {
            expect(!node.function->parameters[index].isMutable || node.arguments[index].target != nullptr,
                   "what a function changes is a place");
        }
        Walk::visit(node);
    }
    void visit(resolved::BuiltinCall& node) {
        const auto count = static_cast<int>(node.arguments.size());
        expect(count >= node.builtin->fewestArguments && count <= node.builtin->mostArguments,
               "calls of built-ins give what is asked for");
        expect(!node.builtin->writesFirst || node.arguments[0].target != nullptr, "what a built-in changes is a place");
        Walk::visit(node);
    }
    void visit(resolved::CountingLoop& node) {
        expect(node.variable != nullptr, "every loop has its variable");
        Walk::visit(node);
    }
    void visit(resolved::EachLoop& node) {
        expect(node.variable != nullptr && !isNative(node.variable->kind), "loops put any value into their variable");
        Walk::visit(node);
    }
};

} // namespace

void checkMeaning(resolved::Program& program) {
    MeaningCheck check;
    pozhil::second::walkProgram(check, program);
    for (const auto& variable : program.variables) {
        expect(!variable->mayBeUnset || variable->kind == resolved::Kind::Any, "what may be unset can be anything");
        expect(!variable->isShared || variable->kind == resolved::Kind::Any, "what is shared can be anything");
    }
    for (const auto& function : program.functions) {
        expect(!function->isValue || function->result == resolved::Kind::Any, "function values give anything");
        for (const resolved::Parameter& parameter : function->parameters) {
            expect(!function->isValue || parameter.variable->kind == resolved::Kind::Any,
                   "function values take anything");
        }
    }
}

#include "analysis/second/constants.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/walk.h"

#include <set>
#include <utility>

namespace pozhil::second {
namespace {

using Form = resolved::TargetPlace::Form;
using Constants = std::set<const resolved::Variable*>;

/// Follows the text of one function, or of a file's statements. Loops are followed once: it is the text that counts.
class Following : public Walk<Following> {
public:
    /// \param given constants that have a value, to which those given one here are added
    Following(Model& model, Constants& given) : model_(model), given_(given) {}

    using Walk::visit;

    void visit(resolved::Assignment& node) { assign(node); }
    void visit(resolved::AssignmentValue& node) { assign(node); }

    void visit(resolved::If& node) {
        walk(node.condition);
        const Constants before = given_;
        walk(node.thenBranch);
        Constants after = std::exchange(given_, before);
        walk(node.elseBranch);
        given_.merge(after);
    }
    void visit(resolved::Switch& node) {
        walk(node.subject);
        const Constants before = given_;
        Constants after;
        for (resolved::Case& one : node.cases) {
            walk(one.value);
            walk(one.body);
            after.merge(std::exchange(given_, before));
        }
        walk(node.otherwise);
        given_.merge(after);
    }
    void visit(resolved::Try& node) {
        const Constants before = given_;
        walk(node.body);
        Constants after = std::exchange(given_, before);
        fill(node.variable);
        walk(node.handler);
        given_.merge(after);
    }
    void visit(resolved::CountingLoop& node) {
        fill(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::EachLoop& node) {
        fill(node.variable);
        Walk::visit(node);
    }

private:
    void fill(const resolved::Variable* variable) {
        if (variable != nullptr && isConstantName(variable->name)) {
            given_.insert(variable);
        }
    }

    template <class Node> void assign(Node& node) {
        Walk::visit(node);
        const resolved::Variable* const variable = node.target->variable;
        if (node.target->form != Form::Variable || variable == nullptr || !isConstantName(variable->name)) {
            return;
        }
        if (!given_.insert(variable).second || node.isCompound) {
            model_.faults.add(fault::CHANGED_CONSTANT, node.target->place, {variable->name});
        }
    }

    Model& model_;
    Constants& given_;
};

} // namespace

void checkConstants(Model& model) {
    // One set for all: who assigns a constant of a file, or of a function around, comes after its owner.
    Constants given;
    for (resolved::File& file : model.program.files) {
        Following(model, given).walk(file.body);
    }
    for (const auto& function : model.program.functions) {
        for (const resolved::Parameter& parameter : function->parameters) {
            if (isConstantName(parameter.variable->name)) {
                given.insert(parameter.variable);
            }
        }
        Following(model, given).walk(function->body);
    }
}

const resolved::Variable* constantAtRoot(const resolved::Expression* expression) {
    while (const auto* element = nodeCast<resolved::ElementRead>(expression)) {
        expression = element->container.get();
    }
    const auto* const read = nodeCast<resolved::VariableRead>(expression);
    const bool isConstant = read != nullptr && read->variable != nullptr && isConstantName(read->variable->name);
    return isConstant ? read->variable : nullptr;
}

} // namespace pozhil::second

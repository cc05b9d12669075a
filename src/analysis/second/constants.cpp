#include "analysis/second/constants.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/walk.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace pozhil::second {
namespace {

using Form = resolved::TargetPlace::Form;

/// Constants that have a value, with the order in which they got it, so that a branch can be taken back.
class Constants {
public:
    /// \return false if it has one already
    bool add(const resolved::Variable* constant) {
        const bool isNew = given_.insert(constant).second;
        if (isNew) {
            log_.push_back(constant);
        }
        return isNew;
    }

    std::size_t count() const { return log_.size(); }

    /// Takes back all but the first \p count.
    /// \return what it has taken back
    std::vector<const resolved::Variable*> takeBack(std::size_t count) {
        std::vector<const resolved::Variable*> taken(log_.begin() + static_cast<std::ptrdiff_t>(count), log_.end());
        for (const resolved::Variable* constant : taken) {
            given_.erase(constant);
        }
        log_.resize(count);
        return taken;
    }

private:
    std::unordered_set<const resolved::Variable*> given_;
    std::vector<const resolved::Variable*> log_;
};

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
        Branches branches(given_);
        branches.take([&] { walk(node.thenBranch); });
        branches.take([&] { walk(node.elseBranch); });
    }
    void visit(resolved::Switch& node) {
        walk(node.subject);
        Branches branches(given_);
        for (resolved::Case& one : node.cases) {
            branches.take([&] {
                walk(one.value);
                walk(one.body);
            });
        }
        branches.take([&] { walk(node.otherwise); });
    }
    void visit(resolved::Try& node) {
        Branches branches(given_);
        branches.take([&] { walk(node.body); });
        branches.take([&] {
            fill(node.variable);
            walk(node.handler);
        });
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
    /// Ways of which one is taken: none comes after another. In the end all counts that one of them has given.
    class Branches {
    public:
        explicit Branches(Constants& given) : given_(given), before_(given.count()) {}
        ~Branches() {
            for (const resolved::Variable* constant : taken_) {
                given_.add(constant);
            }
        }
        Branches(const Branches&) = delete;
        Branches& operator=(const Branches&) = delete;

        template <class Way> void take(Way way) {
            way();
            const auto taken = given_.takeBack(before_);
            taken_.insert(taken_.end(), taken.begin(), taken.end());
        }

    private:
        Constants& given_;
        const std::size_t before_;
        std::vector<const resolved::Variable*> taken_;
    };

    void fill(const resolved::Variable* variable) {
        if (variable != nullptr && isConstantName(variable->name)) {
            given_.add(variable);
        }
    }

    template <class Node> void assign(Node& node) {
        Walk::visit(node);
        const resolved::Variable* const variable = node.target->variable;
        if (node.target->form != Form::Variable || variable == nullptr || !isConstantName(variable->name)) {
            return;
        }
        if (!given_.add(variable) || node.isCompound) {
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
                given.add(parameter.variable);
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

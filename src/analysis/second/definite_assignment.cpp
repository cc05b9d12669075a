#include "analysis/second/definite_assignment.h"

#include "analysis/second/calls_ahead.h"
#include "analysis/second/fault_numbers.h"
#include "analysis/second/structures.h"
#include "analysis/second/walk.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace pozhil::second {
namespace {

using Form = resolved::TargetPlace::Form;
using Variables = std::vector<resolved::Variable*>;

/// What is the same for all functions.
struct Knowledge {
    Model& model;
    /// Variables of files that have a value whenever a function runs.
    std::unordered_set<const resolved::Variable*> certainInFunctions;
    std::unordered_set<const resolved::Variable*> holders;
    std::unordered_set<const resolved::Variable*> toldUnset;
    /// Present while the statements of files are followed.
    CallsAhead* callsAhead = nullptr;
};

/// Whether evaluating a value reads a variable on every way.
class SureRead : public Walk<SureRead> {
public:
    explicit SureRead(const resolved::Variable* variable) : variable_(variable) {}

    using Walk::visit;

    void visit(resolved::VariableRead& node) { isFound_ |= node.variable == variable_; }
    void visit(resolved::Logical& node) { walk(node.left); }
    void visit(resolved::Conditional& node) { walk(node.condition); }

    bool isFound() const { return isFound_; }

private:
    const resolved::Variable* variable_;
    bool isFound_ = false;
};

/// The variables that a loop may give a first value. One that is only changed needs a value before.
class FirstValues : public Walk<FirstValues> {
public:
    explicit FirstValues(std::unordered_set<const resolved::Variable*>& variables) : variables_(variables) {}

    using Walk::visit;

    void visit(resolved::Assignment& node) {
        note(node);
        Walk::visit(node);
    }
    void visit(resolved::AssignmentValue& node) {
        note(node);
        Walk::visit(node);
    }
    void visit(resolved::CountingLoop& node) {
        variables_.insert(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::EachLoop& node) {
        variables_.insert(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::Try& node) {
        variables_.insert(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::FunctionDefinition& node) { variables_.insert(node.variable); }

private:
    template <class Node> void note(Node& node) {
        if (node.target->form != Form::Variable || node.isCompound) {
            return;
        }
        SureRead reading(node.target->variable);
        reading.walk(node.value);
        if (!reading.isFound()) {
            variables_.insert(node.target->variable);
        }
    }

    std::unordered_set<const resolved::Variable*>& variables_;
};

/// Follows the ways through one function, or through the statements of a file.
class Following : public Walk<Following> {
public:
    enum class Runs : std::uint8_t { AtStart, WhenCalled };

    Following(Knowledge& knowledge, const resolved::Function* function, std::size_t file, Runs runs)
        : knowledge_(knowledge), function_(function), file_(file), runs_(runs) {
        if (function == nullptr) {
            return;
        }
        for (const resolved::Parameter& parameter : function->parameters) {
            assign(parameter.variable);
        }
    }

    using Walk::visit;
    using Walk::walk;

    /// An argument's place has the same reads as its value, which are marked alike.
    void walk(resolved::Argument& argument) {
        walk(argument.value);
        walk(argument.target);
    }

    void visit(resolved::VariableRead& node) { node.isChecked = read(node.variable, node.place); }

    /// A variable at the root of elements is read; whether one that stands alone is, its user knows.
    void visit(resolved::TargetPlace& node) {
        if (node.form == Form::Variable) {
            node.isChecked = read(node.variable, node.place);
        }
        Walk::visit(node);
    }

    void visit(resolved::Assignment& node) { assignTo(node); }
    void visit(resolved::AssignmentValue& node) { assignTo(node); }

    void visit(resolved::FunctionDefinition& node) { assign(node.variable); }

    void visit(resolved::FunctionCall& node) {
        Walk::visit(node);
        lookAhead([&](CallsAhead& calls, const CallsAhead::Tell& tell) { calls.call(node.function, tell); });
    }
    void visit(resolved::Construction& node) {
        Walk::visit(node);
        lookAhead([&](CallsAhead& calls, const CallsAhead::Tell& tell) { calls.construct(node.structure, tell); });
    }
    void visit(resolved::MethodCall& node) {
        Walk::visit(node);
        lookAhead([&](CallsAhead& calls, const CallsAhead::Tell& tell) { calls.callMember(node.member, tell); });
    }
    void visit(resolved::ValueCall& node) {
        Walk::visit(node);
        lookAhead([&](CallsAhead& calls, const CallsAhead::Tell& tell) { calls.callValue(tell); });
    }

    void visit(resolved::Logical& node) {
        walk(node.left);
        join({branch([&] { walk(node.right); }), branch([] {})});
    }
    void visit(resolved::Conditional& node) {
        walk(node.condition);
        join({branch([&] { walk(node.thenValue); }), branch([&] { walk(node.elseValue); })});
    }
    void visit(resolved::If& node) {
        walk(node.condition);
        join({branch([&] { walk(node.thenBranch); }), branch([&] { walk(node.elseBranch); })});
    }
    void visit(resolved::Switch& node) {
        walk(node.subject);
        std::vector<Outcome> outcomes;
        for (resolved::Case& one : node.cases) {
            outcomes.push_back(branch([&] {
                walk(one.value);
                walk(one.body);
            }));
        }
        outcomes.push_back(branch([&] { walk(node.otherwise); }));
        join(outcomes);
    }
    void visit(resolved::Try& node) {
        join({branch([&] { walk(node.body); }), branch([&] {
                  assign(node.variable);
                  walk(node.handler);
              })});
    }

    void visit(resolved::While& node) {
        const auto* const truth = nodeCast<resolved::TruthLiteral>(node.condition.get());
        prepareLoop(node);
        walk(node.condition);
        follow(node.body, nullptr, truth != nullptr && truth->value);
    }
    void visit(resolved::CountingLoop& node) {
        walk(node.first);
        walk(node.last);
        walk(node.step);
        prepareLoop(node);
        follow(node.body, node.variable, false);
    }
    void visit(resolved::EachLoop& node) {
        walk(node.iterable);
        prepareLoop(node);
        follow(node.body, node.variable, false);
    }

    void visit(resolved::Break&) {
        if (!loops_.empty()) {
            loops_.back().breaks.push_back({assignedSince(loops_.back().mark), isReachable_});
        }
        isReachable_ = false;
    }
    void visit(resolved::Continue&) { isReachable_ = false; }
    void visit(resolved::Return& node) {
        Walk::visit(node);
        isReachable_ = false;
    }

    /// Whether the end can be reached.
    bool isReachable() const { return isReachable_; }
    /// Variables that every run of the statements has given a value so far.
    const std::unordered_set<const resolved::Variable*>& unconditional() const { return unconditional_; }

private:
    /// What one way has given values, if it goes on at all.
    struct Outcome {
        Variables assigned;
        bool isReachable;
    };
    struct Loop {
        std::size_t mark;
        std::vector<Outcome> breaks;
    };

    template <class Node> void assignTo(Node& node) {
        const bool isPlain = node.target->form == Form::Variable && !node.isCompound;
        if (!isPlain) {
            walk(node.target);
        }
        walk(node.value);
        if (node.target->form == Form::Variable) {
            assign(node.target->variable);
        }
    }

    void assign(resolved::Variable* variable) {
        if (variable == nullptr) {
            return;
        }
        mayBeAssigned_.insert(variable);
        if (assigned_.insert(variable).second) {
            log_.push_back(variable);
        }
        if (branchDepth_ == 0 && isReachable_) {
            unconditional_.insert(variable);
        }
    }

    /// \return whether the read must be checked
    bool read(resolved::Variable* variable, resolved::Place place) {
        if (variable == nullptr || !isReachable_ || isCertain(variable)) {
            return false;
        }
        variable->mayBeUnset = true;
        tellIfUnset(variable, place);
        return true;
    }

    bool isCertain(const resolved::Variable* variable) const {
        const bool isOfFile = variable->owner == nullptr;
        return assigned_.count(variable) != 0 || knowledge_.holders.count(variable) != 0 ||
               isParameterAround(variable) ||
               (isOfFile && runs_ == Runs::WhenCalled && knowledge_.certainInFunctions.count(variable) != 0);
    }

    /// Whether it is a parameter of a function around this one.
    bool isParameterAround(const resolved::Variable* variable) const {
        if (variable->owner == nullptr || variable->owner == function_) {
            return false;
        }
        const auto& parameters = variable->owner->parameters;
        return std::any_of(parameters.begin(), parameters.end(),
                           [&](const resolved::Parameter& one) { return one.variable == variable; });
    }

    /// Nothing before this place, and nothing else that runs, can have given the variable a value.
    void tellIfUnset(const resolved::Variable* variable, resolved::Place place) {
        const auto facts = knowledge_.model.variables.find(variable);
        const bool isAssignedElsewhere =
            variable->isShared || variable->owner != function_ ||
            (variable->owner == nullptr && runs_ == Runs::WhenCalled) ||
            (facts != knowledge_.model.variables.end() && facts->second.isAssignedByPublic);
        if (mayBeAssigned_.count(variable) != 0 || isAssignedElsewhere ||
            !knowledge_.toldUnset.insert(variable).second) {
            return;
        }
        const auto* const inside = function_ == nullptr ? nullptr : function_->structure;
        if (inside != nullptr && findField(*inside, variable->name).field != nullptr) {
            knowledge_.model.faults.add(fault::BARE_MEMBER, place, {variable->name, inside->name, "பண்பு"});
            return;
        }
        const bool hidesFileVariable =
            function_ != nullptr && knowledge_.model.fileScopes[file_]->variables.count(variable->name) != 0;
        knowledge_.model.faults.add(hidesFileVariable ? fault::UNSET_OWN_VARIABLE : fault::UNSET_VARIABLE, place,
                                    {variable->name});
    }

    template <class Call> void lookAhead(Call call) {
        if (knowledge_.callsAhead == nullptr || !isReachable_) {
            return;
        }
        call(*knowledge_.callsAhead, [&](resolved::Variable* variable) {
            const bool isSet = variable->file < file_ ? knowledge_.certainInFunctions.count(variable) != 0
                                                      : unconditional_.count(variable) != 0;
            if (!isSet) {
                uncertain_.insert(variable);
            }
        });
    }

public:
    /// Variables that a function called from these statements may read too early.
    const std::unordered_set<const resolved::Variable*>& uncertain() const { return uncertain_; }

private:
    Variables assignedSince(std::size_t mark) const {
        return {log_.begin() + static_cast<std::ptrdiff_t>(mark), log_.end()};
    }

    /// Follows a way that is not always taken, and forgets what it has done.
    template <class Way> Outcome branch(Way way) {
        const std::size_t mark = log_.size();
        const bool wasReachable = isReachable_;
        ++branchDepth_;
        way();
        --branchDepth_;
        Outcome outcome{assignedSince(mark), isReachable_};
        for (const resolved::Variable* variable : outcome.assigned) {
            assigned_.erase(variable);
        }
        log_.resize(mark);
        isReachable_ = wasReachable;
        return outcome;
    }

    /// Goes on where several ways meet: what all of them have assigned is assigned.
    void join(const std::vector<Outcome>& outcomes) {
        std::unordered_map<resolved::Variable*, std::size_t> counts;
        std::size_t reachable = 0;
        for (const Outcome& outcome : outcomes) {
            if (outcome.isReachable) {
                ++reachable;
                for (resolved::Variable* variable : outcome.assigned) {
                    ++counts[variable];
                }
            }
        }
        isReachable_ = isReachable_ && reachable != 0;
        for (const auto& [variable, count] : counts) {
            if (count == reachable) {
                assign(variable);
            }
        }
    }

    /// A later round of the outermost loop may meet what an earlier one has assigned.
    template <class Node> void prepareLoop(Node& node) {
        if (loops_.empty()) {
            FirstValues(mayBeAssigned_).visit(node);
        }
    }

    void follow(resolved::BlockPtr& body, resolved::Variable* variable, bool isEndless) {
        loops_.push_back({log_.size(), {}});
        branch([&] {
            assign(variable);
            walk(body);
        });
        std::vector<Outcome> outcomes = std::move(loops_.back().breaks);
        loops_.pop_back();
        outcomes.push_back({{}, !isEndless});
        join(outcomes);
    }

    Knowledge& knowledge_;
    /// Null for the statements of a file.
    const resolved::Function* function_;
    std::size_t file_;
    Runs runs_;
    std::unordered_set<const resolved::Variable*> assigned_;
    /// What became assigned, in order, so that a branch can be taken back.
    Variables log_;
    std::unordered_set<const resolved::Variable*> mayBeAssigned_;
    std::unordered_set<const resolved::Variable*> unconditional_;
    std::unordered_set<const resolved::Variable*> uncertain_;
    std::vector<Loop> loops_;
    int branchDepth_ = 0;
    bool isReachable_ = true;
};

/// The files in the order in which they run. What one file has always assigned when it ends is certain for functions,
/// unless one of them was called too early.
void followFiles(Knowledge& knowledge) {
    Model& model = knowledge.model;
    CallsAhead callsAhead(model);
    knowledge.callsAhead = &callsAhead;
    std::unordered_set<const resolved::Variable*> tooEarly;
    for (std::size_t file = 0; file < model.program.files.size(); ++file) {
        Following following(knowledge, nullptr, file, Following::Runs::AtStart);
        following.walk(model.program.files[file].body);
        tooEarly.insert(following.uncertain().begin(), following.uncertain().end());
        for (const resolved::Variable* variable : following.unconditional()) {
            if (tooEarly.count(variable) == 0) {
                knowledge.certainInFunctions.insert(variable);
            }
        }
    }
    knowledge.callsAhead = nullptr;
}

void followFields(Knowledge& knowledge) {
    for (const auto& structure : knowledge.model.program.structures) {
        knowledge.certainInFunctions.insert(&structure->self);
        for (resolved::Field& field : structure->fields) {
            Following following(knowledge, nullptr, structure->file, Following::Runs::WhenCalled);
            following.walk(field.initializer);
        }
    }
}

} // namespace

WayFacts findDefiniteAssignments(Model& model) {
    Knowledge knowledge{model, {}, {}, {}};
    WayFacts facts;
    for (const auto& [function, holder] : model.holders) {
        static_cast<void>(function);
        knowledge.holders.insert(holder);
    }
    followFiles(knowledge);
    for (const auto& function : model.program.functions) {
        Following following(knowledge, function.get(), function->file, Following::Runs::WhenCalled);
        following.walk(function->body);
        if (following.isReachable()) {
            facts.endsWithoutReturn.insert(function.get());
        }
    }
    followFields(knowledge);
    return facts;
}

} // namespace pozhil::second

#include "analysis/second/kinds.h"

#include "analysis/second/operator_kinds.h"
#include "analysis/second/walk.h"

#include <numeric>

namespace pozhil::second {

using resolved::Kind;
using State = Certainty::State;
using Form = resolved::TargetPlace::Form;

Certainty either(const Certainty& one, const Certainty& other) {
    if (one.state == State::Open || one == other) {
        return other;
    }
    if (other.state == State::Open) {
        return one;
    }
    const bool isSame = one.state == State::Sure && other.state == State::Sure && one.kind == other.kind;
    return isSame ? Certainty::of(one.kind) : Certainty::any();
}

/// Notes every value that goes into a variable, or that a function gives.
class Kinds::Gathering : public Walk<Gathering> {
public:
    Gathering(Kinds& kinds, const resolved::Function* function) : kinds_(kinds), function_(function) {}

    using Walk::visit;

    void visit(resolved::Assignment& node) { assign(node); }
    void visit(resolved::AssignmentValue& node) { assign(node); }
    void visit(resolved::FunctionDefinition& node) { fixed(node.variable, Kind::Function); }
    void visit(resolved::Return& node) {
        if (node.value == nullptr) {
            fixed(function_, Kind::Nothing);
        } else {
            flow(function_, Passing::Whole, *node.value);
        }
        Walk::visit(node);
    }
    void visit(resolved::CountingLoop& node) {
        fixed(node.variable, Kind::Whole);
        Walk::visit(node);
    }
    void visit(resolved::EachLoop& node) {
        flow(node.variable, Passing::Element, *node.iterable);
        Walk::visit(node);
    }
    void visit(resolved::Try& node) {
        fixed(node.variable, Kind::Text);
        Walk::visit(node);
    }
    void visit(resolved::FunctionCall& node) {
        const auto& parameters = node.function->parameters;
        for (std::size_t index = 0; index < node.arguments.size() && index < parameters.size(); ++index) {
            if (kinds_.certainSelf(*node.function) != parameters[index].variable) {
                flow(parameters[index].variable, Passing::Whole, *node.arguments[index].value);
            }
            if (parameters[index].isMutable) {
                passPlace(node.arguments[index]);
            }
        }
        Walk::visit(node);
    }
    void visit(resolved::ValueCall& node) {
        passPlaces(node.arguments);
        Walk::visit(node);
    }
    void visit(resolved::MethodCall& node) {
        passPlaces(node.arguments);
        writeThrough(node.object.target);
        Walk::visit(node);
    }
    void visit(resolved::BuiltinCall& node) {
        if (node.builtin->writesFirst && !node.arguments.empty()) {
            writeThrough(node.arguments[0].target);
        }
        Walk::visit(node);
    }
    void visit(resolved::TargetPlace& node) {
        if (node.form == Form::Element) {
            writeThrough(node.container);
        }
        Walk::visit(node);
    }
    void visit(resolved::Construction& node) {
        passPlaces(node.arguments);
        Walk::visit(node);
    }

private:
    template <class Node> void assign(Node& node) {
        if (node.target->form == Form::Variable && node.target->variable != nullptr) {
            kinds_.addFlow({kinds_.slotOf(node.target->variable), node.isCompound ? Passing::Compound : Passing::Whole,
                            Certainty(), node.value.get(), node.op});
        }
        Walk::visit(node);
    }

    template <class Owner> void fixed(const Owner* owner, Kind kind) {
        if (owner != nullptr) {
            kinds_.addFlow({kinds_.slotOf(owner), Passing::Fixed, Certainty::of(kind), nullptr, {}});
        }
    }

    template <class Owner> void flow(const Owner* owner, Passing passing, const resolved::Expression& value) {
        if (owner != nullptr) {
            kinds_.addFlow({kinds_.slotOf(owner), passing, Certainty(), &value, {}});
        }
    }

    /// What is called may leave any value there.
    void passPlace(const resolved::Argument& argument) {
        if (argument.target != nullptr && argument.target->form == Form::Variable &&
            argument.target->variable != nullptr) {
            kinds_.setAny(argument.target->variable);
        }
    }
    void passPlaces(const resolved::Arguments& arguments) {
        for (const resolved::Argument& argument : arguments) {
            passPlace(argument);
        }
    }

    void writeThrough(const resolved::TargetPtr& target) {
        if (target != nullptr && target->form == Form::Variable && target->variable != nullptr) {
            kinds_.places_.push_back(target->variable);
        }
    }

    Kinds& kinds_;
    const resolved::Function* function_;
};

/// Notes which variables and results a value depends on.
class Kinds::Reads : public Walk<Reads> {
public:
    Reads(Kinds& kinds, std::size_t flow) : kinds_(kinds), flow_(flow) {}

    using Walk::visit;

    void visit(resolved::VariableRead& node) { note(node.variable); }
    void visit(resolved::TargetPlace& node) {
        note(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::FunctionCall& node) { note(node.function); }
    void visit(resolved::ListLiteral&) {}
    void visit(resolved::MapLiteral&) {}

    template <class Owner> void note(const Owner* owner) {
        if (owner != nullptr) {
            kinds_.readers_[kinds_.slotOf(owner)].push_back(flow_);
        }
    }

private:
    Kinds& kinds_;
    std::size_t flow_;
};

Kinds::Kinds(Model& model, const WayFacts& ways, Purpose purpose) : model_(model), purpose_(purpose) {
    for (const auto& variable : model.program.variables) {
        slotOf(variable.get());
    }
    setUncertain(ways);
    gather();
    settle();
    close();
    if (purpose == Purpose::Writing) {
        boxPlaces();
    }
}

Certainty Kinds::atSlot(const void* owner) const {
    const auto found = slots_.find(owner);
    return found == slots_.end() ? Certainty::any() : certainties_[found->second];
}

std::size_t Kinds::slotOf(const void* owner) {
    const auto [slot, isNew] = slots_.emplace(owner, certainties_.size());
    if (isNew) {
        certainties_.emplace_back();
        readers_.emplace_back();
    }
    return slot->second;
}

/// What may be given values that the text doesn't show.
void Kinds::setUncertain(const WayFacts& ways) {
    for (const auto& variable : model_.program.variables) {
        if (variable->isShared || variable->mayBeUnset || model_.doubt.mayGive(*variable)) {
            setAny(variable.get());
        }
    }
    for (const auto& function : model_.program.functions) {
        const bool isCalledUnseen = function->isValue || function->structure != nullptr;
        for (const resolved::Parameter& parameter : function->parameters) {
            if (isCalledUnseen || parameter.isMutable || purpose_ == Purpose::Telling) {
                setAny(parameter.variable);
            }
        }
        if (const resolved::Variable* const self = certainSelf(*function)) {
            certainties_[slotOf(self)] = Certainty::ofObject(function->structure);
            certainties_[slotOf(self)].mayBeChild = true;
        }
        const std::size_t result = slotOf(function.get());
        if (isCalledUnseen || model_.doubt.isIn(*function)) {
            certainties_[result] = Certainty::any();
        } else if (ways.endsWithoutReturn.count(function.get()) != 0) {
            certainties_[result] = Certainty::of(Kind::Nothing);
        }
    }
}

/// தான் of a method that gives it no other value; null for anything else.
const resolved::Variable* Kinds::certainSelf(const resolved::Function& function) const {
    if (function.structure == nullptr || function.parameters.empty() || function.parameters[0].isMutable) {
        return nullptr;
    }
    const resolved::Variable* const self = function.parameters[0].variable;
    const auto facts = model_.variables.find(self);
    const bool isGiven = facts != model_.variables.end() && facts->second.isGivenInText;
    return isGiven ? nullptr : self;
}

void Kinds::gather() {
    for (resolved::File& file : model_.program.files) {
        Gathering(*this, nullptr).walk(file.body);
    }
    for (const auto& function : model_.program.functions) {
        Gathering(*this, function.get()).walk(function->body);
    }
    for (const auto& structure : model_.program.structures) {
        Certainty& self = certainties_[slotOf(&structure->self)];
        self = Certainty::ofObject(structure.get());
        self.mayBeChild = true;
        for (resolved::Field& field : structure->fields) {
            Gathering(*this, nullptr).walk(field.initializer);
        }
    }
}

void Kinds::addFlow(Flow flow) {
    if (certainties_[flow.to].state == State::Any) {
        return;
    }
    const std::size_t index = flows_.size();
    flows_.push_back(flow);
    if (flow.value != nullptr) {
        // The walk is one of those that may change what they meet; this one doesn't.
        Reads(*this, index).walk(const_cast<resolved::Expression*>(flow.value));
    }
    if (flow.passing == Passing::Compound) {
        readers_[flow.to].push_back(index);
    }
}

Certainty Kinds::passed(const Flow& flow) const {
    switch (flow.passing) {
    case Passing::Fixed: return flow.fixed;
    case Passing::Whole: return of(flow.value);
    case Passing::Element: {
        const Certainty whole = of(flow.value);
        const bool hasLetters = whole.state == State::Sure && whole.kind == Kind::Text;
        return whole.state == State::Open ? whole : hasLetters ? Certainty::of(Kind::Text) : Certainty::any();
    }
    case Passing::Compound: return under(flow.op, certainties_[flow.to], of(flow.value));
    }
    return Certainty::any();
}

void Kinds::settle() {
    waiting_.resize(flows_.size());
    std::iota(waiting_.rbegin(), waiting_.rend(), std::size_t(0));
    isWaiting_.assign(flows_.size(), true);
    while (!waiting_.empty()) {
        const std::size_t index = waiting_.back();
        waiting_.pop_back();
        isWaiting_[index] = false;
        const Flow& flow = flows_[index];
        const Certainty before = certainties_[flow.to];
        const Certainty after = either(before, passed(flow));
        if (after == before) {
            continue;
        }
        certainties_[flow.to] = after;
        for (const std::size_t reader : readers_[flow.to]) {
            if (!isWaiting_[reader]) {
                isWaiting_[reader] = true;
                waiting_.push_back(reader);
            }
        }
    }
}

/// What nothing was found for is never reached, or never ends: it can be anything.
void Kinds::close() {
    for (Certainty& certainty : certainties_) {
        if (certainty.state == State::Open) {
            certainty = Certainty::any();
        }
    }
    settle();
}

/// What writes into a place takes a value of any kind there, also where that certainly fails when it runs.
void Kinds::boxPlaces() {
    bool isChanged = false;
    for (const resolved::Variable* variable : places_) {
        Certainty& certainty = certainties_[slotOf(variable)];
        if (resolved::isNative(certainty.kind)) {
            certainty = Certainty::any();
            isChanged = true;
        }
    }
    if (isChanged) {
        settle();
    }
}

} // namespace pozhil::second

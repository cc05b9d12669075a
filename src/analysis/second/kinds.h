#pragma once

#include "analysis/second/definite_assignment.h"
#include "analysis/second/model.h"
#include "language/second/builtins.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil::second {

/// What is known of a value before the program runs.
struct Certainty {
    /// Open: nothing was found yet that it could be. Sure: always this kind. Any: of several kinds, or of unknown ones.
    enum class State : std::uint8_t { Open, Sure, Any };
    State state = State::Open;
    /// Only if sure.
    resolved::Kind kind = resolved::Kind::Any;
    /// Of an object; null if it may be of several.
    const resolved::Structure* structure = nullptr;
    /// The object may be of a child of the structure.
    bool mayBeChild = false;

    static Certainty any() { return {State::Any, resolved::Kind::Any, nullptr, false}; }
    static Certainty of(resolved::Kind theKind) {
        return theKind == resolved::Kind::Any ? any() : Certainty{State::Sure, theKind, nullptr, false};
    }
    /// An object of exactly this structure.
    static Certainty ofObject(const resolved::Structure* theStructure) {
        return {State::Sure, resolved::Kind::Object, theStructure, false};
    }

    bool operator==(const Certainty& other) const {
        return state == other.state && kind == other.kind && structure == other.structure &&
               mayBeChild == other.mayBeChild;
    }
};

/// What is certain of a value that is one of two.
Certainty either(const Certainty& one, const Certainty& other);

/// What kinds are asked for.
enum class Purpose : std::uint8_t {
    Telling, ///< faults: a function is taken for itself, so its parameters can be anything
    Writing, ///< the emitted text: parameters hold what the program's calls give them
};

/// The kinds of the variables, results and values of a whole program, in whatever order it runs.
class Kinds {
public:
    /// \param model with its definite assignments found; outlives the object
    Kinds(Model& model, const WayFacts& ways, Purpose purpose);

    /// What is certain of the value of an expression.
    Certainty of(const resolved::Expression* expression) const;
    /// The same, for an expression whose parts have their kinds noted.
    Certainty ofMarked(const resolved::Expression* expression) const;
    /// What is certain of what an operator gives. Operands that certainly don't fit give no value, so that where they come
    /// from is told.
    Certainty under(resolved::BinaryOperator op, const Certainty& left, const Certainty& right) const;
    /// What is certain of what a variable always holds, or of what a function always gives.
    Certainty at(const resolved::Variable* variable) const { return atSlot(variable); }
    Certainty at(const resolved::Function* function) const { return atSlot(function); }

private:
    class Gathering;
    class Reads;

    /// How a value gets to where it goes.
    enum class Passing : std::uint8_t {
        Fixed,    ///< its kind is known
        Whole,    ///< as it is
        Element,  ///< one of its elements
        Compound, ///< what was there before and the value, under an operator
    };
    struct Flow {
        std::size_t to;
        Passing passing;
        Certainty fixed;
        const resolved::Expression* value;
        resolved::BinaryOperator op;
    };

    Certainty atSlot(const void* owner) const;
    std::size_t slotOf(const void* owner);
    void setAny(const void* owner) { certainties_[slotOf(owner)] = Certainty::any(); }
    void setUncertain(const WayFacts& ways);
    const resolved::Variable* certainSelf(const resolved::Function& function) const;
    void gather();
    void addFlow(Flow flow);
    Certainty passed(const Flow& flow) const;
    void settle();
    void close();
    void boxPlaces();

    Model& model_;
    Purpose purpose_;
    /// By variable, or by function for its result.
    std::unordered_map<const void*, std::size_t> slots_;
    std::vector<Certainty> certainties_;
    std::vector<Flow> flows_;
    /// Of each slot the flows that read it.
    std::vector<std::vector<std::size_t>> readers_;
    /// Variables at the root of places that are written through.
    std::vector<const resolved::Variable*> places_;
    std::vector<std::size_t> waiting_;
    std::vector<bool> isWaiting_;
};

/// The kind of what a built-in gives.
/// \param first what is certain of its first argument
Certainty resultOf(const language::second::Builtin& builtin, const Certainty& first);

/// The method or part of a value of this kind that comes with the language; null if it has none of that name.
const language::second::Builtin* memberOf(resolved::Kind kind, language::second::BuiltinForm form,
                                          std::string_view name);

/// The method that a call on such an object runs for certain; null if that isn't certain.
const resolved::Function* certainMethod(const Model& model, const Certainty& object, const std::string& member);

} // namespace pozhil::second

#pragma once

#include "generator/second/expression_writer.h"

#include <string>
#include <vector>

namespace pozhil::resolved::writer {

/// Writes calls. Parameters that are மாற்று get a reference where the argument is a variable; any other place is read
/// before the call and written after it.
class CallWriter {
public:
    explicit CallWriter(ExpressionWriter& writer) : writer_(writer), operands_(writer) {}

    std::string write(const FunctionCall& call);
    std::string write(const ValueCall& call);
    std::string write(const MethodCall& call);
    std::string write(const Construction& construction);
    std::string write(const BuiltinCall& call);

private:
    /// An argument as the call is given it.
    struct Given {
        /// Number of its first operand.
        std::size_t operand;
        std::string text;
    };

    /// f(arguments, place) of a function that is known.
    /// \param skipped how many of its parameters come from elsewhere
    std::string knownCall(const std::string& name, const Function* function, std::size_t skipped,
                          const Arguments& arguments, Type result, const Place& place);
    /// Evaluates the arguments of a function that is known, one after the other.
    std::vector<Given> giveTo(const std::vector<Parameter>& parameters, const Arguments& arguments);
    /// What a மாற்று parameter refers to: the variable, or a copy of what another place holds.
    std::string reference(const Argument& argument);
    /// An argument for a parameter that isn't மாற்று, which takes it away where nobody needs it any more.
    std::string givenText(const Expression& argument, std::size_t number, Type parameter) const;
    /// Evaluates the arguments of a call that says only when it is made which of them are places.
    std::vector<Given> give(const Arguments& arguments);
    static std::string listed(const std::vector<Given>& given);
    /// The arguments as an array of its own, where some may get values back.
    /// \return the name of the array
    std::string argumentArray(const std::vector<Given>& given);
    /// The call of what \p callText is, with what came out of its arguments written back.
    std::string callWithPlaces(const Arguments& arguments, const std::vector<Given>& given, const std::string& array,
                               const std::string& callText, const std::string& maskText);
    /// The object of a method is a place: what it holds may be written.
    std::string methodOfPlace(const MethodCall& call);
    std::string methodOfValue(const MethodCall& call);
    std::string writingBuiltin(const BuiltinCall& call);
    /// The call of a built-in's function in the engine.
    std::string engineCall(const BuiltinCall& call, const std::string& arguments) const;
    /// place = holder;
    std::string giveBack(const TargetPlace& target, std::size_t operand, const std::string& holder) const;

    ExpressionWriter& writer_;
    Operands operands_;
};

/// What is called when a structure is constructed: its own துவக்கம் or that of the nearest parent; null if there is none.
const Function* constructorOf(const Structure& structure);

} // namespace pozhil::resolved::writer

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
    /// A place that gets its value back after the call.
    struct Returned {
        const TargetPlace* target;
        /// Its first operand.
        std::size_t operand;
        /// What holds the value meanwhile.
        std::string holder;
        /// Index of the argument.
        std::size_t argument;
    };

    /// f(arguments, place) of a function that is known.
    /// \param skipped how many of its parameters come from elsewhere
    std::string knownCall(const std::string& name, const Function* function, std::size_t skipped,
                          const Arguments& arguments, Type result, const Place& place);
    /// The arguments as an array of its own, for a function that says only when it is called which of them are places.
    /// \return the name of the array
    std::string argumentArray(const Arguments& arguments, std::size_t first);
    /// The call of what \p callText is, with what came out of its arguments written back.
    std::string callWithPlaces(const Arguments& arguments, const std::string& array, const std::string& callText,
                               const std::string& maskText);
    /// The object of a method is a place: what it holds may be written.
    std::string methodOfPlace(const MethodCall& call);
    std::string methodOfValue(const MethodCall& call);
    /// place = holder
    std::string giveBack(const Returned& returned) const;
    void addArguments(const Arguments& arguments);

    ExpressionWriter& writer_;
    Operands operands_;
};

/// What is called when a structure is constructed: its own துவக்கம் or that of the nearest parent; null if there is none.
const Function* constructorOf(const Structure& structure);

} // namespace pozhil::resolved::writer

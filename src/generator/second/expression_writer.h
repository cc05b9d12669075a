#pragma once

#include "analysis/second/resolved/statements.h"
#include "generator/second/operands.h"
#include "generator/second/program_tables.h"
#include "generator/second/types.h"

#include <string>
#include <vector>

namespace pozhil::resolved::writer {

/// Writes expressions of one function as C++. The kinds of native and other values meet here: whoever asks says as what it
/// takes a value.
class ExpressionWriter {
public:
    ExpressionWriter(ProgramTables& tables, CallScope& scope) : tables_(tables), scope_(scope) {}

    /// With the type that it has by itself, typeOf(expression).
    std::string write(const Expression& expression);
    std::string write(const Expression& expression, Wanted wanted);
    /// What write makes of an expression has this type.
    static Type typeWanted(const Expression& expression, Wanted wanted);

    /// A truth value of C++: எனில், சுற்று.
    /// \param function of the engine, which makes one of any other value or tells that it can't
    std::string condition(const Expression& expression, const char* function = "truth");
    /// A whole number of C++: bounds of a counting loop.
    std::string wholeNumber(const Expression& expression);

    /// place = value as a statement.
    std::string statement(const Assignment& assignment);

    // What operands and statements need besides.

    /// A local variable of the emitted text that is no variable of the program.
    std::string temporary() { return scope_.temporary(); }
    const std::string& nameOf(const Variable& variable) const { return tables_.names.of(variable); }
    std::string placeOf(const Place& place) const { return tables_.places.literal(place); }
    /// "m_பெயர், place", and the structure whose method asks.
    std::string memberArguments(const std::string& member, const Place& place, const Structure* inside);
    /// A value of a function, with the shared variables that it takes.
    std::string functionValue(const Function& function);

    // Each writes one class of expressions into text_.
    void visit(const WholeLiteral& literal);
    void visit(const DecimalLiteral& literal);
    void visit(const TruthLiteral& literal);
    void visit(const TextLiteral& literal);
    void visit(const NothingLiteral& literal);
    void visit(const ListLiteral& list);
    void visit(const MapLiteral& map);
    void visit(const VariableRead& read);
    void visit(const FunctionValue& value);
    void visit(const BuiltinValue& value);
    void visit(const Unary& unary);
    void visit(const Binary& binary);
    void visit(const Logical& logical);
    void visit(const Conditional& conditional);
    void visit(const ElementRead& read);
    void visit(const MemberRead& read);
    void visit(const AssignmentValue& assignment);
    void visit(const FunctionCall& call);
    void visit(const ValueCall& call);
    void visit(const MethodCall& call);
    void visit(const Construction& construction);
    void visit(const BuiltinCall& call);

private:
    friend class CallWriter;
    friend class AssignmentWriter;

    /// A list or map in braces. g++ takes time by the square of how many items there are, and more of how deep braces nest:
    /// long ones are made part by part, and at every so many levels a function keeps g++ from looking further.
    /// \param make what comes before the first items
    /// \param add what comes before further items, for a variable called all
    std::string braced(const std::string& make, const std::string& add, const std::vector<std::string>& items,
                       const std::string& ending) const;
    /// "c_எ.cell()" in the function whose variable it is, "captured(own, 0)" in one inside of it.
    std::string cellOf(const Variable& variable) const;

    ProgramTables& tables_;
    CallScope& scope_;
    std::string text_;
    /// Lists and maps that are being written, inside each other.
    int openBraces_ = 0;
};

} // namespace pozhil::resolved::writer

#pragma once

#include "generator/second/emitted_lines.h"
#include "generator/second/program_tables.h"

#include <string>

namespace pozhil::resolved::writer {

/// What the C++ parameter is called: as the variable, unless that gets a cell that functions share.
std::string parameterName(const Parameter& parameter, const Names& names);

/// The cell and the variable of a parameter that functions share: "Shared c_எ(p_எ); Value& v_எ = c_எ.value();"
std::string sharedParameter(const Parameter& parameter, const Names& names);

/// Writes functions, methods and lambdas as C++ functions, and how the engine calls those that are values or methods.
class FunctionWriter {
public:
    explicit FunctionWriter(ProgramTables& tables) : tables_(tables) {}

    /// The declaration of the function, and of its adapter and description if it can be called without being named.
    void declare(const Function& function, EmittedLines& lines);
    /// The function, and its adapter.
    void define(const Function& function, EmittedLines& lines);

    /// As the way of calls names it.
    static std::string shownName(const Function& function);

private:
    /// "Value v_a, Value& v_b, Place at"
    std::string parameterList(const Function& function) const;
    std::string head(const Function& function) const;
    std::string adapterHead(const Function& function) const;
    void defineAdapter(const Function& function, EmittedLines& lines);
    void declareVariables(const Function& function, EmittedLines& lines);

    ProgramTables& tables_;
};

/// Whether the engine may call it: it is a value somewhere, or a method.
bool hasAdapter(const Function& function);

} // namespace pozhil::resolved::writer

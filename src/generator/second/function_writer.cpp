#include "generator/second/function_writer.h"

#include "generator/second/last_uses.h"
#include "generator/second/literals.h"
#include "generator/second/local_facts.h"
#include "generator/second/statement_writer.h"

namespace pozhil::resolved::writer {
namespace {

bool takesCaptures(const Function& function) {
    return !function.captures.empty();
}

unsigned mutableMask(const Function& function) {
    unsigned mask = 0;
    for (std::size_t index = 0; index < function.parameters.size(); ++index) {
        mask |= function.parameters[index].isMutable ? 1U << index : 0U;
    }
    return mask;
}

/// "Shared c_எ(first); Value& v_எ = c_எ.value();"
std::string sharedVariable(const std::string& name, const std::string& first) {
    const std::string cell = cellName(name);
    return "Shared " + cell + first + "; Value& " + name + " = " + cell + ".value();";
}

bool endsInReturn(const Block& body) {
    return !body.statements.empty() && dynamic_cast<const Return*>(body.statements.back().get()) != nullptr;
}

} // namespace

std::string parameterName(const Parameter& parameter, const Names& names) {
    const std::string& name = names.of(*parameter.variable);
    return parameter.variable->isShared && !parameter.isMutable ? "p" + name.substr(1) : name;
}

std::string sharedParameter(const Parameter& parameter, const Names& names) {
    const std::string& name = names.of(*parameter.variable);
    return parameter.isMutable ? "const SharedPlace " + cellName(name) + "(" + name + ");"
                               : sharedVariable(name, "(" + parameterName(parameter, names) + ")");
}

bool hasAdapter(const Function& function) {
    return function.body != nullptr && (function.isValue || function.structure != nullptr ||
                                        function.enclosing != nullptr || takesCaptures(function));
}

std::string FunctionWriter::shownName(const Function& function) {
    return function.structure == nullptr ? function.name : function.structure->name + "." + function.name;
}

std::string FunctionWriter::parameterList(const Function& function) const {
    std::string list = takesCaptures(function) ? "const Closure& own, " : "";
    for (const Parameter& parameter : function.parameters) {
        list += std::string(nameOf(typeOf(*parameter.variable))) + (parameter.isMutable ? "& " : " ") +
                parameterName(parameter, tables_.names) + ", ";
    }
    return list + "Place at";
}

std::string FunctionWriter::head(const Function& function) const {
    return "static " + std::string(nameOf(typeOf(function))) + " " + tables_.names.of(function) + "(" +
           parameterList(function) + ")";
}

std::string FunctionWriter::adapterHead(const Function& function) const {
    return "static Value " + tables_.names.of(function, "call_") + "(const Closure&" +
           (takesCaptures(function) ? " own" : "") + ", Value*" + (function.parameters.empty() ? "" : " arguments") +
           ", Place at)";
}

void FunctionWriter::declare(const Function& function, EmittedLines& lines) {
    if (function.body == nullptr || function.isPage) {
        return;
    }
    lines.setPlace(function.place);
    lines.line(head(function) + ";");
    if (hasAdapter(function)) {
        lines.line(adapterHead(function) + ";");
        lines.line("static const FunctionInfo " + tables_.names.of(function, "info_") + " = {" +
                   textLiteral(shownName(function)) + ", " + tables_.names.of(function, "call_") + ", " +
                   std::to_string(function.parameters.size()) + ", " + std::to_string(mutableMask(function)) + "};");
    }
}

void FunctionWriter::define(const Function& function, EmittedLines& lines) {
    if (function.body == nullptr || function.isPage) {
        return;
    }
    lines.setPlace(function.place);
    lines.line(lineComment(tables_.places.description(function.place)));
    lines.open(head(function) + " {");
    lines.line("Frame frame(" + textLiteral(shownName(function)) + ", at);");
    if (tables_.isStoppable) {
        lines.line("step(at);");
    }
    declareVariables(function, lines);
    CallScope scope{&function, 0, lastUses(function)};
    const LocalFacts facts(&function, *function.body);
    for (const Variable* variable : facts.declaredFirst()) {
        const std::string& name = tables_.names.of(*variable);
        const Type type = typeOf(*variable);
        if (variable->isShared) {
            lines.line(sharedVariable(name, ""));
        } else if (type == Type::Value) {
            lines.line("Value " + name + (variable->mayBeUnset ? " = Value::unset();" : ";"));
        } else {
            lines.line(std::string(nameOf(type)) + " " + name + " = {};");
        }
    }
    StatementWriter statements(tables_, scope, facts, lines);
    for (const FunctionDefinition* definition : facts.definitions()) {
        statements.define(*definition);
    }
    statements.write(*function.body);
    if (!endsInReturn(*function.body) && typeOf(function) == Type::Value) {
        lines.line("return Value();");
    }
    lines.close();
    defineAdapter(function, lines);
    lines.gap();
}

/// Captured variables, and parameters that others capture.
void FunctionWriter::declareVariables(const Function& function, EmittedLines& lines) {
    for (std::size_t index = 0; index < function.captures.size(); ++index) {
        lines.line("Value& " + tables_.names.of(*function.captures[index]) + " = captured(own, " +
                   std::to_string(index) + ")->value();");
    }
    for (const Parameter& parameter : function.parameters) {
        if (parameter.variable->isShared) {
            lines.line(sharedParameter(parameter, tables_.names));
        }
    }
}

/// Takes the arguments out of an array, as the engine hands them over.
void FunctionWriter::defineAdapter(const Function& function, EmittedLines& lines) {
    if (!hasAdapter(function)) {
        return;
    }
    std::string arguments = takesCaptures(function) ? "own, " : "";
    for (std::size_t index = 0; index < function.parameters.size(); ++index) {
        const std::string element = "arguments[" + std::to_string(index) + "]";
        const std::string argument = function.parameters[index].isMutable ? element : "moved(" + element + ")";
        arguments += converted(argument, Type::Value, typeOf(*function.parameters[index].variable)) + ", ";
    }
    lines.open(adapterHead(function) + " {");
    lines.line("return " + tables_.names.of(function) + "(" + arguments + "at);");
    lines.close();
}

} // namespace pozhil::resolved::writer

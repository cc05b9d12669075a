#include "generator/first/call_writer.h"

#include "generator/first/expression_writer.h"
#include "generator/first/names.h"
#include "language/builtins.h"

#include <algorithm>

namespace pozhil {
namespace {

using language::Builtin;
using language::BuiltinForm;

constexpr std::string_view INDEX_ASSIGNMENT_END = ", std::any($B), $place) = std::any($D))";

/// The structure or function that is called by name.
const std::string& calledName(const CallExpression& call) {
    return nodeCast<VariableAccess>(call.callee.get())->name;
}

const GetExpression& calledMember(const CallExpression& call) {
    return *nodeCast<GetExpression>(call.callee.get());
}

} // namespace

void CallWriter::write(const CallExpression& call) {
    const CallFact fact = emission_.facts.calls.next(&call);
    switch (fact.kind) {
    case CallKind::InputMethod: writeInputMethod(call, *fact.builtin); break;
    case CallKind::FunctionValue: writeFunctionValueCall(call); break;
    case CallKind::Guarded: writeGuarded(call); break;
    case CallKind::Append: writeAppend(call); break;
    case CallKind::TimeText: writeTimeText(calledMember(call)); break;
    case CallKind::UserFunction: writeUserFunctionCall(call); break;
    case CallKind::Construction: writeConstruction(call); break;

    case CallKind::IndexAssignment: writeIndexAssignment(call); break;
    case CallKind::Clock:
    case CallKind::ElementWrite:
    case CallKind::Builtin: writeArguments(fact.builtin->text, call); break;
    }
}

void CallWriter::writeInputMethod(const CallExpression& call, const Builtin& method) {
    writeArguments(method.text, call, nodeCast<VariableAccess>(calledMember(call).object.get())->name);
}

void CallWriter::writeInputProperty(const GetExpression& get) {
    const std::string& id = nodeCast<VariableAccess>(get.object.get())->name;
    fill(language::findMember(BuiltinForm::InputProperty, get.member.value)->text, get.line, id, {});
}

void CallWriter::writeTimePart(const GetExpression& get) {
    fill(language::findMember(BuiltinForm::TimePart, get.member.value)->text, get.line, "",
         [&](std::size_t, bool) { expressions_.write(get.object.get()); });
}

void CallWriter::writeTimeText(const GetExpression& get) {
    fill(language::findMember(BuiltinForm::TimeMethod, get.member.value)->text, get.line, "",
         [&](std::size_t, bool) { expressions_.write(get.object.get()); });
}

/// Writes \p text with the call's arguments in its holes.
void CallWriter::writeArguments(std::string_view text, const CallExpression& call, const std::string& id) {
    fill(text, call.line, id, [&](std::size_t index, bool isCastOperand) {
        const Expression* argument = call.arguments[index].get();
        isCastOperand ? expressions_.writeCastOperand(argument) : expressions_.write(argument);
    });
}

/// Writes \p text with the place, the line, \p id and the arguments in its holes.
void CallWriter::fill(std::string_view text, std::int32_t line, const std::string& id,
                      const WriteArgument& writeArgument) {
    emission_.out.pattern(text, [&](std::string_view hole) {
        if (const auto argument = language::argumentOf(hole)) {
            writeArgument(argument->index, argument->isCastOperand);
        } else if (hole == "place") {
            emission_.out << emission_.placeArguments(line);
        } else if (hole == "line") {
            emission_.out << line;
        } else if (hole == "id") {
            emission_.out << id;
        } else {
            return false;
        }
        return true;
    });
}

/// A call of a function value that stands there itself: the value is cast to its signature and called.
void CallWriter::writeFunctionValueCall(const CallExpression& call) {
    const auto* lambda = nodeCast<LambdaExpression>(call.callee.get());
    const std::size_t parameters = lambda != nullptr ? lambda->parameters.size() : call.arguments.size();
    emission_.out << "std::any_cast<std::function<std::any(" << anyTypes(parameters) << ")>>(";
    expressions_.writeCastOperand(call.callee.get());
    emission_.out << ")(";
    expressions_.writeAnyList(call.arguments);
    emission_.out << ")";
}

/// A call of whatever a member or variable holds  ->  a closure that tells a wrong kind or number of arguments apart
/// from other faults
void CallWriter::writeGuarded(const CallExpression& call) {
    emission_.out << "([&]() -> std::any { try { g_current_call_line = " << call.line
                  << "; return std::any_cast<std::function<std::any(" << anyTypes(call.arguments.size()) << ")>>(";
    expressions_.write(call.callee.get());
    emission_.out << ")(";
    expressions_.writeAnyList(call.arguments);
    emission_.out << "); } catch (const std::bad_any_cast&) { pozhil_runtime_error(\"பொழி-332\", "
                  << emission_.placeArguments(call.line) << "); return std::any(); } })()";
}

/// x.சேர்(v)  ->  a push_back into the list that the variable holds
void CallWriter::writeAppend(const CallExpression& call) {
    emission_.out << "([&]() -> std::any { try { std::any_cast<std::vector<std::any>&>(";
    expressions_.write(calledMember(call).object.get());
    emission_.out << ").push_back(";
    expressions_.writeAny(call.arguments.front().get());
    emission_.out << "); return std::any(); } catch (const std::bad_alloc&) { pozhil_runtime_error(\"பொழி-382\", "
                  << emission_.placeArguments(call.line) << "); return std::any(); } })()";
}

/// f(a)  ->  (g_current_call_line = 3, fn_f(std::any(a))); a மாற்று parameter takes the global variable itself
void CallWriter::writeUserFunctionCall(const CallExpression& call) {
    const std::string& name = calledName(call);
    const std::vector<Param>& params = emission_.functions.at(name);
    emission_.out << "(g_current_call_line = " << call.line << ", " << emittedFunctionName(name) << "(";
    for (std::size_t index = 0; index < call.arguments.size(); ++index) {
        const Expression* argument = call.arguments[index].get();
        emission_.out << (index == 0 ? "" : ", ");
        if (params[index].isMutable) {
            emission_.out << "global_vars.at(\"" << nodeCast<VariableAccess>(argument)->name << "\")";
        } else {
            expressions_.writeAny(argument);
        }
    }
    emission_.out << "))";
}

/// a[i][j] = v  ->  references all the way down, so that the write reaches the element in place
void CallWriter::writeIndexAssignment(const CallExpression& call) {
    emission_.out << "(fn_index_ref(";
    writeElementReference(call.arguments.front().get());
    writeArguments(INDEX_ASSIGNMENT_END, call);
}

void CallWriter::writeElementReference(const Expression* target) {
    const auto* element = nodeCast<IndexExpression>(target);
    if (element == nullptr) {
        expressions_.write(target);
        return;
    }
    emission_.out << "fn_index_ref(";
    writeElementReference(element->object.get());
    emission_.out << ", ";
    expressions_.writeAny(element->index.get());
    emission_.out << ", " << emission_.placeArguments(element->line) << ")";
}

/// T(a)  ->  a closure that makes, fills and constructs an object
///
/// Beyond a depth nobody reads, objects inside each other are indented no further, so that the text stays linear in the
/// source.
void CallWriter::writeConstruction(const CallExpression& call) {
    constexpr int DEEPEST_INDENTED = 12;
    const std::string& structure = calledName(call);
    emission_.out << "[&]() -> std::any {\n";
    {
        const CodeWriter::Indented deeper(emission_.out, constructions_ < DEEPEST_INDENTED ? 1 : 0);
        ++constructions_;
        emission_.out.indent();
        emission_.out << "auto temp_obj = std::make_shared<" << structure << ">();\n";
        writeMembers(structure, "temp_obj");
        if (const StructDefinitionStatement* owner = emission_.structures.constructorOwner(structure)) {
            writeConstructorCall(owner->name.value, "temp_obj", call.arguments);
        }
        emission_.out.indent();
        emission_.out << "return std::any(std::static_pointer_cast<_StructBase>(temp_obj));\n";
        --constructions_;
    }
    emission_.out.indent();
    emission_.out << "}()";
}

void CallWriter::writeMembers(const std::string& structure, const std::string& object) {
    const Lineage line = emission_.structures.lineage(structure);
    for (auto one = line.rbegin(); one != line.rend(); ++one) {
        for (const auto& field : (*one)->fields) {
            const CodeWriter::For origin(emission_.out, field.get());
            emission_.out.indent();
            emission_.out << object << "->properties[\"" << field->name << "\"] = ";
            expressions_.writeAny(field->initializer.get());
            emission_.out << ";\n";
        }
        for (const auto& method : (*one)->methods) {
            writeMethod((*one)->name.value, *method, object);
        }
    }
}

/// A method becomes a property that holds a closure over the object.
void CallWriter::writeMethod(const std::string& structure, const FunctionDefinitionStatement& method,
                             const std::string& object) {
    std::string declarations;
    std::string names;
    for (std::size_t index = 1; index < method.params.size(); ++index) {
        const std::string name = emittedVariableName(method.params[index].name.value);
        declarations += (index == 1 ? "std::any " : ", std::any ") + name;
        names += ", " + name;
    }
    const std::size_t parameters = method.params.empty() ? 0 : method.params.size() - 1;
    emission_.out.indent();
    emission_.out << object << "->properties[\"" << method.name.value << "\"] = std::any(std::function<std::any("
                  << anyTypes(parameters) << ")>([=](" << declarations << ") { return "
                  << emittedFunctionName(structure + "_" + method.name.value)
                  << "(std::static_pointer_cast<_StructBase>(" << object << ")" << names << "); }));\n";
}

void CallWriter::writeConstructorCall(const std::string& owner, const std::string& object,
                                      const ExpressionList& arguments) {
    emission_.out.indent();
    emission_.out << emittedFunctionName(owner + "_" + CONSTRUCTOR) << "(std::static_pointer_cast<_StructBase>("
                  << object << ")";
    for (const ExpressionPtr& argument : arguments) {
        emission_.out << ", ";
        expressions_.writeAny(argument.get());
    }
    emission_.out << ");\n";
}

} // namespace pozhil

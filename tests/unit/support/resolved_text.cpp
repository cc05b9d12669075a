#include "support/resolved_text.h"

#include "front_end/second_edition.h"
#include "support/resolved_writer.h"
#include "support/second_source.h"

#include <array>
#include <sstream>
#include <stdexcept>

namespace pozhil::test {
namespace {

const char* wordOf(resolved::Kind kind) {
    constexpr std::array<const char*, 11> WORDS = {"Any", "Whole",  "Decimal",  "Truth", "Text",   "List",
                                                   "Map", "Object", "Function", "Time",  "Nothing"};
    return WORDS.at(static_cast<std::size_t>(kind));
}

} // namespace

MeaningOf::MeaningOf(const std::string& text) {
    const SecondProgram program = parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
    if (!program.faults.empty()) {
        throw std::logic_error("not parsed: " + faultTexts(program.faults).front());
    }
    meaning = analyseSecondEdition(program);
}

std::string resolvedText(const std::string& text) {
    const MeaningOf found(text);
    if (!found.meaning.faults.empty()) {
        return "fault " + faultTexts(found.meaning.faults).front();
    }
    return ResolvedWriter().text(found.meaning.program);
}

std::string certainKinds(const std::string& text) {
    const MeaningOf found(text);
    if (!found.meaning.faults.empty()) {
        return "fault " + faultTexts(found.meaning.faults).front();
    }
    std::string kinds;
    const auto add = [&](const std::string& name, resolved::Kind kind) {
        if (kind != resolved::Kind::Any) {
            kinds += (kinds.empty() ? "" : ", ") + name + " " + wordOf(kind);
        }
    };
    for (const auto& variable : found.meaning.program.variables) {
        add(variable->name, variable->kind);
    }
    for (const auto& function : found.meaning.program.functions) {
        add(function->name + "()", function->result);
    }
    return kinds;
}

std::vector<std::string> meaningFaults(const std::string& text) {
    return faultTexts(MeaningOf(text).meaning.faults);
}

std::vector<std::string> partialMeaningFaults(const std::string& text) {
    const SecondProgram program = parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
    if (program.faults.empty()) {
        throw std::logic_error("nothing is wrong with its grammar");
    }
    return isReadThrough(program) ? faultTexts(analyseSecondEdition(program).faults) : std::vector<std::string>();
}

std::string ResolvedWriter::text(const resolved::Program& program) {
    std::string written;
    for (const auto& one : program.structures) {
        written += structure(*one) + "\n";
    }
    for (const auto& one : program.functions) {
        written += function(*one) + "\n";
    }
    for (const resolved::File& file : program.files) {
        written += "main: " + text(file.body.get()) + "\n";
    }
    return written;
}

std::string ResolvedWriter::text(const resolved::Expression* expression) {
    written_.clear();
    resolved::visitExpression(*this, expression);
    return written_;
}

std::string ResolvedWriter::text(const resolved::Statement* statement) {
    written_.clear();
    resolved::visitStatement(*this, statement);
    return written_;
}

std::string ResolvedWriter::text(const resolved::TargetPlace* target) {
    using Form = resolved::TargetPlace::Form;
    if (target == nullptr) {
        return "";
    }
    if (target->form == Form::Variable) {
        return name(target->variable, target->isChecked);
    }
    if (target->form == Form::Element) {
        return text(target->container.get()) + "[" + text(target->index.get()) + "]";
    }
    return text(target->object.get()) + "." + target->member;
}

void ResolvedWriter::visit(const resolved::DecimalLiteral& node) {
    std::ostringstream number;
    number << node.value << 'd';
    written_ = number.str();
}

void ResolvedWriter::visit(const resolved::MapLiteral& node) {
    std::string entries;
    for (const auto& [key, value] : node.entries) {
        entries += (entries.empty() ? "" : " ") + text(key.get()) + ":" + text(value.get());
    }
    write("map", entries);
}

void ResolvedWriter::visit(const resolved::FunctionValue& node) {
    written_ = "'" + node.function->name + captures(*node.function);
}

void ResolvedWriter::visit(const resolved::Unary& node) {
    constexpr std::array<const char*, 4> WORDS = {"not", "minus", "plus", "bit-not"};
    write(WORDS.at(static_cast<std::size_t>(node.op)), text(node.operand.get()));
}

void ResolvedWriter::visit(const resolved::Block& node) {
    std::string statements;
    for (const resolved::StatementPtr& one : node.statements) {
        statements += (statements.empty() ? "" : " ") + text(one.get());
    }
    written_ = "{" + statements + "}";
}

void ResolvedWriter::visit(const resolved::FunctionDefinition& node) {
    write("define", name(node.variable, false), "'" + node.function->name + captures(*node.function));
}

void ResolvedWriter::visit(const resolved::Switch& node) {
    std::string cases;
    for (const resolved::Case& one : node.cases) {
        cases += (cases.empty() ? "" : " ") + text(one.value.get()) + "=>" + block(one.body);
    }
    write("switch", text(node.subject.get()), cases, block(node.otherwise));
}

std::string ResolvedWriter::word(resolved::BinaryOperator op) {
    constexpr std::array<const char*, 17> WORDS = {"add",        "subtract",      "multiply", "divide", "remainder",
                                                   "join",       "equal",         "unequal",  "less",   "less-equal",
                                                   "greater",    "greater-equal", "bit-and",  "bit-or", "bit-xor",
                                                   "shift-left", "shift-right"};
    return WORDS.at(static_cast<std::size_t>(op));
}

std::string ResolvedWriter::name(const resolved::Variable* variable, bool isChecked) {
    if (variable == nullptr) {
        return "unknown";
    }
    const std::string prefix = variable->owner == nullptr ? "::" : variable->isShared ? "^" : "";
    return prefix + variable->name + (isChecked ? "?" : "");
}

std::string ResolvedWriter::captures(const resolved::Function& function) {
    std::string names;
    for (const resolved::Variable* variable : function.captures) {
        names += (names.empty() ? "" : " ") + variable->name;
    }
    return names.empty() ? "" : "[" + names + "]";
}

std::string ResolvedWriter::function(const resolved::Function& one) {
    std::string parameters;
    for (const resolved::Parameter& parameter : one.parameters) {
        parameters += (parameters.empty() ? "" : ", ") + std::string(parameter.isMutable ? "&" : "") +
                      name(parameter.variable, false);
    }
    const std::string structure = one.structure == nullptr ? "" : one.structure->name + ".";
    return structure + one.name + captures(one) + "(" + parameters + "): " + text(one.body.get());
}

std::string ResolvedWriter::structure(const resolved::Structure& one) {
    std::string members;
    for (const resolved::Field& field : one.fields) {
        members += std::string(field.isPrivate ? " -" : " ") + field.name;
        members += field.initializer == nullptr ? "" : "=" + text(field.initializer.get());
    }
    for (const resolved::Function* method : one.methods) {
        members += std::string(method->isPrivate ? " -" : " ") + method->name + "()";
    }
    const std::string parent = one.parent == nullptr ? "" : " < " + one.parent->name;
    return std::string(one.isAbstract ? "abstract " : "structure ") + one.name + parent + ":" + members;
}

std::string ResolvedWriter::argument(const resolved::Argument& one) {
    return one.target == nullptr ? text(one.value.get()) : "&" + text(one.target.get());
}

std::string ResolvedWriter::listed(const resolved::ExpressionList& expressions) {
    std::string written;
    for (const resolved::ExpressionPtr& one : expressions) {
        written += (written.empty() ? "" : " ") + text(one.get());
    }
    return written;
}

std::string ResolvedWriter::listed(const resolved::Arguments& arguments) {
    std::string written;
    for (const resolved::Argument& one : arguments) {
        written += (written.empty() ? "" : " ") + argument(one);
    }
    return written;
}

} // namespace pozhil::test

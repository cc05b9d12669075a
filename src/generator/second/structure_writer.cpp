#include "generator/second/structure_writer.h"

#include "generator/second/call_writer.h"
#include "generator/second/function_writer.h"
#include "generator/second/literals.h"

namespace pozhil::resolved::writer {
namespace {

std::string truthText(bool value) {
    return value ? "true" : "false";
}

/// "static const FieldInfo fields_நபர்[] = {…};"; nothing if there are no rows, which C++ doesn't take.
void writeTable(const std::string& type, const std::string& name, const std::vector<std::string>& rows,
                EmittedLines& lines) {
    if (rows.empty()) {
        return;
    }
    lines.open("static const " + type + " " + name + "[] = {");
    for (const std::string& row : rows) {
        lines.line(row + ",");
    }
    lines.close(";");
}

} // namespace

void StructureWriter::declare(const Structure& structure, EmittedLines& lines) {
    lines.setPlace(structure.place);
    lines.line(lineComment(tables_.places.description(structure.place)));
    lines.line("static void " + tables_.names.of(structure, "initialize_") + "(Value& self);");
    lines.line(constructionHead(structure) + ";");
    declareMembers(structure, lines);
    lines.gap();
}

void StructureWriter::declareMembers(const Structure& structure, EmittedLines& lines) {
    std::vector<std::string> fields;
    for (const Field& field : structure.fields) {
        fields.push_back("{" + tables_.members.of(field.name) + ", " + truthText(field.isPrivate) + "}");
    }
    std::vector<std::string> methods;
    for (const Function* method : structure.methods) {
        if (method->body != nullptr) {
            methods.push_back("{" + tables_.members.of(method->name) + ", &" + tables_.names.of(*method, "info_") +
                              ", " + truthText(method->isPrivate) + "}");
        }
    }
    const std::string fieldTable = tables_.names.of(structure, "fields_");
    const std::string methodTable = tables_.names.of(structure, "methods_");
    writeTable("FieldInfo", fieldTable, fields, lines);
    writeTable("MethodInfo", methodTable, methods, lines);
    const std::string parent = structure.parent == nullptr ? "nullptr" : "&" + tables_.names.of(*structure.parent);
    lines.line("static Structure " + tables_.names.of(structure) + " = {" + textLiteral(structure.name) + ", " +
               parent + ", " + truthText(structure.isAbstract) + ", " + (fields.empty() ? "nullptr" : fieldTable) +
               ", " + std::to_string(fields.size()) + ", " + (methods.empty() ? "nullptr" : methodTable) + ", " +
               std::to_string(methods.size()) + ", " + tables_.names.of(structure, "initialize_") + ", nullptr};");
}

void StructureWriter::define(const Structure& structure, EmittedLines& lines) {
    lines.setPlace(structure.place);
    defineInitializer(structure, lines);
    defineConstruction(structure, lines);
    lines.gap();
}

void StructureWriter::defineInitializer(const Structure& structure, EmittedLines& lines) {
    const std::string& self = tables_.names.of(structure.self);
    lines.open("static void " + tables_.names.of(structure, "initialize_") + "(Value& " + self + ") {");
    CallScope scope;
    ExpressionWriter expressions(tables_, scope);
    for (const Field& field : structure.fields) {
        if (field.initializer != nullptr) {
            lines.setPlace(field.place);
            lines.line(lineComment(tables_.places.description(field.place)));
            lines.line("field(" + self + ", " + expressions.memberArguments(field.name, field.place, &structure) +
                       ") = " + expressions.write(*field.initializer) + ";");
        }
    }
    if (structure.fields.empty()) {
        lines.line("static_cast<void>(" + self + ");");
    }
    lines.close();
}

StructureWriter::Construction StructureWriter::constructionOf(const Structure& structure) const {
    Construction construction;
    const Function* constructor = constructorOf(structure);
    for (std::size_t index = 1; constructor != nullptr && index < constructor->parameters.size(); ++index) {
        const Parameter& parameter = constructor->parameters[index];
        const std::string& name = tables_.names.of(*parameter.variable);
        construction.parameters +=
            std::string(nameOf(typeOf(*parameter.variable))) + (parameter.isMutable ? "& " : " ") + name + ", ";
        construction.arguments += name + ", ";
    }
    return construction;
}

std::string StructureWriter::constructionHead(const Structure& structure) const {
    return "static Value " + tables_.names.of(structure, "new_") + "(" + constructionOf(structure).parameters +
           "Place at)";
}

/// நபர்(a)  ->  new_நபர்(a, place)
void StructureWriter::defineConstruction(const Structure& structure, EmittedLines& lines) {
    const Function* constructor = constructorOf(structure);
    lines.open(constructionHead(structure) + " {");
    lines.line("Value self = create(" + tables_.names.of(structure) + ", at);");
    if (constructor != nullptr && constructor->body != nullptr) {
        lines.line(tables_.names.of(*constructor) + "(self, " + constructionOf(structure).arguments + "at);");
    }
    lines.line("return self;");
    lines.close();
}

} // namespace pozhil::resolved::writer

/// Functions and structures.

#include "generator/first/names.h"
#include "generator/first/statement_writer.h"

#include <algorithm>

namespace pozhil {

void StatementWriter::visit(const FunctionDefinitionStatement& node) {
    if (functions_ == 0) {
        writeFunction(node);
    } else {
        writeNestedFunction(node);
    }
}

/// செயல் f(a, மாற்று b):  ->  std::any fn_f(std::any a, std::any& b) { ... }
void StatementWriter::writeFunction(const FunctionDefinitionStatement& node) {
    const bool isMethod = !structure_.empty();
    const std::string stem = isMethod ? structure_ + "_" + node.name.value : node.name.value;
    out_ << "std::any " << emittedFunctionName(stem) << "(";
    for (std::size_t index = 0; index < node.params.size(); ++index) {
        const Param& param = node.params[index];
        const char* type = param.isMutable ? "std::any& " : "std::any ";
        out_ << (index == 0 ? "" : ", ") << (isMethod && index == 0 ? "std::shared_ptr<_StructBase> " : type)
             << emittedVariableName(param.name.value);
    }
    out_ << ") {\n";
    writeFunctionBody(node, "return std::any(); // Default return\n");
    out_.indent();
    out_ << "}\n\n";
}

/// A function in a function  ->  a native variable that holds a closure over copies of the outer ones
void StatementWriter::writeNestedFunction(const FunctionDefinitionStatement& node) {
    out_.indent();
    out_ << "std::any " << emittedVariableName(node.name.value) << " = std::any(std::function<std::any("
         << anyTypes(node.params.size()) << ")>([=](";
    for (std::size_t index = 0; index < node.params.size(); ++index) {
        out_ << (index == 0 ? "" : ", ") << "std::any " << emittedVariableName(node.params[index].name.value);
    }
    out_ << ") mutable -> std::any {\n";
    writeFunctionBody(node, "return std::any();\n");
    out_.block("}));\n");
}

/// The guard against endless recursion, the statements, and the value of a function that ends without திரும்பு.
void StatementWriter::writeFunctionBody(const FunctionDefinitionStatement& node, std::string_view fallThrough) {
    const CodeWriter::Indented deeper(out_);
    out_.indent();
    out_ << "CallTracker _tracker(\"" << emission_.path << "\");\n";
    ++functions_;
    visit(*node.body);
    --functions_;
    out_ << "\n";
    out_.indent();
    out_ << fallThrough;
}

/// கட்டமைப்பு T(P): ...  ->  struct T : public P { names as comments }; and one function a method
///
/// The struct has no data members of its own: fields and methods live in the property map of the common base.
void StatementWriter::writeStructure(const StructDefinitionStatement& structure) {
    const CodeWriter::For origin(out_, &structure);
    const std::string& name = structure.name.value;
    out_ << "struct " << name << " : public " << emission_.structures.baseOf(structure) << " {\n";
    writeMemberNames(structure, true);
    writeMemberNames(structure, false);
    out_ << "};\nusing T_" << name << " = std::shared_ptr<" << name << ">;\n";
    structure_ = name;
    for (const auto& method : structure.methods) {
        write(method.get());
    }
    structure_.clear();
}

/// The members of one visibility, so that a reader of the text finds them.
void StatementWriter::writeMemberNames(const StructDefinitionStatement& structure, bool isPrivate) {
    const auto hasVisibility = [&](const auto& member) { return member->isPrivate == isPrivate; };
    if (std::none_of(structure.fields.begin(), structure.fields.end(), hasVisibility) &&
        std::none_of(structure.methods.begin(), structure.methods.end(), hasVisibility)) {
        return;
    }
    out_ << (isPrivate ? "private:\n" : "public:\n");
    const auto writeName = [&](const std::string& name) {
        out_.indent();
        out_ << "// " << name << "\n";
    };
    for (const auto& field : structure.fields) {
        if (hasVisibility(field)) {
            writeName(field->name);
        }
    }
    for (const auto& method : structure.methods) {
        if (hasVisibility(method)) {
            writeName(method->name.value + "()");
        }
    }
}

} // namespace pozhil

#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <utility>

namespace pozhil {
void Generator::visitFunctionDefinitionStatement(const FunctionDefinitionStatement* node) {
    if (currentFunction_.empty()) {
        emitFunction(node);
    } else {
        emitNestedFunction(node);
    }
}

/// செயல் f(a, மாற்று b):  ->  std::any fn_f(std::any a, std::any& b) { ... }
void Generator::emitFunction(const FunctionDefinitionStatement* node) {
    const bool isMethod = !currentStruct_.empty();
    const std::string stem = isMethod ? currentStruct_ + "_" + node->name.value : node->name.value;
    currentFunction_ = node->name.value;
    dropLocalsBehind(0);
    out_ << "std::any " << emittedFunctionName(stem) << "(";
    for (std::size_t index = 0; index < node->params.size(); ++index) {
        const Param& param = node->params[index];
        setLocal(param.name.value);
        const char* type = param.isMutable ? "std::any& " : "std::any ";
        out_ << (index == 0 ? "" : ", ") << (isMethod && index == 0 ? "std::shared_ptr<_StructBase> " : type)
             << param.name.value;
    }
    out_ << ") {\n";
    emitFunctionBody(node, "return std::any(); // Default return\n");
    out_.indent();
    out_ << "}\n\n";
    currentFunction_.clear();
    dropLocalsBehind(0);
}

/// A function in a function  ->  a native variable that holds a closure over copies of the outer ones
void Generator::emitNestedFunction(const FunctionDefinitionStatement* node) {
    const std::string& name = node->name.value;
    out_.indent();
    out_ << "std::any " << name << " = std::any(std::function<std::any(" << anyTypes(node->params.size()) << ")>([=](";
    for (std::size_t index = 0; index < node->params.size(); ++index) {
        out_ << (index == 0 ? "" : ", ") << "std::any " << node->params[index].name.value;
    }
    out_ << ") mutable -> std::any {\n";
    std::string outerFunction = std::exchange(currentFunction_, name);
    const std::size_t outerLocals = localsLog_.size();
    for (const Param& param : node->params) {
        setLocal(param.name.value);
    }
    emitFunctionBody(node, "return std::any();\n");
    out_.indent();
    out_ << "}));\n";
    currentFunction_ = std::move(outerFunction);
    dropLocalsBehind(outerLocals);
    setLocal(name);
}

/// The guard against endless recursion, the statements, and the value of a function that ends without திரும்பு.
void Generator::emitFunctionBody(const FunctionDefinitionStatement* node, std::string_view fallThrough) {
    const CodeWriter::Indented deeper(out_);
    out_.indent();
    out_ << "CallTracker _tracker(\"" << fileName_ << "\");\n";
    visitBlockStatement(node->body.get());
    out_ << "\n";
    out_.indent();
    out_ << fallThrough;
}

} // namespace pozhil

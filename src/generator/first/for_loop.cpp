#include "generator/first/generator.h"

namespace pozhil {
namespace {

/// The body of a container loop is emitted twice, so each one inside another doubles the text.
constexpr int MAX_CONTAINER_LOOP_DEPTH = 12;

/// The call if \p iterable is வரம்பு( ... ), null otherwise.
const CallExpression* asRange(const Expression* iterable) {
    const auto* call = nodeCast<CallExpression>(iterable);
    const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == "வரம்பு" ? call : nullptr;
}

} // namespace

/// The loop variable is a native variable, at top level too.
void Generator::visitForStatement(const ForStatement* node) {
    if (const CallExpression* range = asRange(node->iterable.get())) {
        emitRangeLoop(node, *range);
    } else {
        emitContainerLoop(node);
    }
}

/// ஒவ்வொன்றாக v இல் வரம்பு(a, b):  ->  for (long long v = fn_index(a); v < fn_index(b); ++v) { ... }
void Generator::emitRangeLoop(const ForStatement* node, const CallExpression& range) {
    const ExpressionList& arguments = range.arguments;
    if (arguments.empty() || arguments.size() > 2) {
        placelessFault("பொழி-331", range.line, "'வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்.");
    }
    const std::string& variable = node->variable.value;
    out_.indent();
    out_ << "for (long long " << variable << " = ";
    if (arguments.size() == 1) {
        out_ << "0";
    } else {
        out_ << "fn_index(";
        visitExpression(arguments.front().get());
        out_ << ")";
    }
    out_ << "; " << variable << " < fn_index(";
    visitExpression(arguments.back().get());
    out_ << "); ++" << variable << ") {\n";
    {
        const CodeWriter::Indented deeper(out_);
        emitLoopBody(node);
    }
    out_.indent();
    out_ << "}\n";
}

/// ஒவ்வொன்றாக v இல் x:  ->  a loop over the elements of a list and one over the keys of a map, chosen at run time
void Generator::emitContainerLoop(const ForStatement* node) {
    if (++containerLoopDepth_ > MAX_CONTAINER_LOOP_DEPTH) {
        பிழை("பொழி-291", node->variable.line, "");
    }
    out_.indent();
    out_ << "{\n";
    {
        const CodeWriter::Indented deeper(out_);
        emitLoops(node);
    }
    out_.indent();
    out_ << "}\n";
    --containerLoopDepth_;
}

void Generator::emitLoops(const ForStatement* node) {
    const std::string& variable = node->variable.value;
    const auto emitLoop = [&](std::string_view element, std::string_view container, const std::string& value) {
        const CodeWriter::Indented deeper(out_);
        out_.indent();
        out_ << "for (const auto& " << element << " : std::any_cast<const " << container << "&>(_iterable)) {\n";
        {
            const CodeWriter::Indented inLoop(out_);
            out_.indent();
            out_ << "std::any " << variable << " = " << value << ";\n";
            emitLoopBody(node);
        }
        out_.indent();
        out_ << "}\n";
    };
    out_.indent();
    out_ << "auto& _iterable = ";
    visitExpression(node->iterable.get());
    out_ << ";\n";
    out_.indent();
    out_ << "if (_iterable.type() == typeid(std::vector<std::any>)) {\n";
    emitLoop(variable + "_any", "std::vector<std::any>", variable + "_any");
    out_.indent();
    out_ << "} else if (_iterable.type() == typeid(std::map<std::string, std::any>)) {\n";
    emitLoop("pair", "std::map<std::string, std::any>", "std::any(pair.first)");
    out_.indent();
    out_ << "} else {\n";
    out_.indent();
    out_ << "    pozhil_runtime_error(\"பொழி-313\", \"" << fileName_ << "\", " << node->variable.line << ");\n";
    out_.indent();
    out_ << "}\n";
}

/// The body, with the loop variable as a native name.
void Generator::emitLoopBody(const ForStatement* node) {
    const std::string& variable = node->variable.value;
    const bool isNew = localVars_.count(variable) == 0;
    setLocal(variable);
    visitBlockStatement(node->body.get());
    if (isNew) {
        localVars_.erase(variable);
        ++typeEpoch_;
    }
}

} // namespace pozhil

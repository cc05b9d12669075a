#include "generator/first/generator.h"
#include "generator/first/names.h"
#include "language/builtins.h"

#include <string_view>

namespace pozhil {
namespace {

using language::BuiltinForm;
using language::findMember;

} // namespace

/// Decides what a call is by what stands before its bracket; the first match wins.
void Generator::visitCallExpression(const CallExpression* node) {
    const Expression* callee = node->callee.get();
    if (emitInputMethod(node)) {
        return;
    }
    if (const auto* lambda = nodeCast<LambdaExpression>(callee)) {
        emitFunctionValueCall(node, lambda->parameters.size());
    } else if (nodeCast<GroupingExpression>(callee) != nullptr) {
        emitFunctionValueCall(node, node->arguments.size());
    } else if (const auto* method = nodeCast<GetExpression>(callee)) {
        emitMethodCall(node, *method);
    } else if (const auto* name = nodeCast<VariableAccess>(callee)) {
        emitNamedCall(node, name->name);
    } else {
        placelessFault("பொழி-399", node->line, "Unknown call expression");
    }
}

/// id.method(a): a method of the input widget with that identifier, whatever a variable of that name holds
bool Generator::emitInputMethod(const CallExpression* node) {
    const auto* get = nodeCast<GetExpression>(node->callee.get());
    const auto* widget = get == nullptr ? nullptr : nodeCast<VariableAccess>(get->object.get());
    if (widget == nullptr) {
        return false;
    }
    const language::Builtin* method = findMember(BuiltinForm::InputMethod, get->member.value);
    if (method == nullptr) {
        return false;
    }
    if (static_cast<int>(node->arguments.size()) < method->argumentCount) {
        பிழை("பொழி-331", node->line, std::string(method->wrongCountDetail));
    }
    emitPattern(method->text, node, widget->name);
    return true;
}

/// A call of a function value that stands there itself: the value is cast to its signature and called.
void Generator::emitFunctionValueCall(const CallExpression* node, std::size_t parameterCount) {
    out_ << "std::any_cast<std::function<std::any(" << anyTypes(parameterCount) << ")>>(";
    emitCastOperand(node->callee.get());
    out_ << ")(";
    emitAnyList(node->arguments);
    out_ << ")";
}

void Generator::emitMethodCall(const CallExpression* node, const GetExpression& callee) {
    if (inferExpressionType(callee.object.get()) == VarType::Object) {
        emitGuardedCall(node);
    } else if (findMember(BuiltinForm::ListMethod, callee.member.value) != nullptr) {
        emitAppend(node, callee);
    } else {
        emitTimeMethod(node, callee);
    }
}

/// A call of whatever a member or variable holds  ->  a closure that tells a wrong kind or number of arguments apart
/// from other faults
void Generator::emitGuardedCall(const CallExpression* node) {
    out_ << "([&]() -> std::any { try { g_current_call_line = " << node->line
         << "; return std::any_cast<std::function<std::any(" << anyTypes(node->arguments.size()) << ")>>(";
    visitExpression(node->callee.get());
    out_ << ")(";
    emitAnyList(node->arguments);
    out_ << "); } catch (const std::bad_any_cast&) { pozhil_runtime_error(\"பொழி-332\", \"" << fileName_ << "\", "
         << node->line << "); return std::any(); } })()";
}

/// நேரம்.வினாடிகள்(), and the text forms of a time value
void Generator::emitTimeMethod(const CallExpression* node, const GetExpression& callee) {
    const std::string& method = callee.member.value;
    const auto* object = nodeCast<VariableAccess>(callee.object.get());
    const bool isClock = object != nullptr && object->name == "நேரம்";
    if (const auto* clock = isClock ? findMember(BuiltinForm::Clock, method) : nullptr) {
        if (!node->arguments.empty()) {
            placelessFault("பொழி-331", node->line, std::string(clock->wrongCountDetail));
        }
        emitMemberText(clock->text, callee);
    } else if (const auto* form = findMember(BuiltinForm::TimeMethod, method)) {
        emitMemberText(form->text, callee);
    } else {
        placelessFault("பொழி-332", node->line, "'" + method + "' என்பது ஒரு function இல்லை.");
    }
}

/// x.சேர்(v)  ->  a push_back into the list that the variable holds
void Generator::emitAppend(const CallExpression* node, const GetExpression& callee) {
    if (node->arguments.size() != 1) {
        const auto* row = findMember(BuiltinForm::ListMethod, callee.member.value);
        பிழை("பொழி-331", node->line, std::string(row->wrongCountDetail));
    }
    out_ << "([&]() -> std::any { try { std::any_cast<std::vector<std::any>&>(";
    visitExpression(callee.object.get());
    out_ << ").push_back(";
    emitAny(node->arguments.front().get());
    out_ << "); return std::any(); } catch (const std::bad_alloc&) { pozhil_runtime_error(\"பொழி-382\", \"" << fileName_
         << "\", " << node->line << "); return std::any(); } })()";
}

/// A call by name: a user's function, a structure, a built-in, or what a variable holds, in this order.
void Generator::emitNamedCall(const CallExpression* node, const std::string& name) {
    const auto function = functionParams_.find(name);
    if (function != functionParams_.end()) {
        emitUserFunctionCall(node, name, function->second);
    } else if (knownStructs_.count(name) != 0) {
        emitConstruction(node, name);
    } else if (emitBuiltinCall(node, name)) {
        return;
    } else if (localVars_.count(name) != 0 || varTypes_.count(name) != 0) {
        emitGuardedCall(node);
    } else {
        placelessFault("பொழி-332", node->line, "'" + name + "' என்பது ஒரு function இல்லை.");
    }
}

/// f(a)  ->  (g_current_call_line = 3, fn_f(std::any(a))); a மாற்று parameter takes the global variable itself
void Generator::emitUserFunctionCall(const CallExpression* node, const std::string& name,
                                     const std::vector<Param>& params) {
    const ExpressionList& arguments = node->arguments;
    if (arguments.size() != params.size()) {
        பிழை("பொழி-331", node->line,
             "'" + name + "' " + std::to_string(params.size()) + " உள்ளீடுகளை ஏற்கும், ஆனால் " +
                 std::to_string(arguments.size()) + " கொடுக்கப்பட்டுள்ளது.");
    }
    out_ << "(g_current_call_line = " << node->line << ", " << emittedFunctionName(name) << "(";
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        out_ << (index == 0 ? "" : ", ");
        if (!params[index].isMutable) {
            emitAny(arguments[index].get());
            continue;
        }
        const auto* variable = nodeCast<VariableAccess>(arguments[index].get());
        if (variable == nullptr) {
            பிழை("பொழி-331", node->line, "'மாற்று' parameter-க்கு ஒரு மாறி (Variable)-ஐ மட்டும் தான் அனுப்ப முடியும்.");
        }
        out_ << "global_vars.at(\"" << variable->name << "\")";
    }
    out_ << "))";
}

} // namespace pozhil

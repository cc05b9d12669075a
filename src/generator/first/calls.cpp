#include "generator/first/builtins.h"
#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <string_view>
#include <unordered_map>

namespace pozhil {
namespace {

/// Methods of an input widget; $id is the widget, $A the first argument.
const std::unordered_map<std::string_view, std::string_view>& inputMethods() {
    static const std::unordered_map<std::string_view, std::string_view> methods = {
        {"பிழைசெய்தி", R"(g_inputErrors["$id"] = fn_any_to_string($A))"},
        {"பிழை_அழி", R"(g_inputErrors.erase("$id"))"},
        {"கொண்டுள்ளது", R"(std::any(g_inputValues["$id"].find(fn_any_to_string($A)) != std::string::npos))"},
        {"தொடக்கம்", R"(std::any(g_inputValues["$id"].find(fn_any_to_string($A)) == 0))"},
        {"முடிவு",
         R"(([&]() -> std::any { std::string s = g_inputValues["$id"]; std::string sub = fn_any_to_string($A); )"
         R"(if (s.length() >= sub.length()) { )"
         R"(return std::any(0 == s.compare(s.length() - sub.length(), sub.length(), sub)); } )"
         R"(return std::any(false); })())"},
    };
    return methods;
}

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
    const auto method = inputMethods().find(get->member.value);
    if (method == inputMethods().end()) {
        return false;
    }
    if (node->arguments.empty() && method->second.find("$A") != std::string_view::npos) {
        பிழை("பொழி-331", node->line, "'." + get->member.value + "()'");
    }
    emitPattern(method->second, node, widget->name);
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
    } else if (callee.member.value == "சேர்") {
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
    if (object != nullptr && object->name == "நேரம்" && method == "வினாடிகள்") {
        if (!node->arguments.empty()) {
            placelessFault("பொழி-331", node->line, "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது.");
        }
        out_ << "std::any(std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count())";
    } else if (method == "தேதி" || method == "நேரம்" || method == "முழுவதும்") {
        // One parenthesis short: the form is refused by the target compiler, the function form works.
        out_ << "std::any(fn_" << method << "(std::any_cast<std::tm*>(";
        visitExpression(callee.object.get());
        out_ << "))";
    } else {
        placelessFault("பொழி-332", node->line, "'" + method + "' என்பது ஒரு function இல்லை.");
    }
}

/// x.சேர்(v)  ->  a push_back into the list that the variable holds
void Generator::emitAppend(const CallExpression* node, const GetExpression& callee) {
    if (node->arguments.size() != 1) {
        பிழை("பொழி-331", node->line, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்.");
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

#include "analysis/call_analysis.h"

#include "analysis/call_hints.h"
#include "analysis/expression_analysis.h"
#include "language/builtins.h"

namespace pozhil {
namespace {

constexpr std::size_t ELEMENT_WRITE_ARGUMENTS = 3;
/// What the parser calls to write an element.
constexpr std::string_view INDEX_ASSIGNMENT = "_set_index_internal";
constexpr std::string_view ELEMENT_WRITE = "வை";

std::string expectedCount(const std::string& name, std::size_t expected, std::size_t given) {
    return "'" + name + "' " + std::to_string(expected) + " உள்ளீடுகளை ஏற்கும், ஆனால் " + std::to_string(given) +
           " கொடுக்கப்பட்டுள்ளது.";
}

bool isPlace(const Expression* expression) {
    return nodeCast<VariableAccess>(expression) != nullptr || nodeCast<IndexExpression>(expression) != nullptr ||
           nodeCast<GetExpression>(expression) != nullptr;
}

} // namespace

void CallAnalysis::note(const CallExpression& call, CallKind kind, const language::Builtin* builtin) {
    walk_.facts.calls.add(&call, {kind, builtin});
}

void CallAnalysis::analyse(const CallExpression& call) {
    if (analysedInputMethod(call)) {
        return;
    }
    const Expression* callee = call.callee.get();
    if (nodeCast<LambdaExpression>(callee) != nullptr || nodeCast<GroupingExpression>(callee) != nullptr) {
        analyseFunctionValue(call);
    } else if (const auto* method = nodeCast<GetExpression>(callee)) {
        analyseMethod(call, *method);
    } else if (const auto* name = nodeCast<VariableAccess>(callee)) {
        analyseNamed(call, name->name);
    } else {
        walk_.faults.raisePlaceless("பொழி-399", &call, "Unknown call expression",
                                    "அடைப்புக்குறிக்கு முன்னால செயலோட பெயர் மட்டும் தான் வரலாம்; இங்கே இருக்கிறதை ஒரு "
                                    "மாறியில வச்சு, அந்த மாறியோட பெயரால கூப்பிடு மச்சி!");
    }
}

/// id.method(a): a method of the input widget with that identifier, whatever a variable of that name holds.
bool CallAnalysis::analysedInputMethod(const CallExpression& call) {
    const auto* get = nodeCast<GetExpression>(call.callee.get());
    if (get == nullptr || nodeCast<VariableAccess>(get->object.get()) == nullptr) {
        return false;
    }
    const language::Builtin* method = language::findMember(language::BuiltinForm::InputMethod, get->member.value);
    if (method == nullptr) {
        return false;
    }
    if (call.arguments.empty() && method->text.find("$A") != std::string_view::npos) {
        walk_.faults.raise("பொழி-331", call, "'." + get->member.value + "()'");
    }
    note(call, CallKind::InputMethod, method);
    analyseArguments(call, method->text);
    return true;
}

/// The arguments that \p text has holes for, in the order of its holes.
void CallAnalysis::analyseArguments(const CallExpression& call, std::string_view text) {
    constexpr std::string_view LETTERS = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (std::size_t hole = text.find('$'); hole != std::string_view::npos; hole = text.find('$', hole + 1)) {
        const std::string_view name = text.substr(hole + 1);
        if (const auto argument = language::argumentOf(name.substr(0, name.find_first_not_of(LETTERS)))) {
            expressions_.analyse(call.arguments[argument->index].get());
        }
    }
}

void CallAnalysis::analyseFunctionValue(const CallExpression& call) {
    note(call, CallKind::FunctionValue);
    expressions_.analyse(call.callee.get());
    expressions_.analyse(call.arguments);
}

void CallAnalysis::analyseMethod(const CallExpression& call, const GetExpression& callee) {
    if (walk_.kinds.of(callee.object.get()) == VarType::Object) {
        note(call, CallKind::Guarded);
        expressions_.analyse(&callee);
        expressions_.analyse(call.arguments);
    } else if (callee.member.value == "சேர்") {
        analyseAppend(call, callee);
    } else {
        analyseTimeMethod(call, callee);
    }
}

void CallAnalysis::analyseAppend(const CallExpression& call, const GetExpression& callee) {
    if (call.arguments.size() != 1) {
        walk_.faults.raise("பொழி-331", call, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்.");
    }
    note(call, CallKind::Append);
    expressions_.analyse(callee.object.get());
    expressions_.analyse(call.arguments);
}

/// நேரம்.வினாடிகள்(), and the text forms of a time value.
void CallAnalysis::analyseTimeMethod(const CallExpression& call, const GetExpression& callee) {
    const std::string& method = callee.member.value;
    const auto* object = nodeCast<VariableAccess>(callee.object.get());
    if (object != nullptr && object->name == "நேரம்" && method == "வினாடிகள்") {
        if (!call.arguments.empty()) {
            walk_.faults.raisePlaceless("பொழி-331", &call, "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது.");
        }
        note(call, CallKind::Clock, language::findMember(language::BuiltinForm::Clock, method));
    } else if (language::findMember(language::BuiltinForm::TimeMethod, method) != nullptr) {
        note(call, CallKind::TimeText);
        expressions_.analyse(callee.object.get());
    } else {
        const CallHint hint = methodHint(walk_, method);
        walk_.faults.raisePlaceless("பொழி-332", &call, "'" + method + "' என்பது ஒரு function இல்லை.", hint.text,
                                    hint.mend);
    }
}

/// A call by name: a user's function, a structure, a built-in, or what a variable holds, in this order.
void CallAnalysis::analyseNamed(const CallExpression& call, const std::string& name) {
    const auto function = walk_.functions.find(name);
    if (function != walk_.functions.end()) {
        analyseUserFunction(call, name, function->second);
    } else if (walk_.structures.isDefined(name)) {
        analyseConstruction(call, name);
    } else if (analysedBuiltin(call, name)) {
        return;
    } else if (walk_.scope.isNative(name) || walk_.scope.isAssigned(name)) {
        note(call, CallKind::Guarded);
        expressions_.analyse(call.callee.get());
        expressions_.analyse(call.arguments);
    } else {
        const CallHint hint = callHint(walk_, name);
        walk_.faults.raisePlaceless("பொழி-332", &call, "'" + name + "' என்பது ஒரு function இல்லை.", hint.text, hint.mend);
    }
}

/// A மாற்று parameter takes a variable itself.
void CallAnalysis::analyseUserFunction(const CallExpression& call, const std::string& name,
                                       const std::vector<Param>& params) {
    const ExpressionList& arguments = call.arguments;
    if (arguments.size() != params.size()) {
        walk_.faults.raise("பொழி-331", call, expectedCount(name, params.size(), arguments.size()));
    }
    note(call, CallKind::UserFunction);
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const Expression* argument = arguments[index].get();
        if (!params[index].isMutable) {
            expressions_.analyse(argument);
        } else if (nodeCast<VariableAccess>(argument) == nullptr) {
            walk_.faults.raise("பொழி-331", call,
                               "'மாற்று' parameter-க்கு ஒரு மாறி (Variable)-ஐ மட்டும் தான் அனுப்ப முடியும்.");
        }
    }
}

void CallAnalysis::analyseConstruction(const CallExpression& call, const std::string& structure) {
    checkConstruction(structure, call.line);
    note(call, CallKind::Construction);
    analyseFields(structure);
    analyseConstructor(walk_.structures.constructorOwner(structure), structure, call.arguments, call.line);
}

/// Refuses an object whose fields lead back to an object of the same structure, which would never end, and one whose
/// fields make so many objects that no machine could hold the text.
void CallAnalysis::checkConstruction(const std::string& structure, std::int32_t line) const {
    constexpr std::size_t MOST_NESTED_MEMBERS = 300000;
    if (filling_.count(structure) != 0 || nestedMembers_ > MOST_NESTED_MEMBERS) {
        walk_.faults.raise("பொழி-291", line);
    }
}

void CallAnalysis::analyseFields(const std::string& structure) {
    const Lineage line = walk_.structures.lineage(structure);
    const auto filling = filling_.insert(structure);
    for (auto one = line.rbegin(); one != line.rend(); ++one) {
        for (const auto& field : (*one)->fields) {
            expressions_.analyse(field->initializer.get());
        }
        nestedMembers_ += (*one)->fields.size() + (*one)->methods.size();
    }
    filling_.erase(filling);
    if (filling_.empty()) {
        nestedMembers_ = 0;
    }
}

void CallAnalysis::analyseConstructor(const StructDefinitionStatement* owner, const std::string& structure,
                                      const ExpressionList& arguments, std::int32_t line) {
    if (owner != nullptr) {
        expressions_.analyse(arguments);
    } else if (!arguments.empty()) {
        walk_.faults.raise("பொழி-333", line, "'" + structure + "' கட்டமைப்பில் 'துவக்கம்()' வரையறுக்கப்படவில்லை.");
    }
}

/// False if there is no built-in function of that name.
bool CallAnalysis::analysedBuiltin(const CallExpression& call, const std::string& name) {
    if (name == INDEX_ASSIGNMENT) {
        analyseIndexAssignment(call);
        return true;
    }
    if (name == ELEMENT_WRITE) {
        analyseElementWrite(call);
        return true;
    }
    const language::Builtin* anyForm = nullptr;
    const language::Builtin* form = language::findBuiltin(name, static_cast<int>(call.arguments.size()), anyForm);
    if (anyForm == nullptr) {
        return false;
    }
    if (form == nullptr) {
        const std::string details(anyForm->wrongCountDetail);
        if (anyForm->wrongCount == language::WrongCount::Report) {
            walk_.faults.raise("பொழி-331", call, details);
        }
        walk_.faults.raisePlaceless("பொழி-331", &call, details);
    }
    note(call, CallKind::Builtin, form);
    analyseArguments(call, form->text);
    return true;
}

void CallAnalysis::analyseElementWrite(const CallExpression& call) {
    if (call.arguments.size() != ELEMENT_WRITE_ARGUMENTS) {
        walk_.faults.raise("பொழி-331", call, "('வை' செயலுக்கு 3 மதிப்புகள் தேவை: பட்டியல்/அகராதி, குறியீடு/சாவி, மதிப்பு)");
    }
    if (!isPlace(call.arguments.front().get())) {
        walk_.faults.raise("பொழி-313", call,
                           "('வை' செயலின் முதல் மதிப்பு ஒரு மாறி, பட்டியல் உறுப்பு அல்லது பொருள் பண்பாக இருக்க வேண்டும்.)");
    }
    note(call, CallKind::ElementWrite, language::findBuiltin(ELEMENT_WRITE));
    expressions_.analyse(call.arguments);
}

void CallAnalysis::analyseIndexAssignment(const CallExpression& call) {
    if (call.arguments.size() != ELEMENT_WRITE_ARGUMENTS) {
        walk_.faults.raise("பொழி-331", call, "'_set_index_internal'");
    }
    note(call, CallKind::IndexAssignment);
    analyseElementReference(call.arguments[0].get());
    expressions_.analyse(call.arguments[1].get());
    expressions_.analyse(call.arguments[2].get());
}

/// References all the way down, so that a write reaches the element in place.
void CallAnalysis::analyseElementReference(const Expression* target) {
    const auto* element = nodeCast<IndexExpression>(target);
    if (element == nullptr) {
        expressions_.analyse(target);
        return;
    }
    analyseElementReference(element->object.get());
    expressions_.analyse(element->index.get());
}

} // namespace pozhil

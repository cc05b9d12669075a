#include "analysis/call_hints.h"

#include "base/letters.h"
#include "language/builtins.h"
#include "parser/widget_tokens.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace pozhil {
namespace {

using Names = std::vector<std::string_view>;

bool isCalledByName(const language::Builtin& builtin) {
    return builtin.form == language::BuiltinForm::Call || builtin.form == language::BuiltinForm::ElementWrite;
}

bool isCalledAfterADot(const language::Builtin& builtin) {
    return builtin.form == language::BuiltinForm::ListMethod || builtin.form == language::BuiltinForm::InputMethod ||
           builtin.form == language::BuiltinForm::TimeMethod;
}

/// The program's own names before those of the language: a slip is likelier to be one of them.
Names callableNames(const Walk& walk) {
    Names names;
    for (const auto& function : walk.functions) {
        names.emplace_back(function.first);
    }
    for (const auto& structure : walk.structures.all()) {
        names.emplace_back(structure.first);
    }
    const Names variables = walk.scope.assignedNames();
    names.insert(names.end(), variables.begin(), variables.end());
    for (const language::Builtin& builtin : language::builtins()) {
        if (isCalledByName(builtin)) {
            names.push_back(builtin.name);
        }
    }
    return names;
}

Names methodNames(const Walk& walk) {
    Names names;
    for (const auto& structure : walk.structures.all()) {
        for (const auto& method : structure.second->methods) {
            names.emplace_back(method->name.value);
        }
    }
    for (const language::Builtin& builtin : language::builtins()) {
        if (isCalledAfterADot(builtin)) {
            names.push_back(builtin.name);
        }
    }
    return names;
}

/// A structure with this method that no program can construct, since a call of its name makes a widget; empty if none.
std::string_view widgetWithMethod(const Walk& walk, const std::string& method) {
    for (const auto& [name, structure] : walk.structures.all()) {
        const bool isWidget = structure->name.type != TokenType::IDENTIFIER && isWidgetToken(structure->name);
        if (isWidget && std::any_of(structure->methods.begin(), structure->methods.end(),
                                    [&](const auto& own) { return own->name.value == method; })) {
            return name;
        }
    }
    return "";
}

bool holds(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

CallHint nearestHint(const std::string& name, const Names& known) {
    const std::string nearest(nearestWord(name, known));
    if (nearest.empty()) {
        return {};
    }
    const bool isOnly = isOnlyNearest(name, nearest, known);
    return {"நீ எழுத நினைச்சது '" + nearest + "'-ஆ?", isOnly ? Mend{name, nearest} : Mend()};
}

} // namespace

CallHint callHint(const Walk& walk, const std::string& name) {
    if (walk.structures.all().count(name) != 0) {
        return {"'" + name +
                "' கட்டமைப்பு இந்த இடத்துல இன்னும் தெரியாது; அதை எந்த பிளாக்குக்குள்ளயும் வைக்காம, கோப்போட தொடக்கத்துல எழுது மச்சி!"};
    }
    if (holds(methodNames(walk), name)) {
        return {"'" + name + "' புள்ளிக்கு அப்புறம் வர்ற செயல்: 'பொருள்." + name + "(…)'-ன்னு எழுது மச்சி!"};
    }
    return nearestHint(name, callableNames(walk));
}

CallHint methodHint(const Walk& walk, const std::string& name) {
    const std::string_view widget = widgetWithMethod(walk, name);
    if (!widget.empty()) {
        return {"'" + std::string(widget) + "' ஒரு விட்ஜெட்டோட பெயர்; கட்டமைப்புக்கு வேற பெயர் வை மச்சி!"};
    }
    const Names methods = methodNames(walk);
    if (holds(methods, name)) {
        return {"புள்ளிக்கு முன்னால, கட்டமைப்பால உருவாக்கின பொருளை வச்சிருக்கிற மாறி மட்டும் தான் வரலாம் மச்சி!"};
    }
    if (holds(callableNames(walk), name)) {
        return {"புள்ளி இல்லாம '" + name + "(…)'-ன்னு எழுது மச்சி!"};
    }
    return nearestHint(name, methods);
}

} // namespace pozhil

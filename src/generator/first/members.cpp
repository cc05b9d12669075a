#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <string_view>
#include <unordered_map>
#include <utility>

namespace pozhil {
namespace {

/// The field of std::tm behind each part of a time value.
const std::unordered_map<std::string_view, std::string_view>& timeParts() {
    static const std::unordered_map<std::string_view, std::string_view> parts = {
        {"ஆண்டு", "->tm_year + 1900"}, {"மாதம்", "->tm_mon + 1"}, {"நாள்", "->tm_mday"},    {"மணி", "->tm_hour"},
        {"நிமிடம்", "->tm_min"},       {"வினாடி", "->tm_sec"},   {"வாரநாள்", "->tm_wday"},
    };
    return parts;
}

/// What stands before and behind g_inputValues["id"] when a member of an input is read.
const std::unordered_map<std::string_view, std::pair<std::string_view, std::string_view>>& inputMembers() {
    static const std::unordered_map<std::string_view, std::pair<std::string_view, std::string_view>> members = {
        {"வெறுமை", {"", ".empty()"}},
        {"வெறுமைஇல்லை", {"(!", ".empty())"}},
        {"நீளம்", {"std::any((long long)", ".length())"}},
        {"பெரியஎழுத்து", {"fn_பெரியஎ(std::string(", "))"}},
        {"சிறியஎழுத்து", {"fn_சிறியஎ(std::string(", "))"}},
        {"சுத்தம்", {"fn_சுத்தம்(std::string(", "))"}},
        {"உரைதரவு", {"std::any(", ")"}},
    };
    return members;
}

} // namespace

bool isTimePart(std::string_view name) {
    return timeParts().count(name) != 0;
}

/// a.b: a member of an input widget, a property of an object, or a part of a time value
void Generator::visitGetExpression(const GetExpression* node) {
    if (emitInputMember(node)) {
        return;
    }
    const VarType type = inferExpressionType(node->object.get());
    if (type == VarType::Object) {
        checkPrivacy(node->object.get(), node->member, node->line);
        out_ << "fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(";
        visitExpression(node->object.get());
        out_ << "), \"" << node->member.value << "\", \"" << fileName_ << "\", " << node->line << ")";
    } else if (type == VarType::Time) {
        emitTimeMember(node);
    } else {
        பிழை("பொழி-304", node->line, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
}

/// The members that name an input widget rather than a variable, whatever the variable holds.
bool Generator::emitInputMember(const GetExpression* node) {
    const auto* object = nodeCast<VariableAccess>(node->object.get());
    const auto member = inputMembers().find(node->member.value);
    if (object == nullptr || member == inputMembers().end()) {
        return false;
    }
    const auto& [before, behind] = member->second;
    out_ << before << "g_inputValues[\"" << object->name << "\"]" << behind;
    return true;
}

void Generator::emitTimeMember(const GetExpression* node) {
    const auto part = timeParts().find(node->member.value);
    if (part == timeParts().end()) {
        பிழை("பொழி-304", node->line, "நேரப் பொருளில் '" + node->member.value + "' என்ற பகுதி இல்லை.");
    }
    out_ << "std::any_cast<std::tm*>(";
    visitExpression(node->object.get());
    out_ << ")" << part->second;
}

/// காட்சி_நிலை.name = v  ->  the overlay's visibility;  a.b = v  ->  fn_set_property(a, "b", ...)
void Generator::visitSetMemberExpression(const SetMemberExpression* node) {
    const auto* object = nodeCast<VariableAccess>(node->object.get());
    if (object != nullptr && object->name == "காட்சி_நிலை") {
        out_ << "global_vars[\"" << node->member.value << "\"] = ";
        emitAny(node->value.get());
        return;
    }
    checkMemberWrite(node);
    out_ << "fn_set_property(";
    visitExpression(node->object.get());
    out_ << ", \"" << node->member.value << "\", ";
    emitAny(node->value.get());
    out_ << ", \"" << fileName_ << "\", " << (node->line >= 1 ? node->line : node->member.line) << ")";
}

void Generator::checkMemberWrite(const SetMemberExpression* node) {
    const VarType type = inferExpressionType(node->object.get());
    if (type == VarType::Time) {
        பிழை("பொழி-322", node->line, "");
    }
    if (type != VarType::Object) {
        பிழை("பொழி-304", node->line, "இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது");
    }
    checkPrivacy(node->object.get(), node->member, node->line);
}

/// A field that any structure keeps private is only reached through the object itself.
void Generator::checkPrivacy(const Expression* object, const Token& member, std::int32_t line) const {
    const auto* variable = nodeCast<VariableAccess>(object);
    if (variable != nullptr && !isSelfName(variable->name) && privateFields_.count(member.value) != 0) {
        பிழை("பொழி-321", line, "'" + member.value + "'");
    }
}

} // namespace pozhil

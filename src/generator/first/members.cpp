#include "generator/first/generator.h"
#include "generator/first/names.h"
#include "language/builtins.h"

#include <string_view>

namespace pozhil {
namespace {

using language::BuiltinForm;
using language::findMember;

} // namespace

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
    const language::Builtin* member = findMember(BuiltinForm::InputProperty, node->member.value);
    if (member == nullptr || nodeCast<VariableAccess>(node->object.get()) == nullptr) {
        return false;
    }
    emitMemberText(member->text, *node);
    return true;
}

void Generator::emitTimeMember(const GetExpression* node) {
    const language::Builtin* part = findMember(BuiltinForm::TimePart, node->member.value);
    if (part == nullptr) {
        பிழை("பொழி-304", node->line, "நேரப் பொருளில் '" + node->member.value + "' என்ற பகுதி இல்லை.");
    }
    emitMemberText(part->text, *node);
}

/// Writes the text of a member of \p get. What stands before the dot takes the place of its hole: its value that of $A,
/// its name that of $id.
void Generator::emitMemberText(std::string_view text, const GetExpression& get) {
    constexpr std::string_view VALUE = "$A";
    constexpr std::string_view NAME = "$id";
    const std::size_t hole = text.find('$');
    out_ << text.substr(0, hole);
    if (hole == std::string_view::npos) {
        return;
    }
    if (text.substr(hole, NAME.size()) == NAME) {
        out_ << nodeCast<VariableAccess>(get.object.get())->name << text.substr(hole + NAME.size());
    } else {
        visitExpression(get.object.get());
        out_ << text.substr(hole + VALUE.size());
    }
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

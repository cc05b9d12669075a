#include "analysis/second/resolution.h"
#include "analysis/second/suggestions.h"
#include "language/second/builtins.h"
#include "parser/tree/shapes.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

using language::second::Builtin;
using language::second::BuiltinForm;

/// The name of the field that a member is asked of, null if it is none.
const VariableAccess* fieldOf(const Resolution& resolution, const GetExpression& member) {
    const auto* const name = nodeCast<VariableAccess>(withoutBrackets(member.object.get()));
    return name != nullptr && isWidgetName(resolution.model, resolution.scope, name->name) ? name : nullptr;
}

resolved::Argument nameAsText(const Resolution& resolution, const VariableAccess& field) {
    auto text = makeNode<resolved::TextLiteral>(resolution.placeOf(&field));
    text->value = field.name;
    resolved::Argument argument;
    argument.value = std::move(text);
    return argument;
}

resolved::ExpressionPtr unknownPart(Resolution& resolution, const VariableAccess& field, const GetExpression& member) {
    std::vector<std::string_view> parts;
    for (const Builtin& row : language::second::builtins()) {
        if (row.form == BuiltinForm::FieldPart || row.form == BuiltinForm::FieldMethod) {
            parts.push_back(row.name);
        }
    }
    const std::string& name = member.member.value;
    tellUnknownMember(resolution.model, field.name, name, parts,
                      resolution.placeOf(&member.member, &member, member.member.value));
    return unknownValue(resolution.placeOf(&member));
}

} // namespace

resolved::ExpressionPtr resolveFieldPart(Resolution& resolution, const GetExpression& member) {
    const VariableAccess* const field = fieldOf(resolution, member);
    if (field == nullptr) {
        return nullptr;
    }
    const Builtin* const part = findPageBuiltin(resolution.model, BuiltinForm::FieldPart, member.member.value);
    if (part == nullptr) {
        return unknownPart(resolution, *field, member);
    }
    auto call = makeNode<resolved::BuiltinCall>(resolution.placeOf(&member));
    call->builtin = part;
    call->arguments.push_back(nameAsText(resolution, *field));
    return call;
}

resolved::ExpressionPtr resolveFieldCall(Resolution& resolution, const CallExpression& call,
                                         const GetExpression& member) {
    const VariableAccess* const field = fieldOf(resolution, member);
    if (field == nullptr) {
        return nullptr;
    }
    const Builtin* const method = findPageBuiltin(resolution.model, BuiltinForm::FieldMethod, member.member.value);
    if (method == nullptr) {
        return resolveFieldPart(resolution, member);
    }
    const auto count = static_cast<std::size_t>(method->fewestArguments - 1);
    checkCount(resolution, call, method->name, count, count);
    auto result = makeNode<resolved::BuiltinCall>(resolution.placeOf(&call));
    result->builtin = method;
    result->arguments.push_back(nameAsText(resolution, *field));
    for (auto& value : resolveValues(resolution, call.arguments)) {
        resolved::Argument argument;
        argument.value = std::move(value);
        result->arguments.push_back(std::move(argument));
    }
    return result;
}

} // namespace pozhil::second

#include "analysis/second/resolution.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/structures.h"
#include "analysis/second/suggestions.h"
#include "base/scoped_increment.h"
#include "language/second/builtins.h"
#include "parser/tree/shapes.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <algorithm>
#include <string>

namespace pozhil::second {
namespace {

using language::second::Builtin;
using language::second::BuiltinForm;

constexpr std::string_view CLOCK = "நேரம்";

/// What is called does with an argument.
enum class Takes { Value, Place, PlaceIfAny };

/// The method of a structure that is named by the structure's name; a fault if it has none.
const resolved::Function* methodByName(Resolution& resolution, const GetExpression& member,
                                       const resolved::Structure& structure) {
    const std::string& name = member.member.value;
    const resolved::Function* const method = findMethod(structure, name);
    const resolved::Place place = resolution.placeOf(&member.member, &member, name);
    if (method == nullptr) {
        std::vector<std::string_view> methods;
        for (const std::string_view one : membersOf(structure)) {
            if (findMethod(structure, one) != nullptr) {
                methods.push_back(one);
            }
        }
        const bool isField = findField(structure, name).field != nullptr;
        tellUnknownMember(resolution.model, structure.name, name, methods, place,
                          isField ? report::filled(report::remedy::FIELD_OF_STRUCTURE, {structure.name, name}) : "");
    } else if (method->isPrivate && !maySeePrivate(resolution.inside, method->structure)) {
        resolution.model.faults.add(fault::PRIVATE_MEMBER, place, {method->structure->name, name});
    } else if (resolution.model.scopeOfFunction.at(method)->body == nullptr) {
        resolution.model.faults.add(fault::ABSTRACT_CALL, place, {structure.name, name});
    }
    return method;
}

/// The number that a member of an enumeration stands for; a fault if there is none of that name.
resolved::ExpressionPtr enumerationMember(Resolution& resolution, const GetExpression& member,
                                          const EnumerationStatement& enumeration) {
    const auto& members = enumeration.members;
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const Token& one) { return one.value == member.member.value; });
    if (found == members.end()) {
        std::vector<std::string_view> names;
        names.reserve(members.size());
        for (const Token& one : members) {
            names.push_back(one.value);
        }
        tellUnknownMember(resolution.model, enumeration.name.value, member.member.value, names,
                          resolution.placeOf(&member.member, &member, member.member.value));
        return unknownValue(resolution.placeOf(&member));
    }
    auto literal = makeNode<resolved::WholeLiteral>(resolution.placeOf(&member));
    literal->value = found - members.begin();
    return literal;
}

/// Places inside the indices of places are resolved twice each, as value and as place. Nobody writes more of them inside
/// each other.
constexpr int MAX_PLACE_DEPTH = 8;

/// The place for a மாற்று parameter, or for a built-in that changes its first argument.
resolved::TargetPtr requiredPlace(Resolution& resolution, const Expression* tree) {
    const auto* const name = nodeCast<VariableAccess>(withoutBrackets(tree));
    const resolved::Place place = resolution.placeOf(tree);
    if (!isPlace(resolution, tree)) {
        resolution.model.faults.add(fault::NO_PLACE_TO_CHANGE, place);
    } else if (name != nullptr && isConstantName(name->name)) {
        resolution.model.faults.add(fault::CHANGED_CONSTANT, place, {name->name});
    } else if (resolution.placeDepth > MAX_PLACE_DEPTH) {
        resolution.model.faults.add(fault::NESTED_PLACES, place);
    } else {
        return resolveTarget(resolution, tree);
    }
    return nullptr;
}

/// What is given for a parameter, or before the dot of a method.
resolved::Argument resolveArgument(Resolution& resolution, const Expression* tree, Takes form) {
    resolved::Argument argument;
    if (form == Takes::Value || (form == Takes::PlaceIfAny && !isPlace(resolution, tree))) {
        argument.value = resolveValue(resolution, tree);
        return argument;
    }
    const ScopedIncrement inside(resolution.placeDepth);
    if (form == Takes::Place) {
        argument.target = requiredPlace(resolution, tree);
    } else if (resolution.placeDepth <= MAX_PLACE_DEPTH) {
        argument.target = placeIfAny(resolution, tree);
    }
    argument.value = resolution.placeDepth <= MAX_PLACE_DEPTH || form == Takes::PlaceIfAny
                         ? resolveValue(resolution, tree)
                         : unknownValue(resolution.placeOf(tree));
    return argument;
}

template <class TakesOf>
resolved::Arguments resolveArguments(Resolution& resolution, const ExpressionList& arguments, TakesOf takes) {
    resolved::Arguments result;
    result.reserve(arguments.size());
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        result.push_back(resolveArgument(resolution, arguments[index].get(), takes(index)));
    }
    return result;
}

/// How the parameters of a known function take their arguments.
/// \param skipped parameters that the call doesn't give, such as the object of துவக்கம்
auto parametersOf(const resolved::Function* function, std::size_t skipped) {
    return [function, skipped](std::size_t index) {
        const std::size_t parameter = index + skipped;
        const bool isMutable =
            function != nullptr && parameter < function->parameters.size() && function->parameters[parameter].isMutable;
        return isMutable ? Takes::Place : Takes::Value;
    };
}

resolved::ExpressionPtr callValue(Resolution& resolution, const CallExpression& call, resolved::ExpressionPtr callee) {
    auto result = makeNode<resolved::ValueCall>(resolution.placeOf(&call));
    result->callee = std::move(callee);
    const std::size_t count = call.arguments.size();
    result->arguments = resolveArguments(resolution, call.arguments, [&](std::size_t index) {
        return resolution.model.mutableInValues.count({count, index}) != 0 ? Takes::PlaceIfAny : Takes::Value;
    });
    return result;
}

resolved::ExpressionPtr callFunction(Resolution& resolution, const CallExpression& call,
                                     const resolved::Function* function) {
    checkCount(resolution, call, function->name, function->parameters.size(), function->parameters.size());
    if (resolution.model.holders.count(function) != 0) {
        return callValue(resolution, call, functionValue(resolution, function, resolution.placeOf(call.callee.get())));
    }
    auto result = makeNode<resolved::FunctionCall>(resolution.placeOf(&call));
    result->function = function;
    result->arguments = resolveArguments(resolution, call.arguments, parametersOf(function, 0));
    return result;
}

resolved::ExpressionPtr construct(Resolution& resolution, const CallExpression& call,
                                  const resolved::Structure* structure) {
    auto result = makeNode<resolved::Construction>(resolution.placeOf(&call));
    result->structure = structure;
    const resolved::Function* const constructor = findMethod(*structure, CONSTRUCTOR);
    if (structure->isAbstract) {
        resolution.model.faults.add(fault::ABSTRACT_CONSTRUCTION, result->place, {structure->name});
    } else {
        const std::size_t asked = constructor == nullptr ? 0 : constructor->parameters.size();
        const std::size_t count = asked == 0 ? 0 : asked - 1;
        const bool isUnasked = constructor == nullptr && !call.arguments.empty();
        checkCount(resolution, call, structure->name, count, count,
                   isUnasked ? report::filled(report::remedy::NO_CONSTRUCTOR, {structure->name}) : "");
    }
    result->arguments = resolveArguments(resolution, call.arguments, parametersOf(constructor, 1));
    return result;
}

resolved::ExpressionPtr callBuiltin(Resolution& resolution, const CallExpression& call, const Builtin* builtin) {
    checkCount(resolution, call, builtin->name, static_cast<std::size_t>(builtin->fewestArguments),
               static_cast<std::size_t>(builtin->mostArguments));
    auto result = makeNode<resolved::BuiltinCall>(resolution.placeOf(&call));
    result->builtin = builtin;
    result->arguments = resolveArguments(resolution, call.arguments, [&](std::size_t index) {
        return builtin->writesFirst && index == 0 ? Takes::Place : Takes::Value;
    });
    return result;
}

resolved::ExpressionPtr callMethod(Resolution& resolution, const CallExpression& call, const GetExpression& member) {
    auto result = makeNode<resolved::MethodCall>(resolution.placeOf(&call));
    result->object = resolveArgument(resolution, member.object.get(), Takes::PlaceIfAny);
    result->member = member.member.value;
    result->inside = resolution.inside;
    const std::size_t count = call.arguments.size();
    result->arguments = resolveArguments(resolution, call.arguments, [&](std::size_t index) {
        const Model& model = resolution.model;
        const bool mayTakePlace = model.mutableInValues.count({count, index}) != 0 ||
                                  model.mutableInMethods.count({member.member.value, index}) != 0;
        return mayTakePlace ? Takes::PlaceIfAny : Takes::Value;
    });
    return result;
}

/// Structure.method(object, …)
resolved::ExpressionPtr callMethodOf(Resolution& resolution, const CallExpression& call, const GetExpression& member,
                                     const resolved::Structure& structure) {
    const resolved::Function* const method = methodByName(resolution, member, structure);
    if (method == nullptr) {
        return unknownValue(resolution.placeOf(&call));
    }
    checkCount(resolution, call, structure.name + "." + method->name, method->parameters.size(),
               method->parameters.size());
    auto result = makeNode<resolved::FunctionCall>(resolution.placeOf(&call));
    result->function = method;
    result->arguments = resolveArguments(resolution, call.arguments, parametersOf(method, 0));
    return result;
}

/// நேரம்.name(…) with a name that the clock doesn't have.
resolved::ExpressionPtr unknownClockPart(Resolution& resolution, const CallExpression& call,
                                         const GetExpression& member) {
    std::vector<std::string_view> parts;
    for (const Builtin& row : language::second::builtins()) {
        if (row.form == BuiltinForm::Clock) {
            parts.push_back(row.name);
        }
    }
    const std::string& name = member.member.value;
    tellUnknownMember(resolution.model, CLOCK, name, parts, resolution.placeOf(&member.member, &member, name));
    return unknownValue(resolution.placeOf(&call));
}

resolved::ExpressionPtr callMember(Resolution& resolution, const CallExpression& call, const GetExpression& member) {
    if (auto fieldCall = resolveFieldCall(resolution, call, member)) {
        return fieldCall;
    }
    if (const auto* object = nodeCast<VariableAccess>(withoutBrackets(member.object.get()))) {
        const Meaning meaning = resolution.meaningOf(object->name, Use::Read);
        if (isDoubtful(resolution.model, meaning, object->name)) {
            return callMethod(resolution, call, member);
        }
        if (meaning.structure != nullptr) {
            return callMethodOf(resolution, call, member, *meaning.structure);
        }
        if (meaning.enumeration != nullptr) {
            return callValue(resolution, call, resolveMember(resolution, member));
        }
        const Builtin* const clock = language::second::findBuiltin(BuiltinForm::Clock, member.member.value);
        if (meaning.isUnknown() && object->name == CLOCK) {
            return clock != nullptr ? callBuiltin(resolution, call, clock) : unknownClockPart(resolution, call, member);
        }
    }
    return callMethod(resolution, call, member);
}

} // namespace

void checkCount(Resolution& resolution, const CallExpression& call, std::string_view name, std::size_t fewest,
                std::size_t most, std::string remedy) {
    const std::size_t given = call.arguments.size();
    if (given < fewest || given > most) {
        tellWrongCount(resolution.model, name, fewest, most, given, resolution.placeOf(&call), std::move(remedy));
    }
}

resolved::ExpressionPtr resolveMember(Resolution& resolution, const GetExpression& member) {
    if (auto part = resolveFieldPart(resolution, member)) {
        return part;
    }
    if (const auto* object = nodeCast<VariableAccess>(withoutBrackets(member.object.get()))) {
        const Meaning meaning = resolution.meaningOf(object->name, Use::Read);
        const bool isCertain = !isDoubtful(resolution.model, meaning, object->name);
        if (isCertain && meaning.enumeration != nullptr) {
            return enumerationMember(resolution, member, *meaning.enumeration);
        }
        if (isCertain && meaning.structure != nullptr) {
            const auto* const method = methodByName(resolution, member, *meaning.structure);
            const resolved::Place place = resolution.placeOf(&member);
            return method == nullptr ? unknownValue(place) : functionValue(resolution, method, place);
        }
    }
    auto result = makeNode<resolved::MemberRead>(resolution.placeOf(&member));
    result->object = resolveValue(resolution, member.object.get());
    result->member = member.member.value;
    result->inside = resolution.inside;
    return result;
}

resolved::ExpressionPtr resolveCall(Resolution& resolution, const CallExpression& call) {
    const Expression* const callee = withoutBrackets(call.callee.get());
    if (const auto* member = nodeCast<GetExpression>(callee)) {
        return callMember(resolution, call, *member);
    }
    const auto* const name = nodeCast<VariableAccess>(callee);
    if (name == nullptr) {
        return callValue(resolution, call, resolveValue(resolution, callee));
    }
    const Meaning meaning = resolution.meaningOf(name->name, Use::Call);
    if (isDoubtful(resolution.model, meaning, name->name)) {
        return callValue(resolution, call, unknownValue(resolution.placeOf(name)));
    }
    if (meaning.function != nullptr) {
        return callFunction(resolution, call, meaning.function);
    }
    if (meaning.structure != nullptr) {
        return construct(resolution, call, meaning.structure);
    }
    if (meaning.variable != nullptr) {
        auto read = makeNode<resolved::VariableRead>(resolution.placeOf(name));
        read->variable = meaning.variable;
        return callValue(resolution, call, std::move(read));
    }
    const Builtin* const builtin = language::second::findBuiltin(BuiltinForm::Call, name->name);
    if (meaning.isUnknown() && builtin != nullptr) {
        return callBuiltin(resolution, call, builtin);
    }
    const Builtin* const ofPages = findPageBuiltin(resolution.model, BuiltinForm::PageCall, name->name);
    if (meaning.isUnknown() && ofPages != nullptr) {
        return callBuiltin(resolution, call, ofPages);
    }
    const Builtin* const ofTests = findTestBuiltin(resolution.model, name->name);
    if (meaning.isUnknown() && ofTests != nullptr) {
        return callBuiltin(resolution, call, ofTests);
    }
    const resolved::Place place = resolution.placeOf(name);
    if (meaning.enumeration != nullptr) {
        tellNameWithoutValue(resolution, meaning, name->name, place);
    } else {
        tellUnknownFunction(resolution, name->name, place);
    }
    return callValue(resolution, call, unknownValue(place));
}

} // namespace pozhil::second

#include "analysis/second/kind_marks.h"

#include "analysis/second/structures.h"
#include "analysis/second/walk.h"

#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

using language::second::Builtin;
using language::second::BuiltinForm;

/// Gives every value its kind, parts before the whole.
class Marking : public Walk<Marking> {
public:
    explicit Marking(const Kinds& kinds) : kinds_(kinds) {}

    using Walk::walk;

    void walk(resolved::ExpressionPtr& expression) {
        if (expression != nullptr) {
            Walk::walk(expression.get());
            expression->kind = kinds_.ofMarked(expression.get()).kind;
        }
    }
    void walk(resolved::Argument& argument) {
        walk(argument.value);
        walk(argument.target);
    }

private:
    const Kinds& kinds_;
};

/// Exchanges calls for more direct ones, inner ones before outer ones.
class Directing : public Walk<Directing> {
public:
    Directing(const Model& model, const Kinds& kinds) : model_(model), kinds_(kinds) {}

    using Walk::walk;

    void walk(resolved::ExpressionPtr& expression) {
        if (expression == nullptr) {
            return;
        }
        Walk::walk(expression.get());
        resolved::ExpressionPtr direct;
        if (nodeCast<resolved::MethodCall>(expression.get()) != nullptr) {
            direct = directCall(static_cast<resolved::MethodCall&>(*expression));
        } else if (nodeCast<resolved::MemberRead>(expression.get()) != nullptr) {
            direct = directPart(static_cast<resolved::MemberRead&>(*expression));
        }
        if (direct != nullptr) {
            direct->place = expression->place;
            direct->kind = expression->kind;
            expression = std::move(direct);
        }
    }
    void walk(resolved::Argument& argument) {
        walk(argument.value);
        walk(argument.target);
    }

private:
    resolved::ExpressionPtr directPart(resolved::MemberRead& node) const {
        const Builtin* const part = memberOf(node.object->kind, BuiltinForm::Part, node.member);
        if (part == nullptr) {
            return nullptr;
        }
        auto call = std::make_unique<resolved::BuiltinCall>();
        call->builtin = part;
        call->arguments.push_back({std::move(node.object), nullptr});
        return call;
    }

    resolved::ExpressionPtr directCall(resolved::MethodCall& node) const {
        if (const Builtin* const builtin = memberOf(node.object.value->kind, BuiltinForm::Method, node.member)) {
            return directBuiltin(node, *builtin);
        }
        const resolved::Function* const method = certainMethod(model_, kinds_.of(node.object.value.get()), node.member);
        return method == nullptr ? nullptr : directMethod(node, *method);
    }

    static resolved::ExpressionPtr directBuiltin(resolved::MethodCall& node, const Builtin& builtin) {
        const std::size_t count = node.arguments.size() + 1;
        const bool fits = count >= static_cast<std::size_t>(builtin.fewestArguments) &&
                          count <= static_cast<std::size_t>(builtin.mostArguments);
        if (!fits || (builtin.writesFirst && node.object.target == nullptr)) {
            return nullptr;
        }
        auto call = std::make_unique<resolved::BuiltinCall>();
        call->builtin = &builtin;
        call->arguments = withObject(node, builtin.writesFirst);
        return call;
    }

    static resolved::ExpressionPtr directMethod(resolved::MethodCall& node, const resolved::Function& method) {
        if (method.parameters.size() != node.arguments.size() + 1 || method.parameters[0].isMutable ||
            (method.isPrivate && !maySeePrivate(node.inside, method.structure))) {
            return nullptr;
        }
        for (std::size_t index = 0; index < node.arguments.size(); ++index) {
            const bool isMutable = method.parameters[index + 1].isMutable;
            if (isMutable && node.arguments[index].target == nullptr) {
                return nullptr;
            }
        }
        auto call = std::make_unique<resolved::FunctionCall>();
        call->function = &method;
        call->arguments = withObject(node, false);
        for (std::size_t index = 0; index < call->arguments.size(); ++index) {
            if (!method.parameters[index].isMutable) {
                call->arguments[index].target = nullptr;
            }
        }
        return call;
    }

    /// The arguments of a call with its object first.
    static resolved::Arguments withObject(resolved::MethodCall& node, bool isPlace) {
        resolved::Arguments arguments;
        arguments.push_back({std::move(node.object.value), isPlace ? std::move(node.object.target) : nullptr});
        for (resolved::Argument& argument : node.arguments) {
            arguments.push_back(std::move(argument));
        }
        return arguments;
    }

    const Model& model_;
    const Kinds& kinds_;
};

void markAsAny(const std::vector<resolved::Parameter>& parameters) {
    for (const resolved::Parameter& parameter : parameters) {
        parameter.variable->kind = resolved::Kind::Any;
    }
}

} // namespace

void markKinds(Model& model, const Kinds& kinds) {
    Marking marking(kinds);
    walkProgram(marking, model.program);
    for (const auto& variable : model.program.variables) {
        variable->kind = kinds.at(variable.get()).kind;
    }
    for (const auto& function : model.program.functions) {
        function->result = kinds.at(function.get()).kind;
        if (function->structure != nullptr) {
            // Calls by the structure's name may give anything for it.
            markAsAny(function->parameters);
        }
    }
}

void makeCallsDirect(Model& model, const Kinds& kinds) {
    Directing directing(model, kinds);
    walkProgram(directing, model.program);
}

} // namespace pozhil::second

#include "analysis/second/names.h"

#include "analysis/second/fault_numbers.h"
#include "front_end/second_edition.h"
#include "parser/tree/shapes.h"

#include <algorithm>

namespace pozhil::second {
namespace {

/// Declares the variables of one scope after another, outer ones first.
class Declaring {
public:
    Declaring(Model& model, Scope& scope) : model_(model), scope_(scope) {}

    void declare() {
        for (const GivenName& given : scope_.given) {
            resolved::Variable* const variable = variableFor(given);
            VariableFacts& facts = model_.variables[variable];
            facts.isFilledFromOutside |= given.by == GivenName::By::Loop || given.by == GivenName::By::Control;
            facts.isGivenInText = true;
            facts.isAssignedByPublic |=
                variable->owner == nullptr && (scope_.function != nullptr || given.by == GivenName::By::Control);
            if (given.value != nullptr) {
                facts.values.push_back(given.value);
            }
        }
    }

private:
    resolved::Variable* variableFor(const GivenName& given) {
        Scope& home = homeOf(given);
        const auto known = home.variables.find(given.name);
        if (known != home.variables.end()) {
            return known->second;
        }
        if (const auto function = home.functions.find(given.name); function != home.functions.end()) {
            model_.faults.add(
                fault::SECOND_DEFINITION, given.place,
                {std::string(given.name), std::to_string(model_.locations.lineOf(function->second->place))});
        }
        return model_.declare(home, given.name, given.place);
    }

    /// Whose variable it is.
    Scope& homeOf(const GivenName& given) {
        const bool isOwn = given.by == GivenName::By::Loop || given.by == GivenName::By::Catch;
        for (Scope* scope = &scope_; scope->function != nullptr; scope = scope->outer) {
            if (scope->fileNames.count(given.name) != 0) {
                return *model_.fileScopes[scope_.file];
            }
            if (isOwn || scope->variables.count(given.name) != 0 || scope->functions.count(given.name) != 0) {
                return *scope;
            }
        }
        const auto& state = model_.applications[scope_.file].stateNames;
        return scope_.isOfApplication && state.count(given.name) != 0 ? *model_.fileScopes[scope_.file] : scope_;
    }

    Model& model_;
    Scope& scope_;
};

const Definition* visibleDefinition(const Model& model, std::size_t file, std::string_view name) {
    const auto found = model.visible[file].find(name);
    return found == model.visible[file].end() ? nullptr : &found->second;
}

Meaning meaningOf(const Definition& definition) {
    return {nullptr, definition.function, definition.structure, definition.enumeration};
}

bool isFunctionName(const Model& model, const Scope& scope, std::string_view name) {
    for (const Scope* one = &scope; one->function != nullptr; one = one->outer) {
        if (one->functions.count(name) != 0) {
            return true;
        }
    }
    const Definition* const definition = visibleDefinition(model, scope.file, name);
    return definition != nullptr && definition->function != nullptr;
}

/// Whether a value is visibly a function. A short look at the text, for variables that share their name with a function.
bool isVisiblyFunction(const Model& model, const Scope& scope, const Expression* value) {
    value = withoutBrackets(value);
    if (const auto* choice = nodeCast<TernaryExpression>(value)) {
        return isVisiblyFunction(model, scope, choice->thenBranch.get()) ||
               isVisiblyFunction(model, scope, choice->elseBranch.get());
    }
    if (const auto* inner = nodeCast<PlaceAssignment>(value)) {
        return isVisiblyFunction(model, scope, inner->value.get());
    }
    const auto* name = nodeCast<VariableAccess>(value);
    return nodeCast<LambdaExpression>(value) != nullptr || nodeCast<FunctionExpression>(value) != nullptr ||
           (name != nullptr && isFunctionName(model, scope, name->name));
}

bool mayHoldFunction(const Model& model, const Scope& scope, const resolved::Variable* variable) {
    const auto found = model.variables.find(variable);
    if (found == model.variables.end() || found->second.isFilledFromOutside) {
        return true;
    }
    return std::any_of(found->second.values.begin(), found->second.values.end(),
                       [&](const Expression* value) { return isVisiblyFunction(model, scope, value); });
}

/// Whether something that can be called has this name further out than the variables of \p scope.
bool isCallableFurtherOut(const Model& model, const Scope& scope, std::string_view name) {
    if (scope.outer != nullptr && !meaningOf(model, *scope.outer, name, Use::Call).isUnknown()) {
        return true;
    }
    const Definition* const definition = visibleDefinition(model, scope.file, name);
    return (definition != nullptr && definition->enumeration == nullptr) ||
           language::second::findBuiltin(language::second::BuiltinForm::Call, name) != nullptr;
}

/// A variable may share its name with a function or structure of its file as long as no value tells them apart wrongly:
/// then calls mean the function, and reads the variable.
void checkSharedNames(Model& model, const Scope& scope) {
    for (const auto& [name, variable] : scope.variables) {
        const auto own = model.own[scope.file].find(name);
        if (own == model.own[scope.file].end()) {
            continue;
        }
        const auto& values = model.variables[variable].values;
        const bool isConfusing =
            own->second.enumeration != nullptr || std::any_of(values.begin(), values.end(), [&](const Expression* one) {
                return isVisiblyFunction(model, scope, one);
            });
        if (isConfusing) {
            const bool isLater = variable->place.range.begin > own->second.place.range.begin;
            const resolved::Place first = isLater ? own->second.place : variable->place;
            model.faults.add(fault::SECOND_DEFINITION, isLater ? variable->place : own->second.place,
                             {std::string(name), std::to_string(model.locations.lineOf(first))});
        }
    }
}

} // namespace

/// Whether a function around a place, up to its page, has a parameter of this name.
bool isParameterAround(const Scope& scope, std::string_view name) {
    for (const Scope* one = &scope; one->function != nullptr; one = one->outer) {
        if (one->variables.count(name) != 0) {
            return true;
        }
    }
    return false;
}

/// What pages show is state of their application, also where its functions alone give it values.
void nameShownState(Model& model) {
    for (const Scope& scope : model.scopes) {
        const Scope* page = &scope;
        while (page != nullptr && page->page == nullptr) {
            page = page->outer;
        }
        if (page == nullptr) {
            continue;
        }
        for (const Mention& mention : scope.mentions) {
            if (mention.use == Use::Read && !isParameterAround(scope, mention.name) &&
                visibleDefinition(model, scope.file, mention.name) == nullptr) {
                model.applications[scope.file].stateNames.insert(mention.name);
            }
        }
    }
}

void declareVariables(Model& model) {
    nameShownState(model);
    for (Scope& scope : model.scopes) {
        Declaring(model, scope).declare();
    }
    for (const Scope* scope : model.fileScopes) {
        checkSharedNames(model, *scope);
    }
}

Meaning meaningOf(const Model& model, const Scope& scope, std::string_view name, Use use) {
    const Scope* const fileScope = model.fileScopes[scope.file];
    for (const Scope* one = &scope; one != nullptr; one = one->outer) {
        const Scope* const home = one->fileNames.count(name) != 0 ? fileScope : one;
        // A function and a variable of one name are a fault, which need not be told again where the variable is written.
        if (const auto function = home->functions.find(name);
            function != home->functions.end() && (use != Use::Write || home->variables.count(name) == 0)) {
            return {nullptr, function->second, nullptr, nullptr};
        }
        if (const auto variable = home->variables.find(name);
            variable != home->variables.end() && (use != Use::Call || !isCallableFurtherOut(model, *home, name) ||
                                                  mayHoldFunction(model, scope, variable->second))) {
            return {variable->second, nullptr, nullptr, nullptr};
        }
        one = home;
    }
    const Definition* const definition = visibleDefinition(model, scope.file, name);
    return definition == nullptr ? Meaning() : meaningOf(*definition);
}

bool isDoubtful(const Model& model, const Meaning& meaning, std::string_view name) {
    const bool isOfFunction = meaning.variable != nullptr && meaning.variable->owner != nullptr;
    return !isOfFunction && model.doubt.mayMean(name);
}

bool isWidgetName(const Model& model, const Scope& scope, std::string_view name) {
    return model.applications[scope.file].widgetNames.count(name) != 0 &&
           meaningOf(model, scope, name, Use::Read).isUnknown();
}

const language::second::Builtin* findPageBuiltin(const Model& model, language::second::BuiltinForm form,
                                                 std::string_view name) {
    return model.hasApplication ? language::second::findBuiltin(form, name) : nullptr;
}

const language::second::Builtin* findTestBuiltin(const Model& model, std::string_view name) {
    return model.source.isTest ? language::second::findBuiltin(language::second::BuiltinForm::TestCall, name) : nullptr;
}

bool isOfLanguage(std::string_view name) {
    return name == NOTHING_NAME || language::second::findBuiltin(language::second::BuiltinForm::Call, name) != nullptr;
}

std::vector<std::string_view> namesKnownIn(const Model& model, const Scope& scope) {
    std::vector<std::string_view> names;
    for (const Scope* one = &scope; one != nullptr; one = one->outer) {
        for (const auto& [name, variable] : one->variables) {
            names.push_back(name);
        }
        for (const auto& [name, function] : one->functions) {
            names.push_back(name);
        }
    }
    for (const auto& [name, definition] : model.visible[scope.file]) {
        names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace pozhil::second

#include "analysis/second/resolution.h"

#include "front_end/second_edition.h"

#include <iterator>

namespace pozhil::second {
namespace {

/// Inner functions that share variables are there from the beginning of the function that they stand in.
void defineInnerFunctions(Model& model) {
    std::unordered_map<const resolved::Function*, std::vector<resolved::StatementPtr>> definitions;
    for (const auto& function : model.program.functions) {
        const auto holder = model.holders.find(function.get());
        if (holder != model.holders.end()) {
            auto definition = makeNode<resolved::FunctionDefinition>(function->place);
            definition->variable = holder->second;
            definition->function = function.get();
            definitions[function->enclosing].push_back(std::move(definition));
        }
    }
    for (auto& [enclosing, statements] : definitions) {
        auto& body = model.scopeOfFunction.at(enclosing)->function->body->statements;
        body.insert(body.begin(), std::make_move_iterator(statements.begin()),
                    std::make_move_iterator(statements.end()));
    }
}

/// வினை that is one value: its body gives that.
resolved::BlockPtr bodyOfValue(Resolution& resolution, const Expression* value) {
    auto block = makeNode<resolved::Block>(resolution.placeOf(value));
    auto result = makeNode<resolved::Return>(block->place);
    result->value = resolveValue(resolution, value);
    block->statements.push_back(std::move(result));
    return block;
}

/// A place gets the value of the only parameter; nothing if it isn't one, which is told where the page has it.
resolved::BlockPtr bodyOfAssignment(Resolution& resolution, const Expression* place) {
    auto block = makeNode<resolved::Block>(resolution.placeOf(place));
    if (resolved::TargetPtr target = resolveBoundPlace(resolution, *place)) {
        auto value = makeNode<resolved::VariableRead>(block->place);
        value->variable = resolution.scope.function->parameters.front().variable;
        auto assignment = makeNode<resolved::Assignment>(block->place);
        assignment->target = std::move(target);
        assignment->value = std::move(value);
        block->statements.push_back(std::move(assignment));
    }
    return block;
}

/// The structure in whose method a function stands, also inside of inner functions; null outside.
const resolved::Structure* structureAround(const Scope& scope) {
    const Scope* one = &scope;
    while (one->function != nullptr && one->function->structure == nullptr) {
        one = one->outer;
    }
    return one->function == nullptr ? nullptr : one->function->structure;
}

void resolveFunction(Model& model, Scope& scope) {
    Resolution resolution{model, scope, structureAround(scope)};
    if (scope.page != nullptr) {
        scope.function->body = resolvePage(resolution, *scope.page);
    } else if (scope.value != nullptr) {
        scope.function->body = bodyOfValue(resolution, scope.value);
    } else if (scope.assigned != nullptr) {
        scope.function->body = bodyOfAssignment(resolution, scope.assigned);
    } else if (scope.body != nullptr) {
        scope.function->body = resolveBlock(resolution, scope.body);
    }
}

void resolveFields(Model& model, resolved::Structure& structure) {
    const auto* const tree = model.structures[&structure].tree;
    if (tree == nullptr) {
        return;
    }
    Scope scope;
    scope.file = structure.file;
    scope.outer = model.fileScopes[structure.file];
    structure.self.name = std::string(SELF_NAME);
    structure.self.place = structure.place;
    structure.self.file = structure.file;
    scope.variables[SELF_NAME] = &structure.self;
    Resolution resolution{model, scope, &structure};
    for (std::size_t index = 0; index < tree->fields.size(); ++index) {
        structure.fields[index].initializer = resolveValue(resolution, tree->fields[index]->initializer.get());
    }
}

} // namespace

void resolveBodies(Model& model) {
    for (std::size_t file = 0; file < model.source.files.size(); ++file) {
        Resolution resolution{model, *model.fileScopes[file]};
        model.program.files[file].body = resolveStatements(resolution, model.source.files[file].tree.statements);
    }
    for (Scope& scope : model.scopes) {
        if (scope.function != nullptr) {
            resolveFunction(model, scope);
        }
    }
    for (const auto& structure : model.program.structures) {
        resolveFields(model, *structure);
    }
    defineInnerFunctions(model);
}

} // namespace pozhil::second

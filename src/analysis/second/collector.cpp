#include "analysis/second/collector.h"

#include "analysis/second/fault_numbers.h"
#include "base/scoped_value.h"
#include "front_end/second_edition.h"
#include "language/second/widgets.h"
#include "parser/tree/shapes.h"

#include <memory>
#include <string>
#include <utility>

namespace pozhil::second {
namespace {

/// How many parameters may be மாற்று besides தான்: a running program has a bit for each.
constexpr std::size_t MOST_PLACES = 31;

} // namespace

void Collector::collect() {
    model_.scopes.emplace_back();
    scope_ = &model_.scopes.back();
    scope_->file = file_;
    model_.fileScopes[file_] = scope_;
    collect(model_.source.files[file_].tree.statements);
}

void Collector::collect(const Expression* expression) {
    visitNode(*this, expression, SecondExpressionClasses());
}

void Collector::collect(const Statement* statement) {
    visitNode(*this, statement, SecondStatementClasses());
}

void Collector::collect(const ExpressionList& expressions) {
    for (const auto& one : expressions) {
        collect(one.get());
    }
}

void Collector::collect(const StatementList& statements) {
    for (const auto& one : statements) {
        collect(one.get());
    }
}

void Collector::give(std::string_view name, GivenName::By by, resolved::Place place, const Expression* value) {
    scope_->given.push_back({name, by, place, value});
    mention(name, Use::Write);
}

void Collector::visit(const CallExpression& node) {
    const Expression* const callee = withoutBrackets(node.callee.get());
    if (const auto* name = nodeCast<VariableAccess>(callee)) {
        mention(name->name, Use::Call);
    } else {
        collect(callee);
    }
    collect(node.arguments);
}

void Collector::visit(const BinaryExpression& node) {
    collect(node.left.get());
    collect(node.right.get());
}

void Collector::visit(const LogicalExpression& node) {
    collect(node.left.get());
    collect(node.right.get());
}

void Collector::visit(const PlaceAssignment& node) {
    const Expression* const target = withoutBrackets(node.target.get());
    const bool isCompound = node.op.type != TokenType::ASSIGN;
    if (const auto* name = nodeCast<VariableAccess>(target)) {
        give(name->name, isCompound ? GivenName::By::Compound : GivenName::By::Assignment,
             model_.locations.of(file_, name), isCompound ? nullptr : node.value.get());
    } else {
        collect(target);
    }
    if (const auto* member = nodeCast<GetExpression>(target)) {
        noteSelfAssignment(*member, node);
    }
    collect(node.value.get());
}

/// தான்.name = value makes name a field of the structure.
void Collector::noteSelfAssignment(const GetExpression& target, const PlaceAssignment& assignment) {
    const auto* object = nodeCast<VariableAccess>(withoutBrackets(target.object.get()));
    if (structure_ != nullptr && object != nullptr && isSelf(object->name) && assignment.op.type == TokenType::ASSIGN) {
        model_.structures[structure_].assigned.emplace_back(
            target.member.value, model_.locations.ofPart(file_, &target.member, &target, target.member.value));
    }
}

void Collector::visit(const IndexExpression& node) {
    collect(node.object.get());
    collect(node.index.get());
}

void Collector::visit(const KeyedMapLiteral& node) {
    for (const auto& [key, value] : node.entries) {
        collect(key.get());
        collect(value.get());
    }
}

void Collector::visit(const TernaryExpression& node) {
    collect(node.condition.get());
    collect(node.thenBranch.get());
    collect(node.elseBranch.get());
}

void Collector::visit(const LambdaExpression& node) {
    Scope& scope = openScope(&node, "வினை", model_.locations.of(file_, &node));
    scope.value = node.body.get();
    scope.isLambda = true;
    for (const Token& parameter : node.parameters) {
        addParameter(scope, &node, parameter, false);
    }
    collectBody(scope);
}

void Collector::visit(const FunctionExpression& node) {
    Scope& scope = openScope(&node, "வினை", model_.locations.of(file_, &node));
    scope.body = node.body.get();
    scope.isLambda = true;
    for (const Param& parameter : node.parameters) {
        addParameter(scope, &node, parameter.name, parameter.isMutable);
    }
    collectBody(scope);
}

void Collector::visit(const IfStatement& node) {
    collect(node.condition.get());
    collect(node.thenBranch.get());
    collect(node.elseBranch.get());
}

void Collector::visit(const ForStatement& node) {
    collect(node.iterable.get());
    give(node.variable.value, GivenName::By::Loop,
         model_.locations.ofPart(file_, &node.variable, &node, node.variable.value));
    collect(node.body.get());
}

void Collector::visit(const WhileStatement& node) {
    collect(node.condition.get());
    collect(node.body.get());
}

void Collector::visit(const TryCatchStatement& node) {
    collect(node.tryBlock.get());
    give(node.errorName, GivenName::By::Catch, model_.locations.ofPart(file_, &node.errorName, &node, node.errorName));
    collect(node.catchBlock.get());
}

void Collector::visit(const SwitchStatement& node) {
    collect(node.subject.get());
    for (const CaseBlock& one : node.cases) {
        collect(one.value.get());
        collect(one.body.get());
    }
    collect(node.defaultBlock.get());
}

void Collector::visit(const FileVariablesStatement& node) {
    for (const Token& name : node.names) {
        const resolved::Place place = model_.locations.ofPart(file_, &name, &node, name.value);
        if (scope_->variables.count(name.value) != 0) {
            model_.faults.add(fault::PARAMETER_OF_FILE, place, {name.value});
        } else {
            scope_->fileNames.insert(name.value);
        }
    }
}

// Functions.

Scope& Collector::openScope(const void* node, std::string_view name, resolved::Place place) {
    model_.program.functions.push_back(std::make_unique<resolved::Function>());
    resolved::Function* const function = model_.program.functions.back().get();
    function->name = std::string(name);
    function->place = place;
    function->file = file_;
    function->enclosing = scope_->function;
    model_.scopes.emplace_back();
    Scope& scope = model_.scopes.back();
    scope.file = file_;
    scope.outer = scope_;
    scope.function = function;
    scope.isOfApplication = isInApplication_;
    model_.scopeOf[node] = &scope;
    model_.scopeOfFunction[function] = &scope;
    return scope;
}

void Collector::addParameter(Scope& scope, const void* node, const Token& parameter, bool isMutable) {
    const std::string& name = parameter.value;
    const resolved::Place place = model_.locations.ofPart(file_, &parameter, node, name);
    const bool isDouble = scope.variables.count(name) != 0;
    if (isDouble) {
        model_.faults.add(fault::DOUBLE_PARAMETER, place, {name});
    }
    const std::size_t most = MOST_PLACES + (scope.function->structure != nullptr ? 1 : 0);
    if (isMutable && scope.function->parameters.size() >= most) {
        model_.faults.add(fault::LATE_PLACE, place, {name, std::to_string(MOST_PLACES)});
    }
    // It counts all the same, so that calls aren't told as well.
    resolved::Variable* const variable =
        isDouble ? model_.addVariable(scope, name, place) : model_.declare(scope, name, place);
    variable->isReference = isMutable;
    scope.function->parameters.push_back({variable, isMutable});
    model_.variables[variable].isFilledFromOutside = true;
}

void Collector::collectBody(Scope& scope) {
    Scope* const before = std::exchange(scope_, &scope);
    collect(scope.body);
    collect(scope.value);
    scope_ = before;
}

void Collector::visit(const FunctionDefinitionStatement& node) {
    const std::string& name = node.name.value;
    const resolved::Place place = model_.locations.ofPart(file_, &node.name, &node, name);
    Scope& scope = openScope(&node, name, place);
    if (scope_->function == nullptr) {
        Definition definition;
        definition.function = scope.function;
        definition.place = place;
        define(name, definition);
    } else if (const auto known = scope_->functions.find(name); known != scope_->functions.end()) {
        tellSecondDefinition(name, known->second->place, place);
    } else {
        scope_->functions[name] = scope.function;
    }
    scope.body = node.body.get();
    for (const Param& parameter : node.params) {
        addParameter(scope, &node, parameter.name, parameter.isMutable);
    }
    collectBody(scope);
}

// Structures and enumerations.

resolved::Structure& Collector::openStructure(const Token& name, const void* node) {
    model_.program.structures.push_back(std::make_unique<resolved::Structure>());
    resolved::Structure& structure = *model_.program.structures.back();
    structure.name = name.value;
    structure.place = model_.locations.ofPart(file_, &name, node, name.value);
    structure.file = file_;
    Definition definition;
    definition.structure = &structure;
    definition.place = structure.place;
    define(name.value, definition);
    return structure;
}

/// The methods and fields of a structure know the names of the file, wherever the structure stands.
void Collector::visit(const StructDefinitionStatement& node) {
    resolved::Structure& structure = openStructure(node.name, &node);
    model_.structures[&structure].tree = &node;
    Scope* const before = std::exchange(scope_, model_.fileScopes[file_]);
    resolved::Structure* const outer = std::exchange(structure_, nullptr);
    for (const auto& field : node.fields) {
        collect(field->initializer.get());
    }
    structure_ = &structure;
    for (const auto& method : node.methods) {
        collectMethod(*method, structure);
    }
    structure_ = outer;
    scope_ = before;
}

void Collector::collectMethod(const FunctionDefinitionStatement& node, resolved::Structure& structure) {
    const resolved::Place place = model_.locations.ofPart(file_, &node.name, &node, node.name.value);
    Scope& scope = openScope(&node, node.name.value, place);
    scope.function->structure = &structure;
    scope.function->isPrivate = node.isPrivate;
    structure.methods.push_back(scope.function);
    scope.body = node.body.get();
    for (const Param& parameter : node.params) {
        addParameter(scope, &node, parameter.name, parameter.isMutable);
    }
    collectBody(scope);
}

void Collector::visit(const AbstractStructDefinitionStatement& node) {
    resolved::Structure& structure = openStructure(node.name, &node);
    structure.isAbstract = true;
    model_.structures[&structure].abstractTree = &node;
    Scope* const before = std::exchange(scope_, model_.fileScopes[file_]);
    for (const AbstractMethod& method : node.methods) {
        collectAbstractMethod(method, structure, &node);
    }
    scope_ = before;
}

/// It has no body; its function only tells name and parameters.
void Collector::collectAbstractMethod(const AbstractMethod& method, resolved::Structure& structure, const void* node) {
    const resolved::Place place = model_.locations.ofPart(file_, &method.name, node, method.name.value);
    Scope& scope = openScope(&method, method.name.value, place);
    scope.function->structure = &structure;
    structure.methods.push_back(scope.function);
    for (const Param& parameter : method.params) {
        addParameter(scope, node, parameter.name, parameter.isMutable);
    }
}

void Collector::visit(const EnumerationStatement& node) {
    Definition definition;
    definition.enumeration = &node;
    definition.place = model_.locations.ofPart(file_, &node.name, &node, node.name.value);
    define(node.name.value, definition);
    std::unordered_set<std::string_view> members;
    for (const Token& member : node.members) {
        if (!members.insert(member.value).second) {
            const resolved::Place place = model_.locations.ofPart(file_, &member, &node, member.value);
            tellSecondDefinition(member.value, definition.place, place);
        }
    }
}

// Applications.

/// The logic is a part of its file. Each frame of the page is like a call of a function that shows all its values.
void Collector::visit(const WebAppNode& node) {
    model_.hasApplication = true;
    const ScopedValue<bool> inside(isInApplication_, true);
    collectLogic(logicOf(node));
    const resolved::Place place = model_.locations.of(file_, &node);
    const std::string name = pageNameOf(node);
    if (const auto [first, isNew] = model_.pages.emplace(name, place); !isNew) {
        model_.faults.add(fault::SECOND_PAGE, place, {name, std::to_string(model_.locations.lineOf(first->second))});
    }
    Scope& frame = openScope(&node, "பக்கம்", place);
    frame.page = &node;
    frame.function->isPage = true;
    Scope* const before = std::exchange(scope_, &frame);
    walk(node);
    scope_ = before;
}

/// Each element is like a call of a function with the element and its index.
void Collector::enterEach(const EachNode& each) {
    static const Token INDEX{TokenType::IDENTIFIER, std::string(language::second::EACH_INDEX), 0};
    Scope& scope = openScope(&each, each.kind, model_.locations.of(file_, &each));
    scope.function->isPage = true;
    for (const Token* name : {&each.element, &INDEX}) {
        addParameter(scope, &each, *name, false);
    }
    scope_ = &scope;
}

void Collector::leaveEach(const EachNode&) {
    scope_ = scope_->outer;
}

/// A change by the user is like a call of a function that assigns what is new.
void Collector::onBinding(const std::string& property, const Expression& place, bool) {
    collect(&place);
    // No name of the program, so that it hides none.
    static const Token NEWS{TokenType::IDENTIFIER, "புதிய மதிப்பு", 0};
    Scope& scope = openScope(&property, "மதிப்பு", model_.locations.of(file_, &place));
    scope.assigned = &place;
    scope.isLambda = true;
    addParameter(scope, &place, NEWS, false);
    Scope* const before = std::exchange(scope_, &scope);
    mentionPlace(&place);
    scope_ = before;
}

void Collector::mentionPlace(const Expression* place) {
    place = withoutBrackets(place);
    if (const auto* name = nodeCast<VariableAccess>(place)) {
        mention(name->name, Use::Write);
    } else if (const auto* member = nodeCast<GetExpression>(place)) {
        mentionPlace(member->object.get());
    } else if (const auto* element = nodeCast<IndexExpression>(place)) {
        mentionPlace(element->object.get());
        mentionPlace(element->index.get());
    } else if (const auto* operation = nodeCast<BinaryExpression>(place)) {
        mentionPlace(operation->left.get());
        mentionPlace(operation->right.get());
    }
}

void Collector::onStateName(const StringLiteral& name) {
    model_.applications[file_].stateNames.insert(name.value);
    model_.fileScopes[file_]->given.push_back(
        {name.value, GivenName::By::Control, model_.locations.of(file_, &name), nullptr});
}

void Collector::tellDatabase(const void* node) {
    model_.faults.add(fault::NO_DATABASE, model_.locations.of(file_, node));
}

void Collector::collectLogic(const BlockStatement* logic) {
    const std::size_t before = scope_->given.size();
    collect(logic);
    for (std::size_t index = before; index < scope_->given.size(); ++index) {
        model_.applications[file_].stateNames.insert(scope_->given[index].name);
    }
}

void Collector::define(std::string_view name, Definition definition) {
    const auto [known, isNew] = model_.own[file_].emplace(name, definition);
    if (!isNew) {
        tellSecondDefinition(name, known->second.place, definition.place);
    }
}

void Collector::tellSecondDefinition(std::string_view name, resolved::Place first, resolved::Place second) {
    model_.faults.add(fault::SECOND_DEFINITION, second,
                      {std::string(name), std::to_string(model_.locations.lineOf(first))});
}

} // namespace pozhil::second

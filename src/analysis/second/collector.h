#pragma once

#include "analysis/second/model.h"
#include "analysis/second/page_walk.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// Goes over the tree of a file and notes what it defines and which names stand where. What the names mean is found out
/// when all files are known.
class Collector : private PageWalk {
public:
    Collector(Model& model, std::size_t file) : model_(model), file_(file) {}

    void collect();

    // Called by the dispatch over the tree.
    void visit(const VariableAccess& node) { mention(node.name, Use::Read); }
    void visit(const NumberLiteral&) {}
    void visit(const DoubleLiteral&) {}
    void visit(const StringLiteral&) {}
    void visit(const BooleanLiteral&) {}
    void visit(const CallExpression& node);
    void visit(const BinaryExpression& node);
    void visit(const LogicalExpression& node);
    void visit(const UnaryExpression& node) { collect(node.right.get()); }
    void visit(const PlaceAssignment& node);
    void visit(const GetExpression& node) { collect(node.object.get()); }
    void visit(const IndexExpression& node);
    void visit(const GroupingExpression& node) { collect(node.inner.get()); }
    void visit(const ListLiteral& node) { collect(node.elements); }
    void visit(const KeyedMapLiteral& node);
    void visit(const LambdaExpression& node);
    void visit(const FunctionExpression& node);
    void visit(const TernaryExpression& node);

    void visit(const ExpressionStatement& node) { collect(node.expression.get()); }
    void visit(const PrintStatement& node) { collect(node.arguments); }
    void visit(const IfStatement& node);
    void visit(const ReturnStatement& node) { collect(node.value.get()); }
    void visit(const ForStatement& node);
    void visit(const WhileStatement& node);
    void visit(const FunctionDefinitionStatement& node);
    void visit(const BlockStatement& node) { collect(node.statements); }
    void visit(const BreakStatement&) {}
    void visit(const ContinueStatement&) {}
    void visit(const PassStatement&) {}
    void visit(const TryCatchStatement& node);
    void visit(const SwitchStatement& node);
    void visit(const WaitStatement& node) { collect(node.duration.get()); }
    void visit(const StructDefinitionStatement& node);
    void visit(const AbstractStructDefinitionStatement& node);
    void visit(const FileVariablesStatement& node);
    void visit(const ImportStatement&) {}
    void visit(const EnumerationStatement& node);
    void visit(const WebAppNode& node);
    void visit(const RTDBInsertExpression& node) { tellDatabase(&node); }
    void visit(const RTDBUpdateExpression& node) { tellDatabase(&node); }
    void visit(const RTDBDeleteExpression& node) { tellDatabase(&node); }
    void visit(const RTDBReadStatement& node) { tellDatabase(&node); }

private:
    void collect(const Expression* expression);
    void collect(const Statement* statement);
    void collect(const ExpressionList& expressions);
    void collect(const StatementList& statements);

    void onValue(const Expression& value) override { collect(&value); }
    void onVariableName(const StringLiteral& name) override { mention(name.value, Use::Read); }
    void onStateName(const StringLiteral& name) override;
    void onWidgetName(const std::string& name) override { model_.applications[file_].widgetNames.insert(name); }
    void enterEach(const EachNode& each) override;
    void leaveEach(const EachNode& each) override;
    void onBinding(const std::string& property, const Expression& place, bool isOptional) override;
    void tellDatabase(const void* node);
    void collectLogic(const BlockStatement* logic);

    /// Names that stand in a place, which its function shares.
    void mentionPlace(const Expression* place);
    void mention(std::string_view name, Use use) { scope_->mentions.push_back({name, use}); }
    void give(std::string_view name, GivenName::By by, resolved::Place place, const Expression* value = nullptr);
    void noteSelfAssignment(const GetExpression& target, const PlaceAssignment& assignment);

    /// A scope for a function of the tree, inside the present one.
    Scope& openScope(const void* node, std::string_view name, resolved::Place place);
    void collectBody(Scope& scope);
    void addParameter(Scope& scope, const void* node, const Token& parameter, bool isMutable);
    void collectMethod(const FunctionDefinitionStatement& node, resolved::Structure& structure);
    void collectAbstractMethod(const AbstractMethod& method, resolved::Structure& structure, const void* node);
    resolved::Structure& openStructure(const Token& name, const void* node);

    void define(std::string_view name, Definition definition);
    void tellSecondDefinition(std::string_view name, resolved::Place first, resolved::Place second);

    Model& model_;
    std::size_t file_;
    Scope* scope_ = nullptr;
    /// The structure in whose method this stands.
    resolved::Structure* structure_ = nullptr;
    bool isInApplication_ = false;
};

} // namespace pozhil::second

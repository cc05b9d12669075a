#pragma once

#include "analysis/second/model.h"
#include "analysis/second/names.h"
#include "analysis/second/resolved/statements.h"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

/// How the trees of functions become resolved ones. Each part of the grammar has a source file of its own.

namespace pozhil::second {

/// A loop that is being resolved.
struct OpenLoop {
    /// Null for சுற்று.
    const resolved::Variable* variable;
    bool isVariableAssigned = false;
};

/// Where in the program the resolution stands.
struct Resolution {
    Model& model;
    Scope& scope;
    /// The structure in whose method or field this stands.
    const resolved::Structure* inside = nullptr;
    std::vector<OpenLoop> loops{};
    /// Depth of places that are resolved inside of places.
    int placeDepth = 0;

    resolved::Place placeOf(const void* node) const { return model.locations.of(scope.file, node); }
    resolved::Place placeOf(const void* part, const void* node, std::string_view name) const {
        return model.locations.ofPart(scope.file, part, node, name);
    }
    Meaning meaningOf(std::string_view name, Use use) const { return second::meaningOf(model, scope, name, use); }
};

/// A node with its place.
template <class Node> std::unique_ptr<Node> makeNode(resolved::Place place) {
    auto node = std::make_unique<Node>();
    node->place = place;
    return node;
}

/// Stands for what isn't known because of a fault that was noted: a read of no variable.
resolved::ExpressionPtr unknownValue(resolved::Place place);

/// The value of an expression. Never null.
resolved::ExpressionPtr resolveValue(Resolution& resolution, const Expression* expression);
resolved::ExpressionList resolveValues(Resolution& resolution, const ExpressionList& expressions);

/// A number as it is written; a fault if it doesn't fit.
/// \param isNegated குறை stands before it
resolved::ExpressionPtr resolveNumber(Resolution& resolution, const NumberLiteral& number, const void* node,
                                      bool isNegated);
resolved::ExpressionPtr resolveDecimal(Resolution& resolution, const DoubleLiteral& number);
resolved::ExpressionPtr resolveMap(Resolution& resolution, const KeyedMapLiteral& map);

/// A name that stands for a value.
resolved::ExpressionPtr resolveName(Resolution& resolution, const VariableAccess& name);
/// The function as a value.
resolved::ExpressionPtr functionValue(Resolution& resolution, const resolved::Function* function,
                                      resolved::Place place);

resolved::ExpressionPtr resolveMember(Resolution& resolution, const GetExpression& member);
resolved::ExpressionPtr resolveCall(Resolution& resolution, const CallExpression& call);
resolved::ExpressionPtr resolveAssignmentValue(Resolution& resolution, const PlaceAssignment& assignment);

/// A part of what the user has typed into a field, or a call that asks or tells the field something; null if the object is
/// no field.
resolved::ExpressionPtr resolveFieldPart(Resolution& resolution, const GetExpression& member);
resolved::ExpressionPtr resolveFieldCall(Resolution& resolution, const CallExpression& call,
                                         const GetExpression& member);

/// A fault if a call doesn't give the number of arguments that is asked for.
/// \param remedy what to do about it, if that isn't what the catalogue says
void checkCount(Resolution& resolution, const CallExpression& call, std::string_view name, std::size_t fewest,
                std::size_t most, std::string remedy = {});

/// What is written, a fault if the expression is no place.
resolved::TargetPtr resolveTarget(Resolution& resolution, const Expression* expression);
/// The place of an expression, null if it is none or may not be changed.
resolved::TargetPtr placeIfAny(Resolution& resolution, const Expression* expression);
/// Whether an expression is a place: a variable, or an element or member of something.
bool isPlace(const Resolution& resolution, const Expression* expression);

/// Whether an assignment is one by a compound word, and which operator that has.
bool isCompound(const PlaceAssignment& assignment);
resolved::BinaryOperator compoundOperator(const PlaceAssignment& assignment);
/// What is assigned; 1 for ஒன்றுசேர் without an amount.
resolved::ExpressionPtr assignedValue(Resolution& resolution, const PlaceAssignment& assignment);
/// The operator of a word between two values; not மற்றும் and அல்லது.
resolved::BinaryOperator binaryOperator(std::string_view word);

resolved::StatementPtr resolveStatement(Resolution& resolution, const Statement* statement);
/// Never null.
resolved::BlockPtr resolveBlock(Resolution& resolution, const BlockStatement* block);
resolved::BlockPtr resolveStatements(Resolution& resolution, const StatementList& statements);

/// Evaluates, in the order of the text, all that the widgets of a page take from the program.
resolved::BlockPtr resolvePage(Resolution& resolution, const WebAppNode& page);

/// The place that a control assigns, null if it is none that can be assigned.
resolved::TargetPtr resolveBoundPlace(Resolution& resolution, const Expression& place);

/// Gives every function of the program its body, every field its first value, every file its statements.
void resolveBodies(Model& model);

} // namespace pozhil::second

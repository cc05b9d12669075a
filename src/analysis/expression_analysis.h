#pragma once

#include "analysis/call_analysis.h"
#include "analysis/walk.h"

namespace pozhil {

/// Visits expressions in the order in which they are emitted, refuses what can be refused at sight, and notes what the
/// writing walk has to know.
class ExpressionAnalysis {
public:
    explicit ExpressionAnalysis(Walk& walk);

    /// \throws Fault
    void analyse(const Expression* expression);
    void analyse(const ExpressionList& expressions);

    CallAnalysis& calls() { return calls_; }

    /// A field that any structure keeps private is only reached through the object itself.
    void checkPrivacy(const Expression* object, const Token& member, std::int32_t line) const;

    /// Refuses a word without a C++ operator.
    void checkOperator(const std::string& word) const;

    // Called by the dispatch (parser/tree/visit.h).
    void visit(const NumberLiteral& node);
    void visit(const DoubleLiteral&) {}
    void visit(const StringLiteral&) {}
    void visit(const CharLiteral&) {}
    void visit(const BooleanLiteral&) {}
    void visit(const ColorExpression&) {}
    void visit(const ListLiteral& node);
    void visit(const MapLiteral& node);
    void visit(const GroupingExpression& node);
    void visit(const VariableAccess& node);
    void visit(const AssignmentExpression& node);
    void visit(const SetMemberExpression& node);
    void visit(const GetExpression& node);
    void visit(const IndexExpression& node);
    void visit(const TernaryExpression& node);
    void visit(const LambdaExpression& node);
    void visit(const CallExpression& node);
    void visit(const BinaryExpression& node);
    void visit(const LogicalExpression& node);
    void visit(const UnaryExpression& node);
    void visit(const RTDBInsertExpression& node);
    void visit(const RTDBUpdateExpression& node);
    void visit(const RTDBDeleteExpression& node);
    void visit(const WidgetExpression& node);

private:
    void checkOperandKinds(const BinaryExpression& node, VarType left, VarType right) const;
    void analyseEntries(const MapLiteral& map);

    Walk& walk_;
    CallAnalysis calls_;
};

} // namespace pozhil

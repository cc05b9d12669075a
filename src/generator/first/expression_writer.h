#pragma once

#include "generator/first/call_writer.h"
#include "generator/first/emission.h"
#include "parser/syntax_tree.h"

namespace pozhil {

/// Writes expressions as C++, each where the text ends, without line breaks of its own but for constructions.
class ExpressionWriter {
public:
    explicit ExpressionWriter(Emission& emission);

    void write(const Expression* expression);

    /// std::any( expr )
    void writeAny(const Expression* expression);

    /// Arguments, each in std::any( ), joined by commas.
    void writeAnyList(const ExpressionList& expressions);

    /// The operand of a std::any_cast. A literal zero, in parentheses too, would be taken for a null pointer there.
    void writeCastOperand(const Expression* expression);

    /// A condition: comparisons and logic are native already, any other value must hold a truth value.
    void writeCondition(const Expression* condition);

    CallWriter& calls() { return calls_; }

    // Called by the dispatch (parser/tree/visit.h).
    void visit(const NumberLiteral& node);
    void visit(const DoubleLiteral& node);
    void visit(const StringLiteral& node);
    void visit(const CharLiteral& node);
    void visit(const BooleanLiteral& node);
    void visit(const ColorExpression& node);
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
    void writeNativeArithmetic(const BinaryExpression& node, VarType operands);
    void writeForWeb(const Expression& expression);

    Emission& emission_;
    CodeWriter& out_;
    CallWriter calls_;
};

} // namespace pozhil

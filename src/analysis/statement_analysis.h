#pragma once

#include "analysis/expression_analysis.h"
#include "analysis/walk.h"

#include <initializer_list>
#include <string>

namespace pozhil {

/// Visits statements and definitions in the order in which they are emitted (expression_analysis.h).
class StatementAnalysis {
public:
    StatementAnalysis(Walk& walk, ExpressionAnalysis& expressions) : walk_(walk), expressions_(expressions) {}

    /// \throws Fault
    void analyse(const Statement* statement);

    /// A structure that stands outside all blocks, with its methods.
    void analyseStructure(const StructDefinitionStatement& structure, Structures& structures);

    // Called by the dispatch (parser/tree/visit.h).
    void visit(const BlockStatement& node);
    void visit(const ExpressionStatement& node);
    void visit(const PrintStatement& node);
    void visit(const VarDeclaration& node);
    void visit(const SetStatement& node);
    void visit(const CompoundAssignmentStatement& node);
    void visit(const IncrementStatement& node);
    void visit(const IfStatement& node);
    void visit(const WhileStatement& node);
    void visit(const ForStatement& node);
    void visit(const SwitchStatement& node);
    void visit(const TryCatchStatement& node);
    void visit(const WaitStatement& node);
    void visit(const ReturnStatement& node);
    void visit(const BreakStatement&) {}
    void visit(const ContinueStatement&) {}
    void visit(const PassStatement&) {}
    void visit(const SetStateStatement&) {}
    /// A structure counts only outside all blocks.
    void visit(const StructDefinitionStatement&) {}
    void visit(const AbstractStructDefinitionStatement&) {}
    void visit(const FunctionDefinitionStatement& node);
    void visit(const RTDBReadStatement& node);
    void visit(const WebAppNode& node) { walk_.widgets.visit(node); }
    void visit(const WidgetNode& node) { walk_.widgets.visit(node); }
    void visit(const LogicBlockNode& node);

private:
    void analyseFunction(const FunctionDefinitionStatement& node);
    void analyseNestedFunction(const FunctionDefinitionStatement& node);
    void analyseLoopBody(const ForStatement& loop);
    void analyseObjectDeclaration(const VarDeclaration& node, const CallExpression& call, const std::string& structure);
    void checkReturnKind(const ReturnStatement& node) const;
    bool promises(const std::string& kind) const;

    Walk& walk_;
    ExpressionAnalysis& expressions_;
    int containerLoops_ = 0;
};

} // namespace pozhil

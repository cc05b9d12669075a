#pragma once

#include "generator/first/emission.h"
#include "generator/first/expression_writer.h"
#include "parser/syntax_tree.h"

#include <string>
#include <string_view>

namespace pozhil {

/// Writes statements and functions as C++, with their lines, at the present level of indentation.
class StatementWriter {
public:
    StatementWriter(Emission& emission, ExpressionWriter& expressions)
        : emission_(emission), out_(emission.out), expressions_(expressions) {}

    void write(const Statement* statement);

    /// A structure that stands outside all blocks, with its methods.
    void writeStructure(const StructDefinitionStatement& structure);

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
    void visit(const BreakStatement& node);
    void visit(const ContinueStatement& node);
    void visit(const PassStatement& node);
    void visit(const SetStateStatement& node);
    /// A structure counts only outside all blocks, where it has been written already.
    void visit(const StructDefinitionStatement&) {}
    void visit(const AbstractStructDefinitionStatement&) {}
    void visit(const FunctionDefinitionStatement& node);
    void visit(const RTDBReadStatement& node);
    void visit(const WebAppNode& node);
    void visit(const WidgetNode& node);
    void visit(const LogicBlockNode& node);

private:
    template <class WriteText> void writeLine(WriteText writeText);
    void writeBody(const BlockStatement& block);
    void writeRangeLoop(const ForStatement& loop, const CallExpression& range);
    void writeContainerLoop(const ForStatement& loop);
    void writeLoopOver(const ForStatement& loop, std::string_view element, std::string_view container,
                       const std::string& value);
    void writeCases(const SwitchStatement& node);
    void writeObjectDeclaration(const VarDeclaration& node, const CallExpression& call);
    void writeFunction(const FunctionDefinitionStatement& node);
    void writeNestedFunction(const FunctionDefinitionStatement& node);
    void writeFunctionBody(const FunctionDefinitionStatement& node, std::string_view fallThrough);
    void writeMemberNames(const StructDefinitionStatement& structure, bool isPrivate);
    void writeForWeb(const Statement& statement);

    Emission& emission_;
    CodeWriter& out_;
    ExpressionWriter& expressions_;
    /// The structure whose methods are written, empty outside.
    std::string structure_;
    int functions_ = 0;
};

} // namespace pozhil

#pragma once

#include "generator/second/emitted_lines.h"
#include "generator/second/expression_writer.h"
#include "generator/second/local_facts.h"

#include <cstddef>
#include <string>
#include <utility>

namespace pozhil::resolved::writer {

/// Writes the statements of one function as C++, each below a comment with its line of the source.
class StatementWriter {
public:
    StatementWriter(ProgramTables& tables, CallScope& scope, const LocalFacts& facts, EmittedLines& lines)
        : tables_(tables), scope_(scope), facts_(facts), lines_(lines), expressions_(tables, scope) {}

    void write(const Statement& statement);

    /// The variable of an inner function gets its value: what stands in the source further below counts from the beginning.
    void define(const FunctionDefinition& definition);

    // Each writes one class of statements.
    void visit(const Block& block);
    void visit(const Evaluation& evaluation);
    void visit(const Assignment& assignment);
    void visit(const FunctionDefinition& definition);
    void visit(const Print& print);
    void visit(const Wait& wait);
    void visit(const Return& statement);
    void visit(const Break& statement);
    void visit(const Continue& statement);
    void visit(const Pass& statement);
    void visit(const If& statement);
    void visit(const While& loop);
    void visit(const CountingLoop& loop);
    void visit(const EachLoop& loop);
    void visit(const Switch& statement);
    void visit(const Try& statement);

private:
    /// The comment with the source line, unless the one before it was of the same line.
    void comment(const Place& place);
    void countByOne(const CountingLoop& loop);
    void countBySteps(const CountingLoop& loop);
    /// The body of a loop, whose turns count in the program of a page.
    void writeTurn(const Block& body, const Place& place);
    /// v_எ = holder, at the beginning of a loop's body.
    void takeOver(const Variable& variable, const std::string& holder, Type type);

    ProgramTables& tables_;
    CallScope& scope_;
    const LocalFacts& facts_;
    EmittedLines& lines_;
    ExpressionWriter expressions_;
    /// File and line.
    std::pair<std::size_t, std::size_t> commented_{0, 0};
};

} // namespace pozhil::resolved::writer

#pragma once

#include "analysis/expression_analysis.h"
#include "analysis/statement_analysis.h"
#include "analysis/walk.h"

#include <string>
#include <string_view>

namespace pozhil {

/// Finds out what a program means before it is written, one definition, statement or expression after the other in the
/// order in which they are emitted: refuses what is wrong at sight, and fills the side tables that the writing walk
/// reads.
class Analysis {
public:
    /// \param functions, structures, abstracts tables of the program; they outlive the analysis, as all its sources do
    /// \param path, source the source that faults name
    Analysis(const FunctionTable& functions, const StructTable& structures, const AbstractStructTable& abstracts,
             std::string path, std::string_view source, WidgetWalk& widgets)
        : faults_(std::move(path), source), structures_(structures, abstracts, faults_),
          walk_(functions, structures_, faults_, widgets), expressions_(walk_), statements_(walk_, expressions_) {}

    Analysis(const Analysis&) = delete;
    Analysis& operator=(const Analysis&) = delete;

    /// A structure outside all blocks. Objects of it can be made from here on.
    /// \throws Fault, as the others do
    void analyse(const StructDefinitionStatement& structure) { statements_.analyseStructure(structure, structures_); }
    void analyse(const Statement* statement) { statements_.analyse(statement); }
    void analyse(const Expression* expression) { expressions_.analyse(expression); }

    const Structures& structures() const { return structures_; }
    const FaultSite& faults() const { return faults_; }
    Facts& facts() { return walk_.facts; }

private:
    FaultSite faults_;
    Structures structures_;
    Walk walk_;
    ExpressionAnalysis expressions_;
    StatementAnalysis statements_;
};

} // namespace pozhil

#pragma once

#include "analysis/second/resolved/program.h"

#include <unordered_set>
#include <vector>

namespace pozhil::resolved::writer {

/// What the body of one function tells of its variables and inner functions.
class LocalFacts {
public:
    /// \param function null for the statements of a file, whose variables are declared elsewhere
    LocalFacts(const Function* function, const Block& body);

    /// Whether the variable is declared by this very assignment, the first that has to do with it.
    bool isDeclaredBy(const Assignment& assignment) const { return declaring_.count(&assignment) != 0; }
    /// Whether the variable is only used inside of loops that count with it, so that each declares it.
    bool livesInLoops(const Variable& variable) const;
    /// Variables that are declared at the beginning of the function.
    std::vector<const Variable*> declaredFirst() const;
    /// Functions that are defined in it, in the order of the text.
    const std::vector<const FunctionDefinition*>& definitions() const { return definitions_; }

private:
    friend class UseWalk;

    /// A variable of each call that is neither a parameter nor shared.
    bool isDeclaredInside(const Variable& variable) const;

    const Function* function_;
    std::vector<const FunctionDefinition*> definitions_;
    std::unordered_set<const Assignment*> declaring_;
    std::unordered_set<const Variable*> declaredByAssignment_;
    std::unordered_set<const Variable*> countedBy_;
    std::unordered_set<const Variable*> usedElsewhere_;
};

} // namespace pozhil::resolved::writer

#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Statements that begin with the expression that they write to, already taken.
class AssignmentGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// A declaration whose "=" the expression left standing, taken by now.
    StatementPtr parseVarDeclaration(ExpressionPtr target, bool inStruct);

    /// An operator that writes, at the cursor, and its value.
    StatementPtr parseCompoundAssignmentStatement(ExpressionPtr target);

    /// An operator that writes and has no value, at the cursor.
    StatementPtr parseIncrementStatement(ExpressionPtr target);

private:
    VarType declaredType(const Expression& initializer) const;
};

} // namespace pozhil

#pragma once

#include "analysis/second/resolved/expressions.h"

#include <memory>
#include <vector>

namespace pozhil::resolved {

struct Block : Statement {
    std::vector<StatementPtr> statements;
};

using BlockPtr = std::unique_ptr<Block>;

/// A value that is only evaluated.
struct Evaluation : Statement {
    ExpressionPtr value;
};

/// place = value, or place கூட்டிசேர் value and its kin.
struct Assignment : Statement {
    TargetPtr target;
    bool isCompound = false;
    BinaryOperator op = BinaryOperator::Add;
    ExpressionPtr value;
};

/// A function inside of another: from the beginning of that on, the variable holds it.
struct FunctionDefinition : Statement {
    Variable* variable = nullptr;
    const Function* function = nullptr;
};

struct Print : Statement {
    ExpressionList values;
};

/// காத்திரு
struct Wait : Statement {
    ExpressionPtr seconds;
};

/// The value is null for a bare திரும்பு.
struct Return : Statement {
    ExpressionPtr value;
};

struct Break : Statement {};
struct Continue : Statement {};
struct Pass : Statement {};

/// The else branch is a Block, a further If, or null.
struct If : Statement {
    ExpressionPtr condition;
    BlockPtr thenBranch;
    StatementPtr elseBranch;
};

struct While : Statement {
    ExpressionPtr condition;
    BlockPtr body;
};

/// ஒவ்வொன்றாக over வரம்பு: from first up to, but without, last.
struct CountingLoop : Statement {
    Variable* variable = nullptr;
    /// Null for 0.
    ExpressionPtr first;
    ExpressionPtr last;
    /// Null for 1.
    ExpressionPtr step;
    /// The body gives the variable other values, which the count must not notice.
    bool bodyAssigns = false;
    BlockPtr body;
};

/// ஒவ்வொன்றாக over the elements of a list, the keys of a map, or the letters of a text.
struct EachLoop : Statement {
    Variable* variable = nullptr;
    ExpressionPtr iterable;
    BlockPtr body;
};

struct Case {
    ExpressionPtr value;
    BlockPtr body;
};

/// தேர்வு: the first case that equals the subject; மற்றவை may be null.
struct Switch : Statement {
    ExpressionPtr subject;
    std::vector<Case> cases;
    BlockPtr otherwise;
};

/// முயற்சி and பிடி; the variable holds the message.
struct Try : Statement {
    BlockPtr body;
    Variable* variable = nullptr;
    BlockPtr handler;
};

} // namespace pozhil::resolved

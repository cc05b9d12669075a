#pragma once

#include "parser/tree/node.h"
#include "scanner/token.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pozhil {

/// Statements in order. In the logic block of an application an entry can be null.
struct BlockStatement : Statement {
    StatementList statements;
};

/// An expression that is evaluated for its effect.
struct ExpressionStatement : Statement {
    explicit ExpressionStatement(ExpressionPtr theExpression) : expression(std::move(theExpression)) {}

    ExpressionPtr expression;
};

/// அச்சிடு: prints its arguments back to back and ends the line.
struct PrintStatement : Statement {
    explicit PrintStatement(ExpressionList theArguments) : arguments(std::move(theArguments)) {}

    ExpressionList arguments;
};

/// காத்திரு: waits for a number of seconds.
struct WaitStatement : Statement {
    explicit WaitStatement(ExpressionPtr theDuration) : duration(std::move(theDuration)) {}

    ExpressionPtr duration;
};

/// திரும்பு; the value is null for a bare return.
struct ReturnStatement : Statement {
    explicit ReturnStatement(ExpressionPtr theValue) : value(std::move(theValue)) {}

    ExpressionPtr value;
};

/// விடு: does nothing.
struct PassStatement : Statement {};

/// நிறுத்து: leaves the loop.
struct BreakStatement : Statement {};

/// தொடர்: goes on with the next round of the loop.
struct ContinueStatement : Statement {};

/// புதுப்பி(): asks for the page to be drawn again.
struct SetStateStatement : Statement {};

/// எனில்; the else branch is a block, a further IfStatement, or null.
struct IfStatement : Statement {
    IfStatement(ExpressionPtr theCondition, std::unique_ptr<BlockStatement> theThenBranch, StatementPtr theElseBranch)
        : condition(std::move(theCondition)), thenBranch(std::move(theThenBranch)),
          elseBranch(std::move(theElseBranch)) {}

    ExpressionPtr condition;
    std::unique_ptr<BlockStatement> thenBranch;
    StatementPtr elseBranch;
};

/// சுற்று: repeats while the condition holds.
struct WhileStatement : Statement {
    WhileStatement(ExpressionPtr theCondition, std::unique_ptr<BlockStatement> theBody)
        : condition(std::move(theCondition)), body(std::move(theBody)) {}

    ExpressionPtr condition;
    std::unique_ptr<BlockStatement> body;
};

/// ஒவ்வொன்றாக: walks a range, a list or a map.
struct ForStatement : Statement {
    ForStatement(Token theVariable, ExpressionPtr theIterable, std::unique_ptr<BlockStatement> theBody)
        : variable(std::move(theVariable)), iterable(std::move(theIterable)), body(std::move(theBody)) {}

    Token variable;
    ExpressionPtr iterable;
    std::unique_ptr<BlockStatement> body;
};

/// One நிலை of a தேர்வு.
struct CaseBlock {
    ExpressionPtr value;
    std::unique_ptr<BlockStatement> body;
};

/// தேர்வு; the default block (மற்றவை) may be null.
struct SwitchStatement : Statement {
    SwitchStatement(ExpressionPtr theSubject, std::vector<CaseBlock> theCases,
                    std::unique_ptr<BlockStatement> theDefaultBlock)
        : subject(std::move(theSubject)), cases(std::move(theCases)), defaultBlock(std::move(theDefaultBlock)) {}

    ExpressionPtr subject;
    std::vector<CaseBlock> cases;
    std::unique_ptr<BlockStatement> defaultBlock;
};

/// முயற்சி and பிடி.
struct TryCatchStatement : Statement {
    TryCatchStatement(std::unique_ptr<BlockStatement> theTryBlock, std::unique_ptr<BlockStatement> theCatchBlock,
                      std::string theErrorName)
        : tryBlock(std::move(theTryBlock)), catchBlock(std::move(theCatchBlock)), errorName(std::move(theErrorName)) {}

    std::unique_ptr<BlockStatement> tryBlock;
    std::unique_ptr<BlockStatement> catchBlock;
    std::string errorName;
};

/// A write to something other than a plain name.
struct SetStatement : Statement {
    SetStatement(ExpressionPtr theTarget, ExpressionPtr theValue)
        : target(std::move(theTarget)), value(std::move(theValue)) {}

    ExpressionPtr target;
    ExpressionPtr value;
};

/// A compound assignment that stands as a statement of its own.
struct CompoundAssignmentStatement : Statement {
    CompoundAssignmentStatement(ExpressionPtr theTarget, Token theOp, ExpressionPtr theValue)
        : target(std::move(theTarget)), op(std::move(theOp)), value(std::move(theValue)) {}

    ExpressionPtr target;
    Token op;
    ExpressionPtr value;
};

/// An increment or decrement that stands as a statement of its own.
struct IncrementStatement : Statement {
    IncrementStatement(ExpressionPtr theTarget, Token theOp) : target(std::move(theTarget)), op(std::move(theOp)) {}

    ExpressionPtr target;
    Token op;
};

} // namespace pozhil

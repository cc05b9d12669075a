#pragma once

#include "analysis/second/resolved/program.h"

namespace pozhil::resolved::writer {

/// Goes over expressions and statements with all that stands in them, in the order in which it is carried out. Bodies of
/// functions that stand inside are no part.
class TreeWalk {
public:
    virtual ~TreeWalk() = default;

    void walk(const Expression* expression);
    void walk(const Statement* statement);
    void walk(const TargetPlace& target);

protected:
    virtual void onVariableRead(const VariableRead&) {}
    /// The target is written, or passed as a place.
    virtual void onWrite(const TargetPlace&) {}
    /// Every expression, before its parts.
    virtual void onExpression(const Expression&) {}
    /// Every statement, before its parts.
    virtual void onStatement(const Statement&) {}
    virtual void afterStatement(const Statement&) {}

private:
    friend struct PartWalk;
};

} // namespace pozhil::resolved::writer

#pragma once

#include "diagnostics/fault.h"
#include "parser/tree/node.h"

#include <cstdint>
#include <string>

namespace pozhil {

/// The edition of the language that a web program is written in, as its pages see it: pages and widgets have the same
/// blocks in every edition, and the edition writes the user's expressions and statements in their holes.
class Edition {
public:
    virtual ~Edition() = default;

    /// Writes \p expression where the text ends. One that is missing is a fault.
    virtual void writeExpression(const Expression* expression) = 0;

    /// Writes \p statement, with its lines, at the present level of indentation.
    virtual void writeStatement(const Statement* statement) = 0;

    /// Writes \p statements at the present level, in a scope of their own: what they declare isn't known after them.
    virtual void writeBody(const StatementList& statements) = 0;

    /// A fault in the source that is told without its place, to be thrown.
    virtual Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const = 0;
};

} // namespace pozhil

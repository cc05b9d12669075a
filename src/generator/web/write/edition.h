#pragma once

#include <cstdint>
#include <string>

namespace pozhil {

struct Expression;
struct Statement;

/// The edition of the language that a web program is written in, as its pages see it: pages and widgets have the same
/// blocks in every edition, and the edition writes the user's expressions and statements in their holes.
class Edition {
public:
    virtual ~Edition() = default;

    /// Writes \p expression where the text ends.
    virtual void writeExpression(const Expression& expression) = 0;

    /// Writes \p statement, with its lines, at the present level of indentation.
    virtual void writeStatement(const Statement& statement) = 0;

    /// Raises a fault that is told without its place.
    [[noreturn]] virtual void placelessFault(const std::string& code, std::int32_t line,
                                             const std::string& details) = 0;
};

} // namespace pozhil

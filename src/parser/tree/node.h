#pragma once

#include <cstdint>
#include <memory>
#include <typeinfo>
#include <vector>

namespace pozhil {

/// Root of everything that yields a value. The generator tells node classes apart by run-time type tests.
struct Expression {
    virtual ~Expression() = default;

    /// Source line, 0 where the parser has none to give.
    std::int32_t line = 0;
};

/// Root of everything that is carried out.
struct Statement {
    virtual ~Statement() = default;

    /// Source line, 0 for most statements: diagnostics take the lines of the expressions inside.
    std::int32_t line = 0;
};

using ExpressionPtr = std::unique_ptr<Expression>;
using StatementPtr = std::unique_ptr<Statement>;
using ExpressionList = std::vector<ExpressionPtr>;
using StatementList = std::vector<StatementPtr>;

/// \p node as a \p Node if it is exactly that, null otherwise and for null. For classes that nothing derives from: the
/// generator asks this of every node many times over, and a general cast costs several times as much.
template <class Node, class Root> const Node* nodeCast(const Root* node) {
    return node != nullptr && &typeid(*node) == &typeid(Node) ? static_cast<const Node*>(node) : nullptr;
}

} // namespace pozhil

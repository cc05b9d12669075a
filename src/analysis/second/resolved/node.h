#pragma once

#include "analysis/second/resolved/kind.h"
#include "base/source_place.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace pozhil::resolved {

/// A part of one of the program's files.
struct Place {
    /// Index among Program::files.
    std::uint32_t file = 0;
    ByteRange range;
};

/// Root of everything that yields a value.
struct Expression {
    virtual ~Expression() = default;

    Place place;
    Kind kind = Kind::Any;
};

/// Root of everything that is carried out.
struct Statement {
    virtual ~Statement() = default;

    Place place;
};

using ExpressionPtr = std::unique_ptr<Expression>;
using StatementPtr = std::unique_ptr<Statement>;
using ExpressionList = std::vector<ExpressionPtr>;

} // namespace pozhil::resolved

#pragma once

#include "engine/calls.h"

#include <vector>

namespace pozhil::engine {

/// The block of a value with Tag::Function.
struct Closure : Counted {
    const FunctionInfo* info = nullptr;
    /// The shared variables that it uses; it holds on to each.
    std::vector<Cell*> cells{};
    /// The object of a method that is a value; unset for a function that has none.
    Value self = Value::unset();
};

inline Closure& functionBlock(const Value& value) {
    return *static_cast<Closure*>(value.block());
}

/// A value of the method that calls it on this object.
Value boundMethod(const FunctionInfo& info, const Value& self);

/// How many arguments a function wants; -1 of what is no function.
int parameterCount(const Value& callee);

/// Calls a method of an object that is known to have it, after counting the arguments.
/// \param arguments without the object
Value callBound(const FunctionInfo& info, const Value& self, Value* arguments, int count, Place place);

} // namespace pozhil::engine

#pragma once

#include "engine/calls.h"

#include <initializer_list>
#include <string>
#include <vector>

/// What texts, lists, maps and times can do after a dot.

namespace pozhil::engine {

/// One of them.
struct BuiltinMember {
    const char* name;
    /// The kinds of values that have it, bit Tag by Tag.
    unsigned kinds;
    /// A part is read without brackets.
    bool isPart;
    /// How many, without the value itself.
    int arguments;
    Value (*code)(Value& self, Value* arguments, Place place);
};

/// All rows, in no particular order.
struct BuiltinMembers {
    const BuiltinMember* begin;
    const BuiltinMember* end;
};
BuiltinMembers builtinMembers();

/// The one of this name that a value has, null if it has none.
const BuiltinMember* findBuiltinMember(const Value& value, Member name);

/// Notes which members of a program have names of builtin ones.
void numberBuiltinMembers(const ProgramInfo& program);

/// Tells what there is.
[[noreturn]] void raiseMissingBuiltin(const Value& value, Member name, Place place);

} // namespace pozhil::engine

#pragma once

#include "engine/calls.h"

#include <cstddef>
#include <vector>

namespace pozhil::engine {

/// What a name means in the objects of a structure.
struct MemberSlot {
    /// Index among the fields of an object; negative for a method, and for a name that means nothing.
    int field = -1;
    /// Null for a field, and for a name that means nothing.
    const FunctionInfo* method = nullptr;
    /// The structure that declares it; null for a name that means nothing.
    const Structure* owner = nullptr;
    bool isPrivate = false;

    bool isField() const { return field >= 0; }
};

struct Structure::Table {
    /// Of every member of the program, by its number.
    std::vector<MemberSlot> slots;
    int fieldCount = 0;
};

/// The block of a value with Tag::Object. Its fields lie right after it.
struct Object : Counted {
    const Structure* structure = nullptr;

    Value* fields() { return reinterpret_cast<Value*>(this + 1); }
};

inline Object& objectBlock(const Value& value) {
    return *static_cast<Object*>(value.block());
}

/// Makes the tables of all structures of a program. They stay, since objects in variables of files live until the end.
void makeTables(const ProgramInfo& program);

/// Whether code may use a member: what is private is for the methods of the structure that declares it and of its children.
/// \param inside the structure in whose method the code stands; null outside
bool maySee(const MemberSlot& slot, Member name, const Structure* inside);

/// The slot of a member as code inside of a structure sees it.
/// \param inside the structure in whose method this stands; null outside
/// \throw Fault if there is none, or if it is private to another structure
const MemberSlot& slotOf(const Object& object, Member name, Place place, const Structure* inside);

} // namespace pozhil::engine

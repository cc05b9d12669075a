#pragma once

#include "engine/members.h"

#include <cstddef>
#include <vector>

namespace pozhil::engine {

struct Structure::Table {
    /// Of every member of the program, by its number.
    std::vector<MemberSlot> slots;
    int fieldCount = 0;
};

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

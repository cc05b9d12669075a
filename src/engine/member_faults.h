#pragma once

#include "engine/object.h"

#include <string>
#include <string_view>
#include <vector>

/// What is told of a member that isn't there.

namespace pozhil::engine {

/// A member as the program writes it.
const char* memberName(Member name);

/// Tells the members of the object that the code may see.
[[noreturn]] void raiseMissingMember(const Object& object, Member name, Place place, const Structure* inside);

/// Tells the members that a value without a structure has.
/// \param owner what the value is, in words
/// \param remedy what to do about it, if that isn't what the catalogue says
[[noreturn]] void raiseMissingMember(std::string_view owner, Member name, std::vector<std::string> members, Place place,
                                     std::string_view remedy = {});

} // namespace pozhil::engine

#pragma once

#include "analysis/second/kinds.h"

#include <string>

namespace pozhil::second {

/// A member where it is named.
struct Member {
    const std::string& name;
    resolved::Place place;
    /// The structure in whose method that is; null outside.
    const resolved::Structure* inside;
};

/// A fault if an object certainly has no such member, or one that can't be used there.
/// \return whether the member is there, as far as is known
bool checkMember(Model& model, const Certainty& object, const Member& member);

/// The same for a call, with its number of arguments.
void checkMethodCall(Model& model, const Certainty& object, const Member& member, const resolved::MethodCall& call);

} // namespace pozhil::second

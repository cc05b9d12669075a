#pragma once

#include "analysis/hints/name_uses.h"

#include <string_view>
#include <unordered_map>

namespace pozhil {

/// How the members of a name are used.
struct MemberUse {
    const Expression* mention = nullptr;
    /// Where it is read first outside of முயற்சி, null if nowhere
    const Expression* read = nullptr;
    bool isSet = false;
};

using MemberUses = std::unordered_map<std::string_view, MemberUse>;

/// Variables that are read and never assigned, unless the way in which they are written tells why.
void findUnassigned(const NameUses& names, const MemberUses& members, const Parser& parser, HintList& found);

/// Members that are read and never set.
void findUnsetMembers(const MemberUses& members, HintList& found);

/// Names that look like another one of the program.
void findTwins(const NameUses& names, const MemberUses& members, HintList& found);

} // namespace pozhil

#include "engine/member_faults.h"

#include "engine/nearest_names.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/running_program.h"

#include <algorithm>
#include <cstddef>

namespace pozhil::engine {
namespace {

/// The names in a row, of many only the first.
std::string listed(const std::vector<Candidate>& candidates) {
    constexpr std::size_t MOST = 12;
    std::string text;
    for (std::size_t i = 0; i < std::min(candidates.size(), MOST); ++i) {
        text += (i == 0 ? "'" : ", '") + candidates[i].name + "'";
    }
    return candidates.size() > MOST ? text + " …" : text;
}

} // namespace

const char* memberName(Member name) {
    return runningProgram().members[name];
}

void raiseMissingMember(const Object& object, Member name, Place place, const Structure* inside) {
    std::vector<std::string> members;
    const std::vector<MemberSlot>& slots = object.structure->table->slots;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const auto member = static_cast<Member>(i);
        if (slots[i].owner != nullptr && maySee(slots[i], member, inside)) {
            members.emplace_back(memberName(member));
        }
    }
    raiseMissingMember(object.structure->name, name, std::move(members), place);
}

void raiseMissingMember(std::string_view owner, Member name, std::vector<std::string> members, Place place,
                        std::string_view remedy) {
    const std::string_view word = memberName(name);
    if (members.empty()) {
        raise(HAS_NO_MEMBERS, place, {owner, word});
    }
    const std::vector<Candidate> candidates = nearestFirst(word, members);
    raise(NO_SUCH_MEMBER, place, {owner, word, listed(candidates)}, suggestionFor(word, candidates), remedy);
}

} // namespace pozhil::engine

#include "engine/member_faults.h"

#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/running_program.h"
#include "report/width.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace pozhil::engine {
namespace {

using Letters = std::vector<std::string_view>;

Letters lettersOf(std::string_view word) {
    Letters letters;
    while (!word.empty()) {
        letters.push_back(word.substr(0, report::firstLetterSize(word)));
        word.remove_prefix(letters.back().size());
    }
    return letters;
}

/// How many letters must be inserted, dropped or replaced to make one word of the other (Levenshtein).
std::size_t distance(const Letters& from, const Letters& to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row.front();
        row.front() = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

struct Candidate {
    std::string name;
    std::size_t distance;
};

/// The names with those first that \p word is most likely meant to be.
std::vector<Candidate> nearestFirst(std::string_view word, const std::vector<std::string>& names) {
    const Letters letters = lettersOf(word);
    std::vector<Candidate> candidates;
    candidates.reserve(names.size());
    for (const std::string& name : names) {
        candidates.push_back({name, distance(letters, lettersOf(name))});
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate& left, const Candidate& right) { return left.distance < right.distance; });
    return candidates;
}

/// The names in a row, of many only the first.
std::string listed(const std::vector<Candidate>& candidates) {
    constexpr std::size_t MOST = 12;
    std::string text;
    for (std::size_t i = 0; i < std::min(candidates.size(), MOST); ++i) {
        text += (i == 0 ? "'" : ", '") + candidates[i].name + "'";
    }
    return candidates.size() > MOST ? text + " …" : text;
}

/// A sentence with the nearest name, empty if none is near.
std::string suggestionFor(std::string_view word, const std::vector<Candidate>& candidates) {
    constexpr std::size_t LETTERS_PER_CHANGE = 3;
    const std::size_t limit = std::max(std::size_t{1}, lettersOf(word).size() / LETTERS_PER_CHANGE);
    if (candidates.empty() || candidates.front().distance > limit) {
        return "";
    }
    return "'" + candidates.front().name + "' என்று எழுத நினைத்தாயா?";
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

void raiseMissingMember(std::string_view owner, Member name, std::vector<std::string> members, Place place) {
    const std::string_view word = memberName(name);
    if (members.empty()) {
        raise(HAS_NO_MEMBERS, place, {owner, word});
    }
    const std::vector<Candidate> candidates = nearestFirst(word, members);
    raise(NO_SUCH_MEMBER, place, {owner, word, listed(candidates)}, suggestionFor(word, candidates));
}

} // namespace pozhil::engine

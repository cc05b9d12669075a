#include "scanner/spelling.h"

#include "base/letters.h"
#include "scanner/keywords.h"

#include <algorithm>
#include <vector>

namespace pozhil {
namespace {

constexpr std::size_t SHORTEST_CHECKED_WORD = 4;

const std::vector<Letters>& splitCandidates() {
    static const std::vector<Letters> split = [] {
        std::vector<Letters> candidates;
        for (const std::string_view word : typoCandidates()) {
            candidates.push_back(splitLetters(word));
        }
        return candidates;
    }();
    return split;
}

} // namespace

bool looksLikeMisspeltKeyword(std::string_view word) {
    const Letters letters = splitLetters(word);
    if (letters.size() < SHORTEST_CHECKED_WORD) {
        return false;
    }
    const std::vector<Letters>& candidates = splitCandidates();
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](const Letters& keyword) { return letterDistance(letters, keyword, 1) == 1; });
}

std::string_view keywordMeantBy(std::string_view word) {
    const Letters letters = splitLetters(word);
    std::string_view meant;
    for (const std::string_view keyword : typoCandidates()) {
        if (letterDistance(letters, splitLetters(keyword), 1) == 1) {
            if (!meant.empty()) {
                return {};
            }
            meant = keyword;
        }
    }
    return meant;
}

} // namespace pozhil

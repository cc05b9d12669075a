#include "scanner/spelling.h"

#include "base/utf8.h"
#include "scanner/keywords.h"

#include <algorithm>
#include <vector>

namespace pozhil {
namespace {

using Letters = std::vector<std::string_view>;

constexpr std::size_t SHORTEST_CHECKED_WORD = 4;

Letters splitLetters(std::string_view word) {
    Letters letters;
    while (!word.empty()) {
        letters.push_back(firstCharacter(word));
        word.remove_prefix(letters.back().size());
    }
    return letters;
}

/// Whether the Levenshtein distance of two words is exactly 1: after their common beginning, one of them skips
/// one letter (or both do), and the rest is equal.
bool differByOneLetter(const Letters& a, const Letters& b) {
    const Letters& shorter = a.size() <= b.size() ? a : b;
    const Letters& longer = a.size() <= b.size() ? b : a;
    const std::size_t extra = longer.size() - shorter.size();
    if (extra > 1) {
        return false;
    }
    auto [inShorter, inLonger] = std::mismatch(shorter.begin(), shorter.end(), longer.begin());
    if (inLonger == longer.end()) {
        return false;
    }
    if (extra == 0) {
        ++inShorter;
    }
    return std::equal(inShorter, shorter.end(), inLonger + 1, longer.end());
}

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
                       [&](const Letters& keyword) { return differByOneLetter(letters, keyword); });
}

} // namespace pozhil

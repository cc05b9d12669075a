#include "engine/nearest_names.h"

#include "report/width.h"

#include <algorithm>
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

} // namespace

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

std::string suggestionFor(std::string_view word, const std::vector<Candidate>& candidates) {
    constexpr std::size_t LETTERS_PER_CHANGE = 3;
    const std::size_t limit = std::max(std::size_t{1}, lettersOf(word).size() / LETTERS_PER_CHANGE);
    if (candidates.empty() || candidates.front().distance > limit) {
        return "";
    }
    return "'" + candidates.front().name + "' என்று எழுத நினைத்தாயா?";
}

} // namespace pozhil::engine

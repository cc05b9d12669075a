#include "base/letters.h"

#include "base/utf8.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace pozhil {

Letters splitLetters(std::string_view word) {
    Letters letters;
    while (!word.empty()) {
        letters.push_back(firstCharacter(word));
        word.remove_prefix(letters.back().size());
    }
    return letters;
}

std::size_t letterDistance(const Letters& a, const Letters& b, std::size_t limit) {
    const Letters& shorter = a.size() <= b.size() ? a : b;
    const Letters& longer = a.size() <= b.size() ? b : a;
    if (longer.size() - shorter.size() > limit) {
        return limit + 1;
    }
    // What both begin and end with needs no change, and most words differ in the middle alone.
    const auto begins = std::mismatch(shorter.begin(), shorter.end(), longer.begin());
    const auto ends = std::mismatch(shorter.rbegin(), std::make_reverse_iterator(begins.first), longer.rbegin());
    const Letters from(begins.first, ends.first.base());
    const Letters to(begins.second, ends.second.base());

    std::vector<std::size_t> distances(to.size() + 1);
    std::iota(distances.begin(), distances.end(), std::size_t(0));
    for (std::size_t row = 0; row < from.size(); ++row) {
        std::size_t diagonal = distances.front();
        distances.front() = row + 1;
        for (std::size_t column = 0; column < to.size(); ++column) {
            const std::size_t replaced = diagonal + (from[row] == to[column] ? 0 : 1);
            diagonal = distances[column + 1];
            distances[column + 1] = std::min({replaced, diagonal + 1, distances[column] + 1});
        }
        if (*std::min_element(distances.begin(), distances.end()) > limit) {
            return limit + 1;
        }
    }
    return std::min(distances.back(), limit + 1);
}

std::string_view nearestWord(std::string_view word, const std::vector<std::string_view>& known) {
    constexpr std::size_t LETTERS_PER_CHANGE = 3;
    constexpr std::size_t MOST_CHANGES = 3;
    const Letters letters = splitLetters(word);
    std::size_t limit = std::min(letters.size() / LETTERS_PER_CHANGE, MOST_CHANGES);
    std::string_view nearest;
    for (const std::string_view one : known) {
        const std::size_t distance = letterDistance(letters, splitLetters(one), limit);
        if (distance != 0 && distance <= limit) {
            nearest = one;
            limit = distance - 1;
        }
    }
    return nearest;
}

bool isOnlyNearest(std::string_view word, std::string_view nearest, const std::vector<std::string_view>& known) {
    const Letters letters = splitLetters(word);
    const std::size_t distance = letterDistance(letters, splitLetters(nearest), letters.size());
    return std::none_of(known.begin(), known.end(), [&](std::string_view other) {
        return other != nearest && other != word && letterDistance(letters, splitLetters(other), distance) <= distance;
    });
}

} // namespace pozhil

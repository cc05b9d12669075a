#include "analysis/second/nearest_name.h"

#include "base/letters.h"
#include "base/script_checks.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace pozhil::second {
namespace {

/// The letters as they are written: a sign belongs to the letter before it.
Letters writtenLetters(std::string_view word) {
    Letters letters;
    for (const std::string_view character : splitLetters(word)) {
        if (script::isVowelSign(character) && !letters.empty()) {
            // Both are parts of the word, one after the other.
            letters.back() = {letters.back().data(), letters.back().size() + character.size()};
        } else {
            letters.push_back(character);
        }
    }
    return letters;
}

} // namespace

std::string_view nearestName(std::string_view name, const std::vector<std::string_view>& known) {
    constexpr std::size_t LETTERS_PER_CHANGE = 3;
    constexpr std::size_t MOST_CHANGES = 3;
    const Letters letters = writtenLetters(name);
    const Letters characters = splitLetters(name);
    if (letters.size() < 2) {
        return {};
    }
    const std::size_t limit = std::clamp<std::size_t>(letters.size() / LETTERS_PER_CHANGE, 1, MOST_CHANGES);
    std::string_view nearest;
    // Of names with as many wrong letters, the one where fewer signs are wrong.
    std::pair<std::size_t, std::size_t> least(limit + 1, 0);
    for (const std::string_view one : known) {
        const std::size_t distance = letterDistance(letters, writtenLetters(one), limit);
        if (distance == 0 || distance > least.first) {
            continue;
        }
        const std::size_t signs = letterDistance(characters, splitLetters(one), characters.size());
        if (const std::pair<std::size_t, std::size_t> both(distance, signs); both < least) {
            least = both;
            nearest = one;
        }
    }
    return nearest;
}

} // namespace pozhil::second

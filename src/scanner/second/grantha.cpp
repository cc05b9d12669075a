#include "scanner/second/grantha.h"

#include "base/text.h"
#include "base/utf8.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

struct Spelling {
    std::string_view grantha;
    std::string_view tamil;
};

// At the beginning of a word alone: Tamil words don't begin with two consonants.
constexpr Spelling BEGINNINGS[] = {
    {"ஸ்ரீ", "சிறீ"},
    {"ஸ்", "இசு"},
};

// Longer ones come before those that they begin with. Where no vowel comes after the letter, one is written, since a
// consonant of this kind doesn't stand alone in Tamil: எக்சு, ராசு.
constexpr Spelling SPELLINGS[] = {
    {"க்ஷ்", "ட்சு"}, {"க்ஷ", "ட்ச"}, {"ஸ்ரீ", "சிறீ"}, {"ஸ்ஸ", "ச்ச"}, {"ஷ்ஷ", "ச்ச"}, {"ஜ்ஜ", "ச்ச"},
    {"ஷ்ட", "ட்ட"},  {"ஷ்ண", "ட்ண"}, {"ஸ்த", "த்த"},  {"ஸ்", "சு"},  {"ஷ்", "சு"},  {"ஜ்", "சு"},
    {"ஹ்", "கு"},   {"ஸ", "ச"},   {"ஷ", "ச"},    {"ஜ", "ச"},   {"ஹ", "க"},
};

template <std::size_t count> const Spelling* findSpelling(const Spelling (&rows)[count], std::string_view text) {
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&](const Spelling& one) { return startsWith(text, one.grantha); });
    return row == std::end(rows) ? nullptr : row;
}

} // namespace

std::string withoutGrantha(std::string_view word) {
    std::string result;
    while (!word.empty()) {
        const Spelling* spelling = result.empty() ? findSpelling(BEGINNINGS, word) : nullptr;
        if (spelling == nullptr) {
            spelling = findSpelling(SPELLINGS, word);
        }
        const std::string_view letter = spelling == nullptr ? firstCharacter(word) : spelling->grantha;
        result += spelling == nullptr ? letter : spelling->tamil;
        word.remove_prefix(letter.size());
    }
    return result;
}

} // namespace pozhil::second

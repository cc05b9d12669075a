#include "tools/language_server/transliteration.h"

#include "base/letters.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <vector>

namespace pozhil::language_server {
namespace {

using Sounds = std::array<std::string_view, 4>;

/// A letter and what it may be typed as; empty ones don't exist.
struct Letter {
    std::string_view letter;
    Sounds sounds;
};

constexpr std::string_view PULLI = "்";

// clang-format off
constexpr Letter VOWELS[] = {
    {"அ", {"a"}}, {"ஆ", {"aa", "a"}}, {"இ", {"i"}}, {"ஈ", {"ii", "ee", "i"}}, {"உ", {"u"}}, {"ஊ", {"uu", "oo", "u"}},
    {"எ", {"e"}}, {"ஏ", {"ee", "ae", "e"}}, {"ஐ", {"ai"}}, {"ஒ", {"o"}}, {"ஓ", {"oo", "o"}}, {"ஔ", {"au"}}, {"ஃ", {"q", "h"}},
};

constexpr Letter SIGNS[] = {
    {"ா", {"aa", "a"}}, {"ி", {"i"}}, {"ீ", {"ii", "ee", "i"}}, {"ு", {"u"}}, {"ூ", {"uu", "oo", "u"}}, {"ெ", {"e"}},
    {"ே", {"ee", "ae", "e"}}, {"ை", {"ai"}}, {"ொ", {"o"}}, {"ோ", {"oo", "o"}}, {"ௌ", {"au"}},
};

constexpr Letter CONSONANTS[] = {
    {"க", {"k", "g", "h"}}, {"ங", {"ng", "n"}}, {"ச", {"c", "ch", "s"}}, {"ஞ", {"nj", "ny", "n"}}, {"ட", {"t", "d"}}, {"ண", {"n"}},
    {"த", {"t", "th", "d", "dh"}}, {"ந", {"n"}}, {"ப", {"p", "b"}}, {"ம", {"m"}}, {"ய", {"y"}}, {"ர", {"r"}}, {"ல", {"l"}}, {"வ", {"v", "w"}},
    {"ழ", {"zh", "z", "l"}}, {"ள", {"l"}}, {"ற", {"r", "tr"}}, {"ன", {"n"}}, {"ஜ", {"j"}}, {"ஷ", {"sh"}}, {"ஸ", {"s"}}, {"ஹ", {"h"}},
};
// clang-format on

template <std::size_t N> const Sounds* soundsOf(const Letter (&table)[N], std::string_view letter) {
    const auto* const found =
        std::find_if(std::begin(table), std::end(table), [&](const Letter& row) { return row.letter == letter; });
    return found == std::end(table) ? nullptr : &found->sounds;
}

/// How much of what was typed the word has come to so far: all that is possible.
class Match {
public:
    explicit Match(std::string_view typed) : typed_(typed), reached_{0} {}

    bool isWhole() const { return isWhole_; }

    /// Goes on by one of these sounds.
    /// \param mayLack whether it may be left out
    void step(const Sounds& sounds, bool mayLack = false) {
        std::vector<std::size_t> next = mayLack ? reached_ : std::vector<std::size_t>();
        for (const std::size_t at : reached_) {
            const std::string_view rest = typed_.substr(at);
            for (const std::string_view sound : sounds) {
                isWhole_ = isWhole_ || (!sound.empty() && startsWith(sound, rest));
                if (!sound.empty() && startsWith(rest, sound)) {
                    next.push_back(at + sound.size());
                }
            }
        }
        std::sort(next.begin(), next.end());
        next.erase(std::unique(next.begin(), next.end()), next.end());
        reached_ = std::move(next);
    }

private:
    std::string_view typed_;
    std::vector<std::size_t> reached_;
    bool isWhole_ = false;
};

bool soundsLike(std::string_view word, std::string_view typed) {
    static constexpr Sounds SHORT_A = {"a"};
    Match match(typed);
    bool isConsonant = false;
    std::string_view last;
    bool isLastSilent = false;
    for (const std::string_view letter : splitLetters(word)) {
        const Sounds* const sign = soundsOf(SIGNS, letter);
        if (isConsonant && sign == nullptr && letter != PULLI) {
            match.step(SHORT_A);
        }
        const Sounds* const consonant = soundsOf(CONSONANTS, letter);
        isConsonant = consonant != nullptr;
        const Sounds* sounds = consonant != nullptr ? consonant : sign;
        sounds = sounds != nullptr ? sounds : soundsOf(VOWELS, letter);
        if (letter != PULLI) {
            // One that is doubled may be typed once.
            match.step(sounds != nullptr ? *sounds : Sounds{letter}, isLastSilent && letter == last);
            last = letter;
        }
        isLastSilent = letter == PULLI;
        if (match.isWhole()) {
            return true;
        }
    }
    if (isConsonant) {
        match.step(SHORT_A);
    }
    return match.isWhole();
}

} // namespace

bool beginsWith(std::string_view word, std::string_view typed) {
    const std::string_view letters = endsWith(typed, PULLI) ? typed.substr(0, typed.size() - PULLI.size()) : typed;
    if (startsWith(word, letters)) {
        return true;
    }
    const bool isLatin =
        std::all_of(typed.begin(), typed.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    std::string small(typed);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return isLatin && soundsLike(word, small);
}

} // namespace pozhil::language_server

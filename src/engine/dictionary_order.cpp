#include "engine/code_points.h"
#include "engine/text.h"

#include <algorithm>
#include <cstdint>

/// The order of a Tamil dictionary: அ ஆ … ஔ ஃ, then each consonant with its vowels, க் க கா கி … கௌ ங் ங …, those of
/// Grantha after ன. Digits, Latin and all that Unicode has before Tamil come before it, the rest after it.

namespace pozhil::engine {
namespace {

/// க்ஷ counts as a consonant of its own. It comes after the block's code points, as if it were one more.
constexpr char32_t KSSA = TAMIL_END;
constexpr char32_t KA = 0x0B95;
constexpr char32_t SSA = 0x0BB7;

// clang-format off
/// The code points of Tamil in their order. Those that aren't here, signs that stand alone among them, come after these.
constexpr char32_t ORDER[] = {
    U'௦', U'௧', U'௨', U'௩', U'௪', U'௫', U'௬', U'௭', U'௮', U'௯', U'௰', U'௱', U'௲',
    U'௳', U'௴', U'௵', U'௶', U'௷', U'௸', U'௹', U'௺', U'ௐ',
    U'அ', U'ஆ', U'இ', U'ஈ', U'உ', U'ஊ', U'எ', U'ஏ', U'ஐ', U'ஒ', U'ஓ', U'ஔ', U'ஃ',
    U'க', U'ங', U'ச', U'ஞ', U'ட', U'ண', U'த', U'ந', U'ப', U'ம', U'ய', U'ர', U'ல', U'வ', U'ழ', U'ள', U'ற', U'ன',
    U'ஜ', U'ஶ', U'ஷ', U'ஸ', U'ஹ', KSSA,
};
/// What a consonant stands with: pulli, nothing, or a sign.
constexpr char32_t NO_SIGN = 0;
constexpr char32_t VOWELS[] = {
    PULLI, NO_SIGN, U'ா', U'ி', U'ீ', U'ு', U'ூ', U'ெ', U'ே', U'ை', U'ொ', U'ோ', U'ௌ',
};
// clang-format on

constexpr std::uint32_t TAMIL_COUNT = TAMIL_END - TAMIL_BEGIN;
constexpr std::uint32_t LETTER_COUNT = TAMIL_COUNT + 1;

/// By code point, without the begin of the block. No two texts weigh the same, whatever they hold: maps find keys by it.
struct Ranks {
    std::uint32_t ofLetter[LETTER_COUNT] = {};
    /// 0 for what is no vowel sign.
    std::uint32_t ofSign[TAMIL_COUNT] = {};
    std::uint32_t ofNoSign = 0;
};

constexpr Ranks makeRanks() {
    Ranks ranks{};
    std::uint32_t rank = 0;
    for (const char32_t letter : ORDER) {
        ranks.ofLetter[letter - TAMIL_BEGIN] = ++rank;
    }
    for (std::uint32_t& ofOther : ranks.ofLetter) {
        ofOther = ofOther == 0 ? ++rank : ofOther;
    }
    rank = 0;
    for (const char32_t sign : VOWELS) {
        (sign == NO_SIGN ? ranks.ofNoSign : ranks.ofSign[sign - TAMIL_BEGIN]) = ++rank;
    }
    return ranks;
}

constexpr Ranks RANKS = makeRanks();

/// The place that a code point of Tamil, or KSSA, has in the order of all code points.
char32_t placeOfTamil(char32_t letter) {
    return TAMIL_BEGIN + RANKS.ofLetter[letter - TAMIL_BEGIN] - 1;
}

/// The same of any code point. KSSA takes one place more than the block has.
char32_t placeOf(char32_t codePoint) {
    return isTamil(codePoint) ? placeOfTamil(codePoint) : codePoint < TAMIL_BEGIN ? codePoint : codePoint + 1;
}

/// What is compared at once: a letter with the sign that it stands with.
struct Unit {
    std::uint32_t weight;
    std::size_t end;
};

bool isConsonant(char32_t codePoint) {
    return codePoint >= KA && codePoint <= U'ஹ';
}

/// The code point at a position, 0 at the end.
CodePoint codePointOrEnd(std::string_view text, std::size_t position) {
    return position < text.size() ? codePointAt(text, position) : CodePoint{0, 0};
}

Unit consonantAt(std::string_view text, std::size_t position) {
    constexpr std::size_t TAMIL_SIZE = 3;
    char32_t consonant = codePointAt(text, position).value;
    std::size_t end = position + TAMIL_SIZE;
    const bool isKssa = consonant == KA && codePointOrEnd(text, end).value == PULLI &&
                        codePointOrEnd(text, end + TAMIL_SIZE).value == SSA;
    if (isKssa) {
        consonant = KSSA;
        end += 2 * TAMIL_SIZE;
    }
    const char32_t next = codePointOrEnd(text, end).value;
    std::uint32_t sign = isTamil(next) ? RANKS.ofSign[next - TAMIL_BEGIN] : 0;
    if (sign == 0) {
        sign = RANKS.ofNoSign;
    } else {
        end += TAMIL_SIZE;
    }
    return {placeOfTamil(consonant) << 8 | sign, end};
}

Unit unitAt(std::string_view text, std::size_t position) {
    const CodePoint first = codePointAt(text, position);
    if (isConsonant(first.value)) {
        return consonantAt(text, position);
    }
    return {static_cast<std::uint32_t>(placeOf(first.value)) << 8, position + first.size};
}

/// A place from which on the texts are to be compared: before it they are the same, unit for unit.
std::size_t comparedFrom(std::string_view left, std::string_view right) {
    const std::size_t shorter = std::min(left.size(), right.size());
    const auto mismatch =
        std::mismatch(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(shorter), right.begin());
    auto position = static_cast<std::size_t>(mismatch.first - left.begin());
    if (position < left.size()) {
        position = codePointBegin(left, position);
    }
    // A unit has four code points at most, so the one that holds the mismatch begins no more than three before it.
    for (int back = 0; back < 3 && position > 0; ++back) {
        position = codePointBegin(left, position - 1);
    }
    return position;
}

} // namespace

int compareTexts(std::string_view left, std::string_view right) {
    std::size_t atLeft = comparedFrom(left, right);
    std::size_t atRight = atLeft;
    while (atLeft < left.size() && atRight < right.size()) {
        const Unit leftUnit = unitAt(left, atLeft);
        const Unit rightUnit = unitAt(right, atRight);
        if (leftUnit.weight != rightUnit.weight) {
            return leftUnit.weight < rightUnit.weight ? -1 : 1;
        }
        atLeft = leftUnit.end;
        atRight = rightUnit.end;
    }
    return atLeft < left.size() ? 1 : atRight < right.size() ? -1 : 0;
}

} // namespace pozhil::engine

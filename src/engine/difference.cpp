#include "engine/difference.h"

#include "engine/list.h"
#include "engine/map.h"
#include "engine/operations.h"
#include "engine/text.h"
#include "engine/text_scan.h"
#include "engine/told_value.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace pozhil::engine {
namespace {

constexpr std::size_t MOST_PLACES = 10;
/// Lists inside each other beyond this are compared as one value.
constexpr int DEEPEST = 50;
/// A text that differs after so many letters is told from there, with so many letters before that.
constexpr std::size_t LETTERS_TOLD = 20;
constexpr std::size_t LETTERS_BEFORE = 10;

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

bool hasLines(const Value& value) {
    return textOf(value).find('\n') != std::string_view::npos;
}

/// A value with its kind where the form alone could be that of another: 1 and "1" look alike without it, மெய் as well.
std::string told(const Value& value) {
    return toldValue(value) + " (" + kindWord(value) + ")";
}

/// How many letters two texts begin with alike.
std::size_t sameLetters(std::string_view one, std::string_view other) {
    std::size_t letters = 0;
    std::size_t begin = 0;
    while (begin < one.size() && begin < other.size()) {
        const std::size_t end = letterEnd(one, begin);
        if (end != letterEnd(other, begin) || one.substr(begin, end - begin) != other.substr(begin, end - begin)) {
            break;
        }
        begin = end;
        ++letters;
    }
    return letters;
}

using Index = std::optional<std::size_t>;

/// Lays two sequences beside each other, by their indices. If one is longer, what is over stands where they begin to
/// differ, and what both end in alike is passed over: where something was put in or left out, all after it isn't different.
/// \param areEqual whether an element of the first is equal to one of the second
/// \param pair takes the indices of two elements; none if there is no such element
template <class AreEqual, class Pair>
void laySideBySide(std::size_t one, std::size_t other, AreEqual areEqual, Pair pair) {
    std::size_t begin = 0;
    if (one != other) {
        while (begin < std::min(one, other) && areEqual(begin, begin)) {
            ++begin;
        }
        while (std::min(one, other) > begin && areEqual(one - 1, other - 1)) {
            --one;
            --other;
        }
    }
    for (std::size_t index = begin; index < std::max(one, other); ++index) {
        pair(index < one ? Index(index) : std::nullopt, index < other ? Index(index) : std::nullopt);
    }
}

std::string_view withoutLetters(std::string_view text, std::size_t count) {
    std::size_t begin = 0;
    for (std::size_t letter = 0; letter < count; ++letter) {
        begin = letterEnd(text, begin);
    }
    return text.substr(begin);
}

class Comparison {
public:
    std::string compare(const Value& got, const Value& wanted) {
        goInto("", got, wanted, 0);
        if (count_ > MOST_PLACES) {
            text_ += "மேலும் வேறுபடும் இடங்கள்: " + std::to_string(count_ - MOST_PLACES) + ".\n";
        }
        return text_.substr(0, text_.size() - (text_.empty() ? 0 : 1));
    }

private:
    void goInto(const std::string& place, const Value& got, const Value& wanted, int depth) {
        if (equalValues(got, wanted)) {
            return;
        }
        if (depth < DEEPEST && got.is(Tag::List) && wanted.is(Tag::List)) {
            compareLists(place, listBlock(got), listBlock(wanted), depth + 1);
        } else if (depth < DEEPEST && got.is(Tag::Map) && wanted.is(Tag::Map)) {
            compareMaps(place, mapBlock(got), mapBlock(wanted), depth + 1);
        } else if (got.is(Tag::Text) && wanted.is(Tag::Text) && (hasLines(got) || hasLines(wanted))) {
            compareLines(place, textOf(got), textOf(wanted));
        } else if (isTold()) {
            tellValues(place, got, wanted);
        }
    }

    void compareLists(const std::string& place, const List& got, const List& wanted, int depth) {
        if (got.size != wanted.size && isTold()) {
            tell(withWord(place, "நீளம்"), std::to_string(got.size), std::to_string(wanted.size));
        }
        const auto areEqual = [&](std::size_t one, std::size_t other) {
            return equalValues(got.elements[one], wanted.elements[other]);
        };
        laySideBySide(got.size, wanted.size, areEqual, [&](Index mine, Index theirs) {
            const std::string element = place + "[" + std::to_string(mine.value_or(theirs.value_or(0))) + "]";
            compareElements(element, mine ? &got.elements[*mine] : nullptr,
                            theirs ? &wanted.elements[*theirs] : nullptr, depth);
        });
    }

    void compareMaps(const std::string& place, Map& got, Map& wanted, int depth) {
        const auto entry = [&](const Value& key) { return place + "[" + toldValue(key) + "]"; };
        for (std::size_t index = 0; index < mapSize(wanted); ++index) {
            const Value& key = keyAt(wanted, index);
            compareElements(entry(key), findKey(got, key), &valueAt(wanted, index), depth);
        }
        for (std::size_t index = 0; index < mapSize(got); ++index) {
            const Value& key = keyAt(got, index);
            if (findKey(wanted, key) == nullptr) {
                compareElements(entry(key), &valueAt(got, index), nullptr, depth);
            }
        }
    }

    /// \param got, wanted null for what isn't there
    void compareElements(const std::string& place, const Value* got, const Value* wanted, int depth) {
        if (got != nullptr && wanted != nullptr) {
            goInto(place, *got, *wanted, depth);
        } else if (isTold()) {
            tell(place, got == nullptr ? ABSENT : toldValue(*got), wanted == nullptr ? ABSENT : toldValue(*wanted));
        }
    }

    void compareLines(const std::string& place, std::string_view got, std::string_view wanted) {
        const std::vector<std::string_view> mine = linesOf(got);
        const std::vector<std::string_view> theirs = linesOf(wanted);
        const auto areEqual = [&](std::size_t one, std::size_t other) { return mine[one] == theirs[other]; };
        laySideBySide(mine.size(), theirs.size(), areEqual, [&](Index one, Index other) {
            const bool areThere = one && other;
            if ((areThere && areEqual(*one, *other)) || !isTold()) {
                return;
            }
            const std::string line = withWord(place, "வரி " + std::to_string(one.value_or(other.value_or(0)) + 1));
            if (areThere) {
                tellTexts(line, mine[*one], theirs[*other]);
            } else {
                tell(line, one ? quoted(mine[*one]) : ABSENT, other ? quoted(theirs[*other]) : ABSENT);
            }
        });
    }

    void tellValues(const std::string& place, const Value& got, const Value& wanted) {
        if (got.is(Tag::Text) && wanted.is(Tag::Text)) {
            tellTexts(place, textOf(got), textOf(wanted));
        } else if (told(got) != told(wanted)) {
            tell(place, told(got), told(wanted));
        } else if (const std::string form = textForm(got), other = textForm(wanted); form != other) {
            const std::size_t first = sameLetters(form, other) - LETTERS_BEFORE;
            tell(place, "…" + shortened(withoutLetters(form, first)), "…" + shortened(withoutLetters(other, first)));
        } else {
            tell(place, told(got), told(wanted) + " — அச்சில் ஒன்றுபோல; ஆனால் சமமில்லை");
        }
    }

    /// Long ones from a few letters before they differ, since of a long text only the beginning is told.
    void tellTexts(const std::string& place, std::string_view got, std::string_view wanted) {
        const std::size_t letter = sameLetters(got, wanted);
        if (letter < LETTERS_TOLD) {
            tell(place, quoted(got), quoted(wanted));
            return;
        }
        const std::size_t first = letter - LETTERS_BEFORE;
        tell(withWord(place, "எழுத்து " + std::to_string(letter + 1)), "…" + quoted(withoutLetters(got, first)),
             "…" + quoted(withoutLetters(wanted, first)));
    }

    static std::string quoted(std::string_view text) { return toldValue(normalText(text)); }

    static std::string withWord(const std::string& place, const std::string& word) {
        return place + (place.empty() ? "" : " ") + word;
    }

    /// Counts a place where they differ.
    /// \return whether it is among those that are told; forms of the others aren't even made, since they may be long
    bool isTold() { return ++count_ <= MOST_PLACES; }

    void tell(const std::string& place, const std::string& got, const std::string& wanted) {
        const std::string margin = place.empty() ? "" : "  ";
        text_ += place.empty() ? "" : place + ":\n";
        text_ += margin + "பெற்றது: " + got + "\n" + margin + "வேண்டியது: " + wanted + "\n";
    }

    inline static const std::string ABSENT = "இல்லை";

    std::size_t count_ = 0;
    std::string text_;
};

} // namespace

std::string differenceOf(const Value& got, const Value& wanted) {
    return Comparison().compare(got, wanted);
}

} // namespace pozhil::engine

#include "engine/difference.h"

#include "engine/list.h"
#include "engine/map.h"
#include "engine/operations.h"
#include "engine/text.h"
#include "engine/told_value.h"

#include <algorithm>
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
        text_.pop_back();
        return text_;
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
        } else if (got.is(Tag::Text) && wanted.is(Tag::Text)) {
            tellTexts(place, textOf(got), textOf(wanted));
        } else {
            const bool lookAlike = told(got) == told(wanted);
            tell(place, told(got), told(wanted) + (lookAlike ? " — அச்சில் ஒன்றுபோல; ஆனால் சமமில்லை" : ""));
        }
    }

    void compareLists(const std::string& place, const List& got, const List& wanted, int depth) {
        if (got.size != wanted.size) {
            tell(place + (place.empty() ? "" : " ") + "நீளம்", std::to_string(got.size), std::to_string(wanted.size));
        }
        for (std::size_t index = 0; index < std::max(got.size, wanted.size); ++index) {
            const std::string element = place + "[" + std::to_string(index) + "]";
            if (index >= got.size) {
                tell(element, ABSENT, toldValue(wanted.elements[index]));
            } else if (index >= wanted.size) {
                tell(element, toldValue(got.elements[index]), ABSENT);
            } else {
                goInto(element, got.elements[index], wanted.elements[index], depth);
            }
        }
    }

    void compareMaps(const std::string& place, Map& got, Map& wanted, int depth) {
        for (std::size_t index = 0; index < mapSize(wanted); ++index) {
            const Value& key = keyAt(wanted, index);
            const Value* const value = findKey(got, key);
            const std::string entry = place + "[" + toldValue(key) + "]";
            if (value == nullptr) {
                tell(entry, ABSENT, toldValue(valueAt(wanted, index)));
            } else {
                goInto(entry, *value, valueAt(wanted, index), depth);
            }
        }
        for (std::size_t index = 0; index < mapSize(got); ++index) {
            const Value& key = keyAt(got, index);
            if (findKey(wanted, key) == nullptr) {
                tell(place + "[" + toldValue(key) + "]", toldValue(valueAt(got, index)), ABSENT);
            }
        }
    }

    void compareLines(const std::string& place, std::string_view got, std::string_view wanted) {
        const std::vector<std::string_view> mine = linesOf(got);
        const std::vector<std::string_view> theirs = linesOf(wanted);
        for (std::size_t line = 0; line < std::max(mine.size(), theirs.size()); ++line) {
            const std::string where = place + (place.empty() ? "" : " ") + "வரி " + std::to_string(line + 1);
            if (line >= mine.size()) {
                tell(where, ABSENT, quoted(theirs[line]));
            } else if (line >= theirs.size()) {
                tell(where, quoted(mine[line]), ABSENT);
            } else if (mine[line] != theirs[line]) {
                tellTexts(where, mine[line], theirs[line]);
            }
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
        tell(place + (place.empty() ? "" : " ") + "எழுத்து " + std::to_string(letter + 1),
             "…" + quoted(withoutLetters(got, first)), "…" + quoted(withoutLetters(wanted, first)));
    }

    static std::string quoted(std::string_view text) { return toldValue(normalText(text)); }

    void tell(const std::string& place, const std::string& got, const std::string& wanted) {
        if (++count_ > MOST_PLACES) {
            return;
        }
        const std::string margin = place.empty() ? "" : "  ";
        text_ += place.empty() ? "" : place + ":\n";
        text_ += margin + "பெற்றது: " + got + "\n" + margin + "வேண்டியது: " + wanted + "\n";
    }

    static constexpr const char* ABSENT = "இல்லை";

    std::size_t count_ = 0;
    std::string text_;
};

} // namespace

std::string differenceOf(const Value& got, const Value& wanted) {
    return Comparison().compare(got, wanted);
}

} // namespace pozhil::engine

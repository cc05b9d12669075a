#include "report/letters.h"
#include "engine/text.h"

namespace pozhil::engine {
namespace {

/// So many letters are walked over at most to reach one.
constexpr std::size_t STEP = 8;
/// Up to so many bytes, walking is cheaper than an index.
constexpr std::size_t SHORT = 32;

/// The index, grown up to the end of the text.
LetterIndex& completeIndex(Text& text) {
    if (text.index == nullptr) {
        text.index = std::make_unique<LetterIndex>();
    }
    LetterIndex& index = *text.index;
    if (index.seen == text.bytes.size()) {
        return index;
    }
    // The last letter may have grown.
    std::size_t number = index.letters == 0 ? 0 : index.letters - 1;
    for (std::size_t position = index.lastBegin; position < text.bytes.size(); ++number) {
        if (number == index.begins.size() * STEP) {
            index.begins.push_back(position);
        }
        index.lastBegin = position;
        position = letterEnd(text.bytes, position);
    }
    index.letters = number;
    index.seen = text.bytes.size();
    return index;
}

/// Where a letter begins, so many letters after one that begins at \p begin.
std::size_t walked(std::string_view text, std::size_t begin, std::size_t letters) {
    for (; letters > 0; --letters) {
        begin = letterEnd(text, begin);
    }
    return begin;
}

/// \param letters the complete index of the text
std::size_t beginOfLetter(std::string_view text, LetterIndex& letters, std::size_t index) {
    // All of one byte.
    if (letters.letters == text.size()) {
        return index;
    }
    const bool isNear = index >= letters.asked && index - letters.asked <= index % STEP;
    letters.askedBegin = isNear ? walked(text, letters.askedBegin, index - letters.asked)
                                : walked(text, letters.begins[index / STEP], index % STEP);
    letters.asked = index;
    return letters.askedBegin;
}

} // namespace

std::size_t letterEnd(std::string_view text, std::size_t begin) {
    return begin + report::firstLetterSize(text.substr(begin));
}

std::size_t countLetters(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) {
        position = letterEnd(text, position);
    }
    return count;
}

std::size_t letterCount(Text& text) {
    return text.bytes.size() <= SHORT ? countLetters(text.bytes) : completeIndex(text).letters;
}

std::string_view letterAt(Text& text, std::size_t index) {
    const std::string_view bytes = text.bytes;
    const std::size_t begin =
        bytes.size() <= SHORT ? walked(bytes, 0, index) : beginOfLetter(bytes, completeIndex(text), index);
    return bytes.substr(begin, letterEnd(bytes, begin) - begin);
}

} // namespace pozhil::engine

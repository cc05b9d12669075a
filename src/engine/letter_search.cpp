#include "engine/letter_search.h"

#include "engine/text.h"

#include <string>

namespace pozhil::engine {
namespace {

bool isSign(std::string_view text) {
    constexpr std::string_view ANY_LETTER = "அ";
    return letterEnd(std::string(ANY_LETTER).append(text), 0) > ANY_LETTER.size();
}

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

} // namespace

LetterSearch::LetterSearch(std::string_view text, std::string_view part)
    : text_(text), part_(part), beginsWithSign_(isSign(part)) {}

std::size_t LetterSearch::find(std::size_t from) {
    std::size_t position = text_.find(part_, from);
    while (position != NOWHERE && !isAt(position)) {
        position = text_.find(part_, position + 1);
    }
    return position;
}

bool LetterSearch::isAt(std::size_t position) {
    return (beginsWithSign_ || begins_.has(text_, position)) && ends_.has(text_, position + part_.size());
}

bool LetterSearch::Boundaries::has(std::string_view text, std::size_t position) {
    if (position == 0 || position == text.size()) {
        return true;
    }
    // A carriage return and its line end are one letter to Unicode, but nobody who looks for line ends means that.
    if (isAscii(text[position - 1]) && isAscii(text[position])) {
        return true;
    }
    while (reached_ < position) {
        reached_ = letterEnd(text, reached_);
    }
    return reached_ == position;
}

bool textContains(std::string_view text, std::string_view part) {
    return part.empty() || LetterSearch(text, part).find(0) != LetterSearch::NOWHERE;
}

} // namespace pozhil::engine

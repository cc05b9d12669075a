#include "analysis/second/locations.h"

#include "front_end/second_edition.h"

#include <algorithm>

namespace pozhil::second {
namespace {

/// Whether a byte may belong to a word.
bool isWordByte(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 || value == '_' || (value >= '0' && value <= '9') || (value >= 'A' && value <= 'Z') ||
           (value >= 'a' && value <= 'z');
}

bool isWholeWord(std::string_view text, std::size_t begin, std::size_t size) {
    return (begin == 0 || !isWordByte(text[begin - 1])) &&
           (begin + size == text.size() || !isWordByte(text[begin + size]));
}

resolved::Place partOf(resolved::Place place, std::size_t begin, std::size_t size) {
    place.range.begin += static_cast<std::uint32_t>(begin);
    place.range.end = place.range.begin + static_cast<std::uint32_t>(size);
    return place;
}

} // namespace

resolved::Place Locations::of(std::size_t file, const void* node) const {
    resolved::Place place;
    place.file = static_cast<std::uint32_t>(file);
    if (const auto found = program_.places.ofAddress(node)) {
        place.range = found->range;
    }
    return place;
}

/// What the parser noted at that address before may have been something else, which lay elsewhere.
resolved::Place Locations::ofPart(std::size_t file, const void* part, const void* node, std::string_view name) const {
    const resolved::Place whole = of(file, node);
    const resolved::Place noted = of(file, part);
    const bool isInside = noted.range.begin >= whole.range.begin && noted.range.end <= whole.range.end;
    return isInside && noted.range.begin < noted.range.end ? noted : ofWord(whole, name);
}

/// The first word \p name in a text; all of the text if it isn't there.
resolved::Place Locations::ofWord(resolved::Place whole, std::string_view name) const {
    const std::string_view text = textOf(whole);
    for (std::size_t at = text.find(name); at != std::string_view::npos && !name.empty();
         at = text.find(name, at + 1)) {
        if (isWholeWord(text, at, name.size())) {
            return partOf(whole, at, name.size());
        }
    }
    return whole;
}

resolved::Place Locations::wordAfter(resolved::Place whole, std::uint32_t end, std::string_view name) const {
    resolved::Place rest = whole;
    rest.range.begin = std::clamp(end, whole.range.begin, whole.range.end);
    const resolved::Place word = ofWord(rest, name);
    return word.range.begin == rest.range.begin && word.range.end == rest.range.end ? whole : word;
}

std::size_t Locations::lineOf(resolved::Place place) const {
    const std::string& text = program_.files[place.file].source->text;
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(place.range.begin, text.size()));
    return static_cast<std::size_t>(std::count(text.begin(), end, '\n')) + 1;
}

std::string_view Locations::textOf(resolved::Place place) const {
    const std::string_view text = program_.files[place.file].source->text;
    const std::size_t begin = std::min<std::size_t>(place.range.begin, text.size());
    return text.substr(begin, place.range.end - place.range.begin);
}

} // namespace pozhil::second

#include "engine/collections.h"
#include "engine/letter_search.h"
#include "engine/library.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/normal_form.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/text_scan.h"
#include "engine/value_faults.h"

#include <utf8proc.h>

namespace pozhil::engine {
namespace {

/// The text that a function was given.
/// \param function its name, for the fault if it is something else
std::string_view textFor(const char* function, const Value& value, Place place) {
    if (!value.is(Tag::Text)) {
        raise(TEXT_WANTED, place, {function, kindWord(value)});
    }
    return textOf(value);
}

Value lettersOf(std::string_view text) {
    Value letters = makeList();
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = letterEnd(text, begin);
        appendTo(listBlock(letters), normalText(text.substr(begin, end - begin)));
        begin = end;
    }
    return letters;
}

/// Puts each code point through a function of Unicode's tables.
Value mapped(std::string_view text, utf8proc_int32_t (*map)(utf8proc_int32_t)) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        utf8proc_int32_t codePoint = 0;
        const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                           static_cast<utf8proc_ssize_t>(text.size()), &codePoint);
        utf8proc_uint8_t bytes[4];
        const auto count = utf8proc_encode_char(map(codePoint), bytes);
        result.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
        text.remove_prefix(static_cast<std::size_t>(size));
    }
    return makeText(std::move(result));
}

} // namespace

Whole length(const Value& value, Place) {
    switch (value.tag()) {
    case Tag::Text: return static_cast<Whole>(letterCount(textBlock(value)));
    case Tag::List: return static_cast<Whole>(listBlock(value).size);
    case Tag::Map: return static_cast<Whole>(mapSize(mapBlock(value)));
    case Tag::Whole:
    case Tag::Decimal: return static_cast<Whole>(countLetters(textForm(value)));
    default: return 0;
    }
}

Value split(const Value& value, const Value& separator, Place place) {
    const std::string_view text = textFor("பிளவு", value, place);
    const std::string_view part = textFor("பிளவு", separator, place);
    if (part.empty()) {
        return lettersOf(text);
    }
    Value pieces = makeList();
    LetterSearch search(text, part);
    std::size_t begin = 0;
    for (std::size_t end = search.find(0); end != LetterSearch::NOWHERE; end = search.find(begin)) {
        appendTo(listBlock(pieces), normalText(text.substr(begin, end - begin)));
        begin = end + part.size();
    }
    appendTo(listBlock(pieces), normalText(text.substr(begin)));
    return pieces;
}

Value replace(const Value& value, const Value& from, const Value& to, Place place) {
    const std::string_view text = textFor("பதில்", value, place);
    const std::string_view part = textFor("பதில்", from, place);
    const std::string_view replacement = textFor("பதில்", to, place);
    if (part.empty()) {
        raise(EMPTY_SEARCH, place);
    }
    LetterSearch search(text, part);
    std::string result;
    std::size_t begin = 0;
    for (std::size_t end = search.find(0); end != LetterSearch::NOWHERE; end = search.find(begin)) {
        appendNormalized(result, text.substr(begin, end - begin));
        appendNormalized(result, replacement);
        begin = end + part.size();
    }
    appendNormalized(result, text.substr(begin));
    return normalText(result);
}

Value upperCase(const Value& value, Place place) {
    return mapped(textFor("பெரியஎ", value, place), utf8proc_toupper);
}

Value lowerCase(const Value& value, Place place) {
    return mapped(textFor("சிறியஎ", value, place), utf8proc_tolower);
}

Value trim(const Value& value, Place place) {
    return normalText(trimmed(textFor("சுத்தம்", value, place)));
}

bool startsWith(const Value& value, const Value& part, Place place) {
    const std::string_view text = textFor("தொடக்கம்", value, place);
    const std::string_view beginning = textFor("தொடக்கம்", part, place);
    return text.substr(0, beginning.size()) == beginning &&
           (beginning.empty() || LetterSearch(text, beginning).find(0) == 0);
}

bool endsWith(const Value& value, const Value& part, Place place) {
    const std::string_view text = textFor("முடிவு", value, place);
    const std::string_view ending = textFor("முடிவு", part, place);
    if (text.size() < ending.size() || text.substr(text.size() - ending.size()) != ending) {
        return false;
    }
    return ending.empty() || LetterSearch(text, ending).find(text.size() - ending.size()) != LetterSearch::NOWHERE;
}

} // namespace pozhil::engine

#pragma once

#include "engine/value.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::engine {

/// What is known of the letters of a text. It stays good while the text grows: what comes at its end may change the last
/// letter, but never where that begins.
struct LetterIndex {
    /// Of every so many letters the byte where it begins.
    std::vector<std::size_t> begins;
    /// Letters among the bytes that are looked at, and where the last of them begins: it may still grow.
    std::size_t letters = 0;
    std::size_t lastBegin = 0;
    /// Bytes that are looked at.
    std::size_t seen = 0;
    /// The letter that was asked for last, and where it begins: the next one is often asked for next.
    std::size_t asked = 0;
    std::size_t askedBegin = 0;
};

/// The block of a text: UTF-8 in NFC.
struct Text : Counted {
    std::string bytes;
    /// Made when somebody first asks for letters of a text that isn't short.
    std::unique_ptr<LetterIndex> index;
};

/// The block of a value with Tag::Text.
inline Text& textBlock(const Value& value) {
    return *static_cast<Text*>(value.block());
}

/// The bytes of a value with Tag::Text, for as long as it isn't written to.
inline std::string_view textOf(const Value& value) {
    return textBlock(value).bytes;
}

/// A value of this text, which is brought to NFC; bytes that aren't UTF-8 become U+FFFD.
Value makeText(std::string bytes);

/// A value of a text that is in NFC, such as some letters of another one. Single letters of ASCII and Tamil share their
/// blocks.
Value normalText(std::string_view bytes);

/// Appends a text in NFC to the block of a text that only one value holds.
/// \param bytes may be a part of the text itself
void appendToText(Text& text, std::string_view bytes);

/// How a value is printed and joined.
std::string textForm(const Value& value);
/// Appends the text form, for whoever prints many.
void appendTextForm(std::string& out, const Value& value);

/// How many letters, grapheme clusters by the rules of Unicode, the text has. Counted once, and on from there when the
/// text grows.
std::size_t letterCount(Text& text);
/// The same of bytes that are no block.
std::size_t countLetters(std::string_view text);
/// Letter \p index, counted from 0, which must be there, in time that doesn't grow with the text but for the first question.
std::string_view letterAt(Text& text, std::size_t index);
/// Where the letter ends that begins at byte \p begin.
std::size_t letterEnd(std::string_view text, std::size_t begin);

/// Whether the part stands in the text as whole letters: "கா" has no "க".
bool textContains(std::string_view text, std::string_view part);

/// Below 0, 0 or above 0, in the order of a Tamil dictionary.
int compareTexts(std::string_view left, std::string_view right);

} // namespace pozhil::engine

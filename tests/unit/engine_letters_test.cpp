#include "engine_support.h"

#include "engine/letter_search.h"

#include <utf8proc.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using namespace pozhil::engine;

namespace {

using Letters = std::vector<std::string>;

/// The letters as utf8proc tells them, walked from the beginning.
Letters lettersByUnicode(const std::string& text) {
    Letters letters;
    utf8proc_int32_t previous = 0;
    utf8proc_int32_t state = 0;
    for (std::size_t position = 0; position < text.size();) {
        utf8proc_int32_t codePoint = 0;
        const auto size = static_cast<std::size_t>(
            utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + position,
                             static_cast<utf8proc_ssize_t>(text.size() - position), &codePoint));
        if (position == 0 || utf8proc_grapheme_break_stateful(previous, codePoint, &state)) {
            letters.emplace_back();
        }
        letters.back() += text.substr(position, size);
        previous = codePoint;
        position += size;
    }
    return letters;
}

Letters lettersByIndex(const Value& value) {
    Letters letters;
    const Whole count = length(value, nullptr);
    for (Whole index = 0; index < count; ++index) {
        letters.emplace_back(letterAt(textBlock(value), static_cast<std::size_t>(index)));
    }
    return letters;
}

/// Pieces whose letters depend on what stands before and after them.
const std::vector<std::string> PIECES = {
    "a",      "Z",      " ",      "~", "\r",         "\n",         "\t",         "\u007F", "é",      "\u0301", "அ",
    "க",      "ஷ",      "\u0BCD", "ா", "ொ",          "ௌ",          "\u0BD7",     "\u0B82", "ஃ",      "௹",      "\u0BC9",
    "\u0B84", "क",      "्",       "ष", "ि",          "\u0600",     "가",         "\u1100", "\u1161", "\u11A8", "😀",
    "👩",      "\u200D", "\uFE0F", "❤", "\U0001F3FD", "\U0001F1EE", "\U0001F1F3", "\u200B",
};

std::string randomText(std::mt19937& random, std::size_t longest) {
    std::string text;
    for (std::size_t count = random() % (longest + 1); count > 0; --count) {
        text += PIECES[random() % PIECES.size()];
    }
    return text;
}

TEST(Letters, AreThoseOfUnicode) {
    std::mt19937 random(3);
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = form(makeText(randomText(random, round % 100 == 0 ? 200 : 12)));
        ASSERT_EQ(lettersByIndex(makeText(text)), lettersByUnicode(text)) << text;
    }
}

TEST(Letters, OfTamilAreWhatItsReadersCount) {
    EXPECT_EQ(lettersByIndex(text("அம்மா")), (Letters{"அ", "ம்", "மா"}));
    EXPECT_EQ(lettersByIndex(text("யௌவனம்")), (Letters{"யௌ", "வ", "ன", "ம்"}));
    EXPECT_EQ(lettersByIndex(text("எஃகு 1")), (Letters{"எ", "ஃ", "கு", " ", "1"}));
    EXPECT_EQ(length(text(""), nullptr), 0);
}

TEST(Letters, AreFoundInAnyOrder) {
    std::mt19937 random(4);
    std::string long_text;
    for (int piece = 0; piece < 1'000; ++piece) {
        long_text += PIECES[random() % PIECES.size()];
    }
    const Value value = makeText(long_text);
    const Letters letters = lettersByUnicode(form(value));
    for (int round = 0; round < 5'000; ++round) {
        const std::size_t index = random() % letters.size();
        ASSERT_EQ(letterAt(textBlock(value), index), letters[index]);
    }
}

TEST(Letters, AreGoneOverOneByOne) {
    std::mt19937 random(5);
    for (int round = 0; round < 2'000; ++round) {
        const Value value = makeText(randomText(random, 20));
        Letters letters;
        Each each(value, nullptr);
        for (Value letter; each.next(letter);) {
            letters.push_back(form(letter));
        }
        ASSERT_EQ(letters, lettersByUnicode(form(value)));
    }
}

/// Whether the letters of one text stand side by side in the other.
bool standsIn(const Letters& part, const Letters& text) {
    return std::search(text.begin(), text.end(), part.begin(), part.end()) != text.end();
}

TEST(Search, IsByWholeLetters) {
    EXPECT_TRUE(textContains("வணக்கம்", "க்க"));
    EXPECT_TRUE(textContains("வணக்கம்", "வணக்கம்"));
    EXPECT_TRUE(textContains("வணக்கம்", ""));
    EXPECT_FALSE(textContains("வணக்கம்", "க்கம"));
    EXPECT_FALSE(textContains("கா", "க"));
    EXPECT_TRUE(textContains("காக", "க"));
    EXPECT_TRUE(textContains("காகாக", "காக"));
    EXPECT_FALSE(textContains("", "க"));
    EXPECT_TRUE(textContains("அ\r\nஆ", "\n"));
    EXPECT_TRUE(textContains("அ\r\nஆ", "அ\r"));
}

TEST(Search, FindsSignsInsideLetters) {
    EXPECT_TRUE(textContains("அம்மா", "\u0BCD"));
    EXPECT_TRUE(textContains("அம்மா", "\u0BCDமா"));
    EXPECT_FALSE(textContains("அம்மா", "\u0BCDம"));
    EXPECT_FALSE(textContains("அமமா", "\u0BCD"));
}

TEST(Search, AgreesWithTheLettersSideBySide) {
    std::mt19937 random(6);
    // Few pieces, so that much is found; none that is no letter of its own.
    const std::vector<std::string> pieces = {"a", "க",          "கா",         "க்",        "கெ", "é",
                                             "e", "\U0001F1EE", "\U0001F1F3", "👩\u200D❤", "👩"};
    const auto few = [&](std::size_t longest) {
        std::string text;
        for (std::size_t count = random() % longest + 1; count > 0; --count) {
            text += pieces[random() % pieces.size()];
        }
        return text;
    };
    int found = 0;
    for (int round = 0; round < 50'000; ++round) {
        const std::string text = few(8);
        const std::string part = few(3);
        const bool expected = standsIn(lettersByUnicode(part), lettersByUnicode(text));
        found += expected ? 1 : 0;
        ASSERT_EQ(textContains(text, part), expected) << text << " " << part;
    }
    EXPECT_GT(found, 1'000);
}

} // namespace

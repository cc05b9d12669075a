#include "engine_support.h"

#include "engine/operations.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace pozhil::engine;

namespace {

constexpr Place HERE = "1:0-1";

std::string pieces(const char* whole, const char* separator) {
    return form(split(makeText(whole), makeText(separator), HERE));
}

std::string replaced(const char* whole, const char* from, const char* to) {
    return form(replace(makeText(whole), makeText(from), makeText(to), HERE));
}

TEST(Length, CountsLettersAndElements) {
    EXPECT_EQ(length(text("அம்மா"), HERE), 3);
    EXPECT_EQ(length(text(""), HERE), 0);
    EXPECT_EQ(length(list({1, list({2, 3})}), HERE), 2);
    EXPECT_EQ(length(map({{1, 2}}, HERE), HERE), 1);
    EXPECT_EQ(length(-12345, HERE), 6);
    EXPECT_EQ(length(0.1 + 0.2, HERE), 3);
    EXPECT_EQ(length(true, HERE), 0);
    EXPECT_EQ(length(Value(), HERE), 0);
    EXPECT_EQ(length(now(HERE), HERE), 0);
}

TEST(Split, CutsAtEverySeparator) {
    EXPECT_EQ(pieces("மா பலா வாழை", " "), "[மா, பலா, வாழை]");
    EXPECT_EQ(pieces("a,,b,", ","), "[a, , b, ]");
    EXPECT_EQ(length(split(text("a,,b,"), text(","), HERE), HERE), 4);
    EXPECT_EQ(pieces("abc", "x"), "[abc]");
    EXPECT_EQ(length(split(text(""), text(","), HERE), HERE), 1);
    EXPECT_EQ(pieces("aaaa", "aa"), "[, , ]");
    EXPECT_EQ(pieces("அ, ஆ, இ", ", "), "[அ, ஆ, இ]");
}

TEST(Split, CutsBetweenLettersOnly) {
    EXPECT_EQ(pieces("மாமரம்", "ம"), "[மா, ரம்]");
    EXPECT_EQ(pieces("மாமரம்", "ம்"), "[மாமர, ]");
    EXPECT_EQ(pieces("a\r\nb", "\n"), "[a\r, b]");
}

TEST(Split, WithoutASeparatorGivesTheLetters) {
    EXPECT_EQ(pieces("தமிழ்", ""), "[த, மி, ழ்]");
    EXPECT_EQ(pieces("", ""), "[]");
}

TEST(Split, JoinsToTheSameText) {
    std::mt19937 random(11);
    const std::vector<std::string> letters = {"a", "க", "கா", "க்", ",", "é"};
    for (int round = 0; round < 20'000; ++round) {
        std::string whole;
        for (std::size_t count = random() % 10; count > 0; --count) {
            whole += letters[random() % letters.size()];
        }
        const std::string separator = letters[random() % letters.size()];
        const Value parts = split(makeText(whole), makeText(separator), HERE);
        Value joined = text("");
        for (Whole index = 0; index < length(parts, HERE); ++index) {
            const Value part = get(parts, index, HERE);
            ASSERT_FALSE(contains(part, makeText(separator), HERE));
            joinTo(joined, index == 0 ? text("") : makeText(separator), HERE);
            joinTo(joined, part, HERE);
        }
        ASSERT_EQ(form(joined), whole);
        ASSERT_EQ(form(replace(makeText(whole), makeText(separator), makeText(separator), HERE)), whole);
    }
}

TEST(Replace, ChangesEveryOccurrence) {
    EXPECT_EQ(replaced("மா மரம் மா", "மா", "பலா"), "பலா மரம் பலா");
    EXPECT_EQ(replaced("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaced("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(replaced("abc", "b", ""), "ac");
    EXPECT_EQ(replaced("abc", "x", "y"), "abc");
    EXPECT_EQ(replaced("", "x", "y"), "");
    EXPECT_EQ(replaced("காக", "க", "ம"), "காம");
    EXPECT_EQ(faultOf([] { replaced("abc", "", "x"); }), 618);
}

TEST(Replace, KeepsTheNormalForm) {
    EXPECT_EQ(replaced("க\u0BC6x", "x", "\u0BBE"), "கொ");
    EXPECT_EQ(replaced("அம்மா", "\u0BCD", ""), "அமமா");
}

TEST(Cases, AreThoseOfUnicode) {
    EXPECT_EQ(form(upperCase(text("abcÿ é தமிழ் ώ"), HERE)), "ABCŸ É தமிழ் Ώ");
    EXPECT_EQ(form(lowerCase(text("ABCŸ É தமிழ் Ώ"), HERE)), "abcÿ é தமிழ் ώ");
    EXPECT_EQ(form(upperCase(text(""), HERE)), "");
}

TEST(Trim, TakesBlanksOffBothEnds) {
    EXPECT_EQ(form(trim(text(" \t\r\n அ ஆ \v\f"), HERE)), "அ ஆ");
    EXPECT_EQ(form(trim(text("\u00A0அ\u2003\u3000"), HERE)), "அ");
    EXPECT_EQ(form(trim(text(" \n "), HERE)), "");
    EXPECT_EQ(form(trim(text("அ"), HERE)), "அ");
}

TEST(Ends, AreLookedForByWholeLetters) {
    const Value word = text("மாம்பழம்");
    EXPECT_TRUE(startsWith(word, text("மா"), HERE));
    EXPECT_FALSE(startsWith(word, text("ம"), HERE));
    EXPECT_TRUE(startsWith(word, text(""), HERE));
    EXPECT_TRUE(startsWith(word, word, HERE));
    EXPECT_FALSE(startsWith(word, text("மாம்பழம்x"), HERE));
    EXPECT_FALSE(startsWith(text("xமா"), text("மா"), HERE));
    EXPECT_TRUE(endsWith(word, text("ழம்"), HERE));
    EXPECT_TRUE(endsWith(word, text(""), HERE));
    EXPECT_TRUE(endsWith(word, word, HERE));
    EXPECT_FALSE(endsWith(word, text("xமாம்பழம்"), HERE));
    EXPECT_FALSE(endsWith(word, text("ம"), HERE));
    EXPECT_TRUE(endsWith(word, text("\u0BCD"), HERE));
    EXPECT_FALSE(endsWith(makeText("\U0001F1EE\U0001F1F3"), makeText("\U0001F1F3"), HERE));
}

TEST(Texts, AreWantedByTheirFunctions) {
    EXPECT_EQ(faultOf([] { split(5, text(","), HERE); }), 616);
    EXPECT_EQ(faultOf([] { split(text("a"), 5, HERE); }), 616);
    EXPECT_EQ(faultOf([] { replace(text("a"), text("a"), 5, HERE); }), 616);
    EXPECT_EQ(faultOf([] { upperCase(5, HERE); }), 616);
    EXPECT_EQ(faultOf([] { lowerCase(list({}), HERE); }), 616);
    EXPECT_EQ(faultOf([] { trim(Value(), HERE); }), 616);
    EXPECT_EQ(faultOf([] { startsWith(text("5"), 5, HERE); }), 616);
    EXPECT_EQ(faultOf([] { endsWith(5, text("5"), HERE); }), 616);
    EXPECT_EQ(messageOf([] { trim(5, HERE); }), "'சுத்தம்' செயலுக்கு உரை வேண்டும்; கிடைத்தது எண்.");
}

} // namespace

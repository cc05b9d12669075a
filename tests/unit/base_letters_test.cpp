#include "base/letters.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

using pozhil::isOnlyNearest;
using pozhil::letterDistance;
using pozhil::Letters;
using pozhil::nearestWord;
using pozhil::splitLetters;

namespace {

std::size_t distance(std::string_view a, std::string_view b, std::size_t limit = 9) {
    const std::size_t there = letterDistance(splitLetters(a), splitLetters(b), limit);
    EXPECT_EQ(letterDistance(splitLetters(b), splitLetters(a), limit), there) << a << " " << b;
    return there;
}

TEST(LettersOfAWord, AreCodePoints) {
    EXPECT_EQ(splitLetters("கூa"), (Letters{"க", "ூ", "a"}));
    EXPECT_EQ(splitLetters(""), Letters());
    EXPECT_EQ(splitLetters("க\xE0\xAE"), (Letters{"க", "\xE0\xAE"}));
}

TEST(LetterDistance, CountsWhatIsInsertedDroppedAndReplaced) {
    EXPECT_EQ(distance("", ""), 0U);
    EXPECT_EQ(distance("அம்மா", "அம்மா"), 0U);
    EXPECT_EQ(distance("அம்மா", "அம்மி"), 1U);
    EXPECT_EQ(distance("அம்மா", "அமமா"), 1U);
    EXPECT_EQ(distance("", "அஆ"), 2U);
    EXPECT_EQ(distance("ab", "ba"), 2U);
    EXPECT_EQ(distance("aa", "a"), 1U);
    EXPECT_EQ(distance("abab", "ab"), 2U);
    EXPECT_EQ(distance("kitten", "sitting"), 3U);
    EXPECT_EQ(distance("abcdef", "acbdfe"), 4U);
}

TEST(LetterDistance, SaysOfWhatIsBeyondTheLimitThatItIs) {
    EXPECT_EQ(distance("kitten", "sitting", 3), 3U);
    EXPECT_EQ(distance("kitten", "sitting", 2), 3U);
    EXPECT_EQ(distance("kitten", "sitting", 1), 2U);
    EXPECT_EQ(distance("a", "abcdef", 1), 2U);
    EXPECT_EQ(distance("a", "b", 0), 1U);
}

TEST(NearestWord, IsTheOneWithTheFewestChanges) {
    EXPECT_EQ(nearestWord("நீளம", {"நிறம்", "நீளம்", "நீளம்2"}), "நீளம்");
    EXPECT_EQ(nearestWord("abcdef", {"abcdxy", "abcdeg", "abcdeh"}), "abcdeg");
}

TEST(NearestWord, IsNoneForShortWordsAndDistantOnes) {
    EXPECT_EQ(nearestWord("ab", {"ac", "abc"}), "");
    EXPECT_EQ(nearestWord("abc", {"xyc", ""}), "");
    EXPECT_EQ(nearestWord("abcdef", {"abcxyz"}), "");
    EXPECT_EQ(nearestWord("", {"a"}), "");
    EXPECT_EQ(nearestWord("abc", {}), "");
    EXPECT_EQ(nearestWord(std::string(100, 'a'), {std::string_view("aaaa")}), "");
}

TEST(NearestWord, IsNeverTheWordItself) {
    EXPECT_EQ(nearestWord("abc", {"abc"}), "");
    EXPECT_EQ(nearestWord("abc", {"abc", "abd"}), "abd");
}

TEST(NearestWord, IsTheOnlyOneUnlessOthersAreAsNear) {
    EXPECT_TRUE(isOnlyNearest("abcdef", "abcdeg", {"abcdeg", "abcxyz"}));
    EXPECT_FALSE(isOnlyNearest("abcdef", "abcdeg", {"abcdeg", "abcdeh"}));
    EXPECT_TRUE(isOnlyNearest("abcdef", "abcdeg", {"abcdeg", "abcdeg", "abcdef"}));
}

} // namespace

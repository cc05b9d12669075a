// Where the lines of a text end that wraps, and the room that widgets give each other.

#include "generator/web/runtime/runtime.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

using Lines = std::vector<std::string>;

/// Letters of this test are a byte and all '^' after it, and each is as wide as the others.
std::size_t endOfLetter(const std::string& text, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < text.size() && text[end] == '^') {
        ++end;
    }
    return end;
}

std::size_t lettersIn(const std::string& text) {
    std::size_t letters = 0;
    for (const char byte : text) {
        letters += byte == '^' ? 0 : 1;
    }
    return letters;
}

/// How much was measured, in letters.
std::size_t measured = 0;

Lines wrapped(const std::string& text, std::size_t width) {
    const auto fits = [&](std::size_t begin, std::size_t end) {
        measured += end - begin;
        return lettersIn(text.substr(begin, end - begin)) <= width;
    };
    Lines lines;
    for (const TextLine& line :
         LineBreaker(text, fits, [&](std::size_t begin) { return endOfLetter(text, begin); }).lines()) {
        lines.push_back(text.substr(line.begin, line.end - line.begin));
    }
    return lines;
}

TEST(Lines, EndAtSpaces) {
    EXPECT_THAT(wrapped("one two three", 7), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("one two three", 6), ElementsAre("one", "two", "three"));
    EXPECT_THAT(wrapped("one two three", 13), ElementsAre("one two three"));
    EXPECT_THAT(wrapped("one   two", 5), ElementsAre("one", "two")) << "spaces at the break are gone";
    EXPECT_THAT(wrapped("one   two", 9), ElementsAre("one   two")) << "others hold";
    EXPECT_THAT(wrapped("  one ", 9), ElementsAre("  one"));
}

TEST(Lines, EndWhereTheTextSaysSo) {
    EXPECT_THAT(wrapped("a\nb", 9), ElementsAre("a", "b"));
    EXPECT_THAT(wrapped("a\n\nb\n", 9), ElementsAre("a", "", "b", ""));
    EXPECT_THAT(wrapped("", 9), ElementsAre(""));
    EXPECT_THAT(wrapped("   ", 9), ElementsAre(""));
    EXPECT_THAT(wrapped("\n", 0), ElementsAre("", ""));
    EXPECT_THAT(wrapped("a\r\nb", 9), ElementsAre("a", "b"));
}

TEST(Lines, EndBetweenLettersOfAWordThatIsTooLong) {
    EXPECT_THAT(wrapped("abcdefgh", 3), ElementsAre("abc", "def", "gh"));
    EXPECT_THAT(wrapped("a^b^^cd^", 2), ElementsAre("a^b^^", "cd^")) << "never before a mark";
    EXPECT_THAT(wrapped("ab cdefg hi", 4), ElementsAre("ab", "cdef", "g hi"))
        << "what is left goes on with the next word";
    EXPECT_THAT(wrapped("abcd ef", 2), ElementsAre("ab", "cd", "ef"));
}

TEST(Lines, HoldALetterAtLeast) {
    EXPECT_THAT(wrapped("a^b cd", 0), ElementsAre("a^", "b", "c", "d"));
}

TEST(Lines, AreFoundInTimeThatGrowsWithTheText) {
    const std::size_t LENGTH = 100'000;
    for (const char* const piece : {"a", "a ", "abcdefgh "}) {
        std::string text;
        while (text.size() < LENGTH) {
            text += piece;
        }
        for (const std::size_t width : {std::size_t{0}, std::size_t{1}, std::size_t{40}, 10 * LENGTH}) {
            measured = 0;
            wrapped(text, width);
            EXPECT_LT(measured, 40 * LENGTH) << piece << width;
        }
    }
}

TEST(Room, IsThatOfTheInnermostWidget) {
    pozhil_room_width = 300.0f;
    EXPECT_FLOAT_EQ(pozhil_own_width(100.0f), 100.0f);
    EXPECT_FLOAT_EQ(pozhil_in_room(pozhil_room_width - 20.0f, 80.0f,
                                   [] { return pozhil_room_width + 1000.0f * pozhil_own_width(5.0f); }),
                    80280.0f);
    EXPECT_FLOAT_EQ(pozhil_room_width, 300.0f);
    EXPECT_FLOAT_EQ(pozhil_imposed_width, -1.0f);
}

TEST(Room, IsShared) {
    EXPECT_FLOAT_EQ(pozhil_share_of_room(300.0f, 100.0f, 4.0f), 50.0f);
    EXPECT_FLOAT_EQ(pozhil_share_of_room(50.0f, 100.0f, 4.0f), 0.0f);
    EXPECT_FLOAT_EQ(pozhil_share_of_room(50.0f, 0.0f, 0.0f), 50.0f);
    EXPECT_FLOAT_EQ(pozhil_grid_cell(310.0f, 3, 5.0f, 1000.0f), 100.0f);
    EXPECT_FLOAT_EQ(pozhil_grid_cell(305.0f, 3, 5.0f, 700.0f), 150.0f);
    EXPECT_FLOAT_EQ(pozhil_grid_cell(305.0f, 2, 5.0f, 480.0f), 305.0f);
}

} // namespace

#include "engine_support.h"

#include "engine/normal_form.h"

#include <utf8proc.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace pozhil::engine;

namespace {

/// The normal form as utf8proc has it.
std::string composed(const std::string& text) {
    std::string zeroFree = text;
    utf8proc_uint8_t* result = nullptr;
    const auto size = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(zeroFree.data()),
                                   static_cast<utf8proc_ssize_t>(zeroFree.size()), &result,
                                   static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    std::string form(reinterpret_cast<const char*>(result), static_cast<std::size_t>(size));
    std::free(result);
    return form;
}

/// Code points that compose, reorder, decompose for good, or do nothing of the kind.
const std::vector<std::string> PIECES = {
    "a",          "e",          "q",          "é",      "\u0301", "\u0323", "\u0308", "\u0344", "\u212B", "\u1E69",
    "ß",          " ",          "\n",         "\u0BC6", "\u0BC7", "\u0BBE", "\u0BD7", "\u0BCD", "\u0B92", "\u0B94",
    "\u0BCA",     "\u0BCB",     "\u0BCC",     "\u0B95", "\u0B82", "௧",      "\u1100", "\u1161", "\u11A8", "\uAC00",
    "\uAC01",     "\u0915",     "\u093C",     "\u0958", "\u09C7", "\u09BE", "\u200D", "\uFE0F", "😀",      "\U0001F1EE",
    "\U0001D15E", "\U000110A5", "\U000110BA", "\u3099", "\u304B", "\uFB1D", "\u0F71", "\u0F72",
};

std::string randomText(std::mt19937& random, std::size_t longest) {
    std::string text;
    for (std::size_t count = random() % (longest + 1); count > 0; --count) {
        text += PIECES[random() % PIECES.size()];
    }
    return text;
}

TEST(NormalForm, IsThatOfUnicode) {
    std::mt19937 random(1);
    for (int round = 0; round < 50'000; ++round) {
        const std::string text = randomText(random, 6);
        EXPECT_EQ(form(makeText(text)), composed(text));
    }
}

TEST(NormalForm, IsKeptWhereTextsMeet) {
    std::mt19937 random(2);
    for (int round = 0; round < 50'000; ++round) {
        const std::string left = randomText(random, 5);
        const std::string right = randomText(random, 5);
        Value joined = join(makeText(left), makeText(right), nullptr);
        EXPECT_EQ(form(joined), composed(left + right));
        joinTo(joined, makeText(left), nullptr);
        EXPECT_EQ(form(joined), composed(left + right + left));
        joinTo(joined, joined, nullptr);
        EXPECT_EQ(form(joined), composed(left + right + left + left + right + left));
    }
}

TEST(NormalForm, MakesOneSignOfTwo) {
    EXPECT_EQ(form(makeText("க\u0BC6\u0BBE")), "க\u0BCA");
    EXPECT_EQ(form(makeText("\u0B92\u0BD7")), "\u0B94");
    EXPECT_EQ(form(join(text("க\u0BC7"), text("\u0BBEல்"), nullptr)), "க\u0BCBல்");
    // Not what other signs are before it.
    EXPECT_EQ(form(makeText("க\u0BC6\u0BCD\u0BBE")), "க\u0BC6\u0BCD\u0BBE");
}

TEST(Texts, HaveNoBadBytes) {
    EXPECT_EQ(form(makeText("அ\xFF\x80z")), "அ\uFFFD\uFFFDz");
    EXPECT_EQ(form(makeText("\xE0\xAE")), "\uFFFD\uFFFD");
    // Half of a pair for UTF-16, and an overlong zero.
    EXPECT_EQ(form(makeText("\xED\xA0\x80")), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(form(makeText("\xC0\x80")), "\uFFFD\uFFFD");
}

TEST(Texts, MayHoldZeroBytes) {
    const Value joined = join(makeText(std::string("a\0b", 3)), text("\0é"), nullptr);
    EXPECT_EQ(textOf(joined), std::string_view("a\0b\0é", 6));
    EXPECT_EQ(length(joined, nullptr), 5);
}

TEST(Texts, OfOneLetterShareTheirBlocks) {
    EXPECT_EQ(normalText("x").block(), normalText("x").block());
    EXPECT_EQ(normalText("அ").block(), normalText("அ").block());
    EXPECT_NE(normalText("அ").block(), normalText("ஆ").block());
    // Of three bytes as well, but of another script.
    EXPECT_EQ(form(normalText("అ")), "అ");
    EXPECT_EQ(form(normalText("abc")), "abc");
    Value letter = normalText("x");
    joinTo(letter, text("y"), nullptr);
    EXPECT_EQ(form(normalText("x")), "x");
}

TEST(GrowingTexts, LeaveOtherHoldersAlone) {
    Value first = text("மா");
    const Value second = first;
    joinTo(first, text("ங்காய்"), nullptr);
    EXPECT_EQ(form(first), "மாங்காய்");
    EXPECT_EQ(form(second), "மா");
    addTo(first, 5, nullptr);
    EXPECT_EQ(form(first), "மாங்காய்5");
}

TEST(GrowingTexts, AreMovedRarely) {
    Value grown = text("");
    const Value piece = text("தமிழ்");
    std::set<std::size_t> capacities;
    for (int round = 0; round < 100'000; ++round) {
        joinTo(grown, piece, nullptr);
        capacities.insert(textBlock(grown).bytes.capacity());
    }
    EXPECT_EQ(textOf(grown).size(), 100'000 * textOf(piece).size());
    EXPECT_LE(capacities.size(), 25U);
}

TEST(GrowingTexts, CountOnFromWhereTheyWereCounted) {
    Value grown = text("");
    Whole letters = 0;
    for (int round = 0; round < 2'000; ++round) {
        joinTo(grown, text("தமிழ்"), nullptr);
        letters += 3;
        ASSERT_EQ(length(grown, nullptr), letters);
        if (letters <= 9) {
            continue;
        }
        const LetterIndex* const index = textBlock(grown).index.get();
        ASSERT_NE(index, nullptr);
        // A letter in pieces: each changes the one before it, the last makes one sign of two.
        for (const char* const piece : {"க", "\u0BC6", "\u0BBE"}) {
            joinTo(grown, makeText(piece), nullptr);
            letters += piece == std::string("க") ? 1 : 0;
            ASSERT_EQ(length(grown, nullptr), letters);
            ASSERT_EQ(textBlock(grown).index.get(), index);
        }
    }
    EXPECT_EQ(form(get(grown, letters - 1, nullptr)), "கொ");
    EXPECT_EQ(form(get(grown, letters - 2, nullptr)), "ழ்");
}

TEST(GrowingTexts, KeepTheirLettersWhateverIsAppended) {
    std::mt19937 random(12);
    for (int round = 0; round < 500; ++round) {
        Value grown = makeText("தமிழ் மொழி தமிழ் மொழி");
        for (int piece = 0; piece < 30; ++piece) {
            joinTo(grown, makeText(randomText(random, 2)), nullptr);
            const Value fresh = makeText(form(grown));
            ASSERT_EQ(length(grown, nullptr), length(fresh, nullptr)) << form(grown);
            const auto last = static_cast<std::size_t>(length(grown, nullptr) - 1);
            const std::size_t any = random() % (last + 1);
            ASSERT_EQ(letterAt(textBlock(grown), any), letterAt(textBlock(fresh), any)) << form(grown);
            ASSERT_EQ(letterAt(textBlock(grown), last), letterAt(textBlock(fresh), last)) << form(grown);
        }
    }
}

} // namespace

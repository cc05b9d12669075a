#include "support/scanning_tables.h"

#include <string>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using pozhil::test::expectFaults;
using pozhil::test::expectTokens;
using pozhil::test::scanFault;
using pozhil::test::tokens;

/// UTF-8 of a code point of the Tamil block, U+0B80 to U+0BFF.
std::string tamil(int codePoint) {
    return "\xE0"s + static_cast<char>(0x80 | codePoint >> 6) + static_cast<char>(0x80 | (codePoint & 0x3F));
}

constexpr int FIRST_OF_TAMIL = 0x0B80;
constexpr int LAST_OF_TAMIL = 0x0BFF;

bool isVowelLetter(int codePoint) {
    return codePoint >= 0x0B85 && codePoint <= 0x0B94;
}

bool isGranthaLetter(int codePoint) {
    return codePoint == 0x0B9C || (codePoint >= 0x0BB7 && codePoint <= 0x0BB9);
}

TEST(VowelSign, DoesNotBeginAWord) {
    for (int codePoint = 0x0BBE; codePoint <= 0x0BCD; ++codePoint) {
        EXPECT_EQ(scanFault(tamil(codePoint)), "பொழி-106 வரி 1") << codePoint;
        EXPECT_EQ(scanFault("அ\nஅ." + tamil(codePoint) + "க"), "பொழி-106 வரி 2") << codePoint;
    }
    for (const char* word : {"\u0BBD", "\u0BCE", "\u0BD7"}) {
        EXPECT_EQ(scanFault(word), "none") << word;
    }
}

TEST(VowelSign, StandsBehindAConsonant) {
    for (int codePoint = 0x0BBE; codePoint <= 0x0BCD; ++codePoint) {
        EXPECT_EQ(tokens("க" + tamil(codePoint)), "1: IDENTIFIER(க" + tamil(codePoint) + ") END_OF_FILE");
    }
}

TEST(LongVowelSign, DoesNotStandBehindAVowelLetter) {
    for (int codePoint = FIRST_OF_TAMIL; codePoint <= LAST_OF_TAMIL; ++codePoint) {
        if (isGranthaLetter(codePoint)) {
            continue;
        }
        const std::string word = "க" + tamil(codePoint) + "ா";
        EXPECT_EQ(scanFault(word), isVowelLetter(codePoint) ? "பொழி-114 வரி 1" : "none") << word;
    }
    expectFaults({{"அா", "பொழி-114 வரி 1"}, {"அஅா", "பொழி-114 வரி 1"}, {"\nகஔா", "பொழி-114 வரி 2"}});
}

TEST(LongVowelSign, StandsBehindAnyOtherCharacter) {
    for (const char* word : {"aா", "abா", "éா", "😀ா", "_1ா"}) {
        EXPECT_EQ(scanFault(word), "none") << word;
    }
}

TEST(LongVowelSign, IsTheOnlySignThatIsCheckedBehindAVowelLetter) {
    for (const char* word : {"அ\u0BBD", "அி", "அு", "அை", "அ்", "அகா"}) {
        EXPECT_EQ(scanFault(word), "none") << word;
    }
}

TEST(GranthaLetter, StandsInNoWord) {
    for (int codePoint = FIRST_OF_TAMIL; codePoint <= LAST_OF_TAMIL; ++codePoint) {
        const std::string word = "க" + tamil(codePoint);
        EXPECT_EQ(scanFault(word), isGranthaLetter(codePoint) ? "பொழி-115 வரி 1" : "none") << word;
    }
    expectFaults({
        {"ஜன்னல்", "பொழி-115 வரி 1"},
        {"அ\nராஜா", "பொழி-115 வரி 2"},
        {"பக்ஷி", "பொழி-115 வரி 1"},
        {"ஸ்ரீ", "பொழி-115 வரி 1"},
        {"எலிவேஷன்", "பொழி-115 வரி 1"},
        {"aஹ", "பொழி-115 வரி 1"},
    });
}

TEST(InvisibleMark, StandsInNoWord) {
    for (const std::string mark : {"\u200C", "\u200D", "\u200E", "\u200F"}) {
        EXPECT_EQ(scanFault(mark), "பொழி-117 வரி 1");
        EXPECT_EQ(scanFault("அ\nஅச்" + mark + "சிடு"), "பொழி-117 வரி 2");
        EXPECT_EQ(scanFault("அச்சிடு" + mark), "பொழி-117 வரி 1");
    }
    for (const std::string other : {"\u200B", "\u2010", "\uFEFF", "\u00A0"}) {
        EXPECT_EQ(tokens("அ" + other), "1: IDENTIFIER(அ" + other + ") END_OF_FILE");
    }
}

TEST(ScriptRules, NameTheFirstFaultOfAWord) {
    expectFaults({
        {"ாஜ", "பொழி-106 வரி 1"},
        {"ஜா\u200C", "பொழி-115 வரி 1"},
        {"அாஜ", "பொழி-114 வரி 1"},
        {"அ\u200Dாஜ", "பொழி-117 வரி 1"},
        {"அச்சிடூஜ", "பொழி-115 வரி 1"}, // before the spelling is looked at
        {"1ஜ", "பொழி-108 வரி 1"},
    });
}

TEST(ScriptRules, DoNotReachIntoStringsAndComments) {
    expectTokens({
        {"\"ஜ\" 'ஷ' ஃஃ ஸ ஹ ஃஃ அ ஃ ஜ \u200C ாஅா", "1: STRING(ஜ) CHAR(ஷ) IDENTIFIER(அ) END_OF_FILE END_OF_FILE"},
    });
}

TEST(SplitKeyword, IsRefused) {
    for (const char* words : {"அச்சி டு", "திரும் பு", "கூட்டி சேர்", "ஒன்று சேர்", "சுட்டி_ மேல்", "வலை தளம்", "அச்சி\tடு",
                              "அச்சி  \t  டு", "அச்சி டு(", "அச்சி டு+", "அச்சி டு\n", "நிகழ்நேர. தரவுசேர்"}) {
        EXPECT_EQ(scanFault("அ = 1\n"s + words), "பொழி-112 வரி 2") << words;
    }
}

TEST(SplitKeyword, IsRefusedAtALaterUseOfItsFirstHalfToo) {
    expectFaults({{"வலை = 1\nவலை தளம்", "பொழி-112 வரி 2"}, {"இல்லை:\nஅ\nஇல்லை எனில்", "பொழி-112 வரி 3"}});
}

TEST(SplitKeyword, WithoutCheckingTheScriptOfItsSecondHalf) {
    expectFaults({{"எலிவே ஷன்", "பொழி-112 வரி 1"}, {"அச்சிட ு", "பொழி-112 வரி 1"}});
}

TEST(SplitKeyword, BeginsWithANameOrWithTheWordForElse) {
    expectFaults({{"இல்லை எனில்", "பொழி-112 வரி 1"}, {"இல்லை\t எனில்", "பொழி-112 வரி 1"}});
    for (const char* words : {"தேர்வு பெட்டி", "உரை பொத்தான்", "பின்னணி படம்", "வகு சேர்", "கழி சேர்", "சமம் இல்லை"}) {
        EXPECT_EQ(scanFault(words), "none") << words; // two keywords that mean something side by side
    }
}

TEST(SplitKeyword, HasItsHalvesNextToEachOtherOnALine) {
    for (const char* words : {"வலை\nதளம்", "வலை.தளம்", "வலை ஃஃ ஃஃ தளம்", "வலை, தளம்", "வலை (தளம்)", "வலை \"தளம்\"",
                              "வலை தளங்கள்", "வலைகள் தளம்", "இல்லை\nஎனில்", "இல்லை (எனில்"}) {
        EXPECT_EQ(scanFault(words), "none") << words;
    }
}

TEST(SplitKeyword, IsNoneIfTheWholeIsAPlainName) {
    for (const char* words : {"அடையா ளம்", "உருளும் பட்டை", "கடவு மறை"}) {
        EXPECT_EQ(scanFault(words), "none") << words;
    }
}

TEST(Misspelling, IsAnyWordOneLetterAwayFromAKeyword) {
    for (const char* word : {"அச்சிடூ", "அச்சிட", "அச்சடு", "ச்சிடு", "அச்சிடுக", "கஅச்சிடு", "எனில", "நிலா", "குமாரி",
                             "செயலி", "தேர்வ", "இல்லைஎனில", "xஎனில்", "வரையறை_", "முயற்சி1", "பிடித"}) {
        EXPECT_EQ(scanFault("அ = 1\n"s + word), "பொழி-113 வரி 2") << word;
    }
}

TEST(Misspelling, IsNoWordOfThreeLettersOrFewer) {
    for (const char* word : {"இல", "பிட", "நில", "a"}) {
        EXPECT_EQ(scanFault(word), "none") << word;
    }
}

TEST(Misspelling, IsNoKeywordAndNoWordFurtherAway) {
    for (const char* word : {"நிலைமை", "தேர்வுகள்", "அச்சிடுவோம்", "மாற்றி", "சுற்றி_வா", "செயல்பாடு", "எண்ணிக்கை", "எல்லை_"}) {
        EXPECT_EQ(scanFault(word), "none") << word;
    }
}

TEST(Misspelling, IsLookedForBehindASplitKeyword) {
    expectFaults({{"அச்சிட ு", "பொழி-112 வரி 1"}, {"அச்சிட டு", "பொழி-113 வரி 1"}});
}

} // namespace

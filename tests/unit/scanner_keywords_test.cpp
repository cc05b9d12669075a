#include "language/keywords.h"
#include "scanner/keywords.h"
#include "support/scanning.h"
#include "support/token_kinds.h"

#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::lookupKeyword;
using pozhil::Token;
using pozhil::TokenType;
using pozhil::language::Keyword;
using pozhil::test::scan;
using pozhil::test::scanFault;
using pozhil::test::TOKEN_KINDS;
using pozhil::test::TokenKind;

constexpr bool kindsStandAtTheirNumbers() {
    int number = 0;
    for (const TokenKind& kind : TOKEN_KINDS) {
        if (kind.number != number || static_cast<int>(kind.type) != number) {
            return false;
        }
        ++number;
    }
    return true;
}

static_assert(std::size(TOKEN_KINDS) == 145);
static_assert(kindsStandAtTheirNumbers());
static_assert(sizeof(TokenType) == 4);

TEST(Keywords, AreOneTokenEachWithTheirTextAsValue) {
    for (const Keyword& keyword : pozhil::language::keywords()) {
        const std::string word(keyword.word);
        if (word == "எலிவேஷன்") {
            EXPECT_EQ(scanFault(word), "பொழி-115 வரி 1"); // its own ஷ forbids to write it
            continue;
        }
        const std::vector<Token> tokens = scan(word);
        ASSERT_EQ(tokens.size(), 2U) << word;
        EXPECT_EQ(tokens[0].type, lookupKeyword(word)) << word;
        EXPECT_EQ(tokens[0].value, word);
        EXPECT_EQ(tokens[1].type, TokenType::END_OF_FILE) << word;
    }
}

TEST(Keywords, HaveTheKindOfTheirFirstRow) {
    std::set<std::string_view> seen;
    for (const Keyword& keyword : pozhil::language::keywords()) {
        if (seen.insert(keyword.word).second) {
            EXPECT_EQ(lookupKeyword(keyword.word), keyword.type) << keyword.word;
        }
    }
}

struct KindOfWord {
    const char* word;
    TokenType kind;
};

TEST(Keywords, ThatTwoTablesClaimHaveTheKindOfTheFirst) {
    const std::vector<KindOfWord> expected = {
        {"மூலம்", TokenType::KEYWORD},            // not SOURCE
        {"உரைசீரமைப்பு", TokenType::IDENTIFIER},   // not STYLE
        {"வகை", TokenType::KEYWORD},             // not ANIMATION_KIND
        {"நிறம்", TokenType::BACKGROUND},         // not ANIM_COLOR
        {"அகலம்", TokenType::WIDTH},              // not ANIM_WIDTH
        {"உயரம்", TokenType::HEIGHT},             // not ANIM_HEIGHT
        {"வளைவு", TokenType::RADIUS},            // not ANIM_RADIUS
        {"ஒன்றுசேர்", TokenType::COMPOUND_ASSIGN}, // not INCREMENT
        {"ஒன்றுகழி", TokenType::COMPOUND_ASSIGN}, // not DECREMENT
    };
    for (const auto& [word, kind] : expected) {
        EXPECT_EQ(lookupKeyword(word), kind) << word;
    }
}

TEST(Keywords, AreComparedAsWholeWords) {
    for (const char* word : {"", "அச்சிட", "அச்சிடுக", " அச்சிடு", "அச்சிடு ", "print", "TEXT", "கூட்டுசேர்", "சுட்டிமேல்",
                             "நிகழ்நேர", "நிகழ்நேர.", "நிகழ்நேர.தரவு", "தரவுசேர்"}) {
        EXPECT_EQ(lookupKeyword(word), TokenType::IDENTIFIER) << word;
    }
}

TEST(Keywords, AreFoundByTheirBeginning) {
    EXPECT_TRUE(pozhil::beginsLongerKeyword("இல்லை"));
    EXPECT_TRUE(pozhil::beginsLongerKeyword("கூட்டி"));
    EXPECT_TRUE(pozhil::beginsLongerKeyword(""));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("இல்லைஎனில்"));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("அச்சிடுக"));
    EXPECT_FALSE(pozhil::beginsLongerKeyword("ஃ"));
}

TEST(TypoCandidates, StandInTheOrderOfComparison) {
    EXPECT_EQ(pozhil::typoCandidates(),
              (std::vector<std::string_view>{"அச்சிடு", "சுற்று", "எனில்", "இல்லைஎனில்", "இல்லை", "செயல்", "திரும்பு",
                                             "ஒவ்வொன்றாக", "தேர்வு", "நிலை", "மற்றவை", "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி",
                                             "பிடி", "வலைதளம்", "தலைமை", "குமரி", "வரையறை"}));
}

} // namespace
